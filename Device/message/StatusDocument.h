// Status documents: how a device reports success or the reason for a refusal.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "Device/message/ParsedRequest.h"

namespace Json
{
class Value;
}

namespace Device
{

/// The content of a status document and the HTTP status it travels with.
struct Status
{
    int httpStatus;
    int statusCode;             ///< class of the outcome; 1 for success
    const char* statusString;   ///< the class in words
    const char* subStatusCode;  ///< name of the outcome; "ok" for success
    unsigned int errorCode;     ///< the device model's number for the name
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
// Understood but impossible right now: the HTTP request itself succeeds.
inline constexpr Status kZoneOpen{200, 4, "Invalid Operation", "zoneOpen", 0x400010};
inline constexpr Status kSubSystemDisabled{200, 4, "Invalid Operation", "subSystemDisabled",
                                           0x400011};
inline constexpr Status kSubSystemArmed{200, 4, "Invalid Operation", "subSystemArmed", 0x400012};
inline constexpr Status kNotBypassable{200, 4, "Invalid Operation", "zoneNotBypassable", 0x400013};
inline constexpr Status kWrongTaskState{200, 4, "Invalid Operation", "wrongTaskState", 0x400014};
inline constexpr Status kTaskNotFinished{400, 4, "Invalid Operation", "taskNotFinished", 0x400015};
}  // namespace Outcome

/// The outcome with that sub-status code, or null.
const Status* FindOutcome(std::string_view subStatusCode);

/// An answer that consists of a status document: XML, or JSON if the target asks for it.
Response MakeStatus(const Status& status, std::string_view target);

/// An answer that consists of a JSON document.
Response MakeJson(const Json::Value& document);

/// A status document, always as JSON, with the members of `more` added.
Response MakeJsonStatus(const Status& status, std::string_view target, const Json::Value& more);

/// The answer to a method that a path does not have.
Response MakeMethodNotAllowed(std::string_view target, std::set<std::string> allowed);

/// A refusal if the request's body is neither XML nor JSON.
std::optional<Response> RefuseMalformed(const ParsedRequest& request);

}  // namespace Device
