// The option lists of capability documents, and the enumerations their options stand for.
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

/// The options of a setting: attributes "opt" and "attri", comma lists in the document's order.
/// Capable when either attribute stands there, be it empty.
template <>
struct CAPABILITYSET_API OptElement<std::string> : CBaseCapability
{
    std::vector<std::string> opt;    ///< entries of "opt"; empty pieces dropped, nothing trimmed
    std::vector<std::string> attri;  ///< entries of "attri"

    OptElement() = default;
    explicit OptElement(_xmlNode* element) { Parse(element); }

    /// Reads the element's attributes; a null element reads nothing.
    void Parse(_xmlNode* element);
};

/// What a device does when an alarm comes; one bit each, a device may announce several.
struct AlarmHandleType
{
    enum HandleType
    {
        Monitor = 1,         ///< "monitor": warns on the local display
        Audio = 2,           ///< "audio": warns by sound
        Center = 4,          ///< "center": tells the monitoring centre
        AlarmOut = 8,        ///< "alarmout": switches alarm outputs
        Picture = 16,        ///< "picture": takes a picture and mails it
        WirelessLight = 32,  ///< "wirelesslight": switches wireless lights
        UploadFtp = 512,     ///< "uploadftp": sends pictures to an FTP server
    };
};

/// When a device records.
struct RecordType
{
    enum Type
    {
        Timing = 0,          ///< "timing": by schedule
        Motion = 1,          ///< "motion"
        Alarm = 2,           ///< "alarm"
        MotionOrAlarm = 3,   ///< "motionOrAlarm"
        MotionAndAlarm = 4,  ///< "motionAndAlarm"
        Vca = 5,             ///< "vca": on events of content analysis
        Manual = 6,          ///< "manual"
    };
};

/// When a device takes pictures; as RecordType, without "manual".
struct CaptureType
{
    enum Type
    {
        Timing = 0,
        Motion = 1,
        Alarm = 2,
        MotionOrAlarm = 3,
        MotionAndAlarm = 4,
        Vca = 5,
    };
};

/// Work mode of a serial port.
enum WorkModeType
{
    NarrowBand = 0,       ///< "narrowBand"
    Console = 1,          ///< "console"
    TransparentChan = 2,  ///< "transparentChan", "transparent"
    InquestSensor = 3,    ///< "inquestSensor"
};

/// What a card reader on a serial port puts out.
enum OutPutDataType
{
    CardNo = 1,      ///< "cardNo"
    EmployeeNo = 2,  ///< "employeeNo"
};

}  // namespace CapabilitySet
