// Option lists of capability documents, and the enumerations for their options.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"

struct _xmlNode;

namespace CapabilitySet
{

template <class Option>
struct OptElement;

/// The options of a setting, from the attributes "opt" and "attri", both comma-separated lists.
/// Capable when either attribute is present, even if it is empty.
template <>
struct CAPABILITYSET_API OptElement<std::string> : CBaseCapability
{
    std::vector<std::string> opt;    ///< entries of "opt", in order, untrimmed; empty ones dropped
    std::vector<std::string> attri;  ///< entries of "attri", likewise

    OptElement() = default;
    explicit OptElement(_xmlNode* element) { Parse(element); }

    /// Reads the element's attributes; null reads nothing.
    void Parse(_xmlNode* element);
};

/// How a device reacts to an alarm.
struct AlarmHandleType
{
    /// One bit per reaction; a device may announce several.
    enum HandleType
    {
        Monitor = 1,         ///< "monitor": warns on the local display
        Audio = 2,           ///< "audio": sounds a warning
        Center = 4,          ///< "center": notifies the monitoring centre
        AlarmOut = 8,        ///< "alarmout": triggers alarm outputs
        Picture = 16,        ///< "picture": takes a picture and mails it
        WirelessLight = 32,  ///< "wirelesslight": switches wireless lights
        UploadFtp = 512,     ///< "uploadftp": uploads pictures to an FTP server
    };
};

/// What starts a recording.
struct RecordType
{
    /// One trigger each.
    enum Type
    {
        Timing = 0,          ///< "timing": by schedule
        Motion = 1,          ///< "motion": on motion
        Alarm = 2,           ///< "alarm": on an alarm
        MotionOrAlarm = 3,   ///< "motionOrAlarm": on either
        MotionAndAlarm = 4,  ///< "motionAndAlarm": on both at once
        Vca = 5,             ///< "vca": on events of content analysis
        Manual = 6,          ///< "manual": when a user starts it
    };
};

/// What makes a device take pictures.
struct CaptureType
{
    /// As RecordType::Type, without "manual".
    enum Type
    {
        Timing = 0,          ///< "timing": by schedule
        Motion = 1,          ///< "motion": on motion
        Alarm = 2,           ///< "alarm": on an alarm
        MotionOrAlarm = 3,   ///< "motionOrAlarm": on either
        MotionAndAlarm = 4,  ///< "motionAndAlarm": on both at once
        Vca = 5,             ///< "vca": on events of content analysis
    };
};

/// What a serial port is used for.
enum WorkModeType
{
    NarrowBand = 0,       ///< "narrowBand"
    Console = 1,          ///< "console"
    TransparentChan = 2,  ///< "transparentChan" or "transparent"
    InquestSensor = 3,    ///< "inquestSensor"
};

/// What a card reader on a serial port outputs.
enum OutPutDataType
{
    CardNo = 1,      ///< "cardNo": the card number
    EmployeeNo = 2,  ///< "employeeNo": the employee number
};

}  // namespace CapabilitySet
