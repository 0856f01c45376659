// Status documents: how a device says that it did, or why it did not, what was asked.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Device/DeviceModel.h"

namespace Json
{
class Value;
}

namespace Device
{

/// What a status document says, and the HTTP status that goes with it.
struct Status
{
    int httpStatus;
    int statusCode;             ///< class of the outcome, 1 for success
    const char* statusString;   ///< the class in words
    const char* subStatusCode;  ///< the outcome's own word, "ok" for success
    unsigned int errorCode;     ///< the device model's number for the word
};

namespace Outcome
{
inline constexpr Status kOk{200, 1, "OK", "ok", 1};
inline constexpr Status kDeviceBusy{503, 2, "Device Busy", "deviceBusy", 0x200001};
inline constexpr Status kDeviceError{500, 3, "Device Error", "deviceError", 0x300001};
inline constexpr Status kNotSupport{404, 4, "Invalid Operation", "notSupport", 0x400001};
inline constexpr Status kUnauthorized{401, 4, "Invalid Operation", "unauthorized", 0x400002};
inline constexpr Status kMethodNotAllowed{405, 4, "Invalid Operation", "methodNotAllowed",
                                          0x400004};
inline constexpr Status kTooLarge{413, 4, "Invalid Operation", "bodyTooLarge", 0x400005};
inline constexpr Status kBadXmlFormat{400, 5, "Invalid Message Format", "badXmlFormat", 0x500001};
inline constexpr Status kBadJsonFormat{400, 5, "Invalid Message Format", "badJsonFormat", 0x500002};
inline constexpr Status kBadXmlContent{400, 6, "Invalid Message Content", "badXmlContent",
                                       0x600001};
inline constexpr Status kBadJsonContent{400, 6, "Invalid Message Content", "badJsonContent",
                                        0x600002};
inline constexpr Status kInvalidChannel{400, 6, "Invalid Message Content", "invalidChannel",
                                        0x600003};
inline constexpr Status kBadParameters{400, 6, "Invalid Message Content", "badParameters",
                                       0x600004};
inline constexpr Status kInvalidId{400, 6, "Invalid Message Content", "invalidID", 0x600005};
// Understood, but not possible now: the answer itself is no refusal.
inline constexpr Status kZoneOpen{200, 4, "Invalid Operation", "zoneOpen", 0x400010};
inline constexpr Status kSubSystemDisabled{200, 4, "Invalid Operation", "subSystemDisabled",
                                           0x400011};
inline constexpr Status kSubSystemArmed{200, 4, "Invalid Operation", "subSystemArmed", 0x400012};
inline constexpr Status kNotBypassable{200, 4, "Invalid Operation", "zoneNotBypassable", 0x400013};
inline constexpr Status kWrongTaskState{200, 4, "Invalid Operation", "wrongTaskState", 0x400014};
inline constexpr Status kTaskNotFinished{400, 4, "Invalid Operation", "taskNotFinished", 0x400015};
}  // namespace Outcome

/// The outcome of that sub-status word, or null when there is none.
const Status* FindOutcome(std::string_view subStatusCode);

/// An answer that consists of a status document: XML, or JSON when the target asks for it.
Response MakeStatus(const Status& status, std::string_view target);

/// The same as JSON whatever the target asks for, with the members of `more` beside its own.
Response MakeJsonStatus(const Status& status, std::string_view target, const Json::Value& more);

/// Whether the target's query holds "format=json".
bool WantsJson(std::string_view target);

}  // namespace Device
