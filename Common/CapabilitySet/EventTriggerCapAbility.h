// Event triggers: the kinds of event and the reactions to each. Queries.h describes the query.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/ElementRecord.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/OptionTypes.h"

struct _xmlNode;

namespace CapabilitySet
{

/// The reactions that one kind of event can trigger. A flag whose text is neither "true" nor
/// "false" keeps its value. Any element present makes the record capable.
struct CAPABILITYSET_API EventTriggerCapType : ElementRecord<EventTriggerCapType>
{
    bool isSupportCenter = false;           ///< notify the monitoring centre
    bool isSupportRecord = false;           ///< start recording
    bool isSupportMonitorAlarm = false;     ///< warn on the local display
    bool isSupportBeep = false;             ///< beep
    bool isSupportIO = false;               ///< trigger alarm outputs
    bool isSupportFTP = false;              ///< upload pictures to an FTP server
    bool isSupportEmail = false;            ///< send e-mail
    bool isSupportLightAudioAlarm = false;  ///< flash lights and sound an alarm
    bool isSupportFocus = false;            ///< focus
    bool isSupportPTZ = false;              ///< move the camera
    int maxPresetActionNum = 0;             ///< maximum presets that one event can call
    int maxPatrolActionNum = 0;             ///< maximum patrols that one event can start
    int maxPatternActionNum = 0;            ///< maximum patterns that one event can start

    EventTriggerCapType() = default;
    explicit EventTriggerCapType(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSupportCenter", r.isSupportCenter, as::trueOrFalse);
        field("isSupportRecord", r.isSupportRecord, as::trueOrFalse);
        field("isSupportMonitorAlarm", r.isSupportMonitorAlarm, as::trueOrFalse);
        field("isSupportBeep", r.isSupportBeep, as::trueOrFalse);
        field("isSupportIO", r.isSupportIO, as::trueOrFalse);
        field("isSupportFTP", r.isSupportFTP, as::trueOrFalse);
        field("isSupportEmail", r.isSupportEmail, as::trueOrFalse);
        field("isSupportLightAudioAlarm", r.isSupportLightAudioAlarm, as::trueOrFalse);
        field("isSupportFocus", r.isSupportFocus, as::trueOrFalse);
        field("isSupportPTZ", r.isSupportPTZ, as::trueOrFalse);
        field("maxPresetActionNum", r.maxPresetActionNum);
        field("maxPatrolActionNum", r.maxPatrolActionNum);
        field("maxPatternActionNum", r.maxPatternActionNum);
    }
};

/// The event trigger capability document of a channel, root "EventTriggersCap".
struct CAPABILITYSET_API EventTriggerCap : CBaseCapability
{
    static constexpr const char* kRoot = "EventTriggersCap";

    EventTriggerCapType DiskfullTriggerCap;                ///< disk full
    EventTriggerCapType DiskerrorTriggerCap;               ///< disk error
    EventTriggerCapType NicbrokenTriggerCap;               ///< network interface down
    EventTriggerCapType IpconflictTriggerCap;              ///< IP address conflict
    EventTriggerCapType IllaccesTriggerCap;                ///< illegal access
    EventTriggerCapType BadvideoTriggerCap;                ///< bad video signal
    EventTriggerCapType VideomismatchTriggerCap;           ///< video standard mismatch
    EventTriggerCapType IOTriggerCap;                      ///< alarm input
    EventTriggerCapType RegionEntranceTriggerCap;          ///< entering a region
    EventTriggerCapType RegionExitingTriggerCap;           ///< leaving a region
    EventTriggerCapType LoiteringTriggerCap;               ///< loitering
    EventTriggerCapType GroupDetectionTriggerCap;          ///< people gathering
    EventTriggerCapType RapidMoveTriggerCap;               ///< fast movement
    EventTriggerCapType ParkingTriggerCap;                 ///< parking
    EventTriggerCapType UnattendedBaggageTriggerCap;       ///< unattended baggage
    EventTriggerCapType AttendedBaggageTriggerCap;         ///< attended baggage
    EventTriggerCapType ThermometryCap;                    ///< temperature measurement
    EventTriggerCapType FaceLibTriggerCap;                 ///< face library
    EventTriggerCapType WhiteListTriggerCap;               ///< face on the allow list
    EventTriggerCapType FaceContrastSuccessTriggerCap;     ///< face comparison succeeded
    EventTriggerCapType FaceContrastFailureTriggerCap;     ///< face comparison failed
    EventTriggerCapType FramesPeopleCountingTriggerCap;    ///< people counting in the picture
    EventTriggerCapType HFPDTriggerCap;                    ///< human-feature search
    EventTriggerCapType ObjectsThrownDetectionTriggerCap;  ///< thrown objects

    EventTriggerCap() = default;
    explicit EventTriggerCap(const std::string& text) { Parse(text); }
    explicit EventTriggerCap(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

    /// Standard ability 3501. True if the device answered and `out` is capable. The answer may have
    /// 16,384,000 bytes.
    // Kept: `err` is taken by value, so callers see the result and the last error only.
    static bool GetEventTriggerCapAbility(EventTriggerCap& out, unsigned int err, int userID,
                                          unsigned int channel);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("DiskfullTriggerCap", r.DiskfullTriggerCap);
        field("DiskerrorTriggerCap", r.DiskerrorTriggerCap);
        field("NicbrokenTriggerCap", r.NicbrokenTriggerCap);
        field("IpconflictTriggerCap", r.IpconflictTriggerCap);
        field("IllaccesTriggerCap", r.IllaccesTriggerCap);
        field("BadvideoTriggerCap", r.BadvideoTriggerCap);
        field("VideomismatchTriggerCap", r.VideomismatchTriggerCap);
        field("IOTriggerCap", r.IOTriggerCap);
        field("RegionEntranceTriggerCap", r.RegionEntranceTriggerCap);
        field("RegionExitingTriggerCap", r.RegionExitingTriggerCap);
        field("LoiteringTriggerCap", r.LoiteringTriggerCap);
        field("GroupDetectionTriggerCap", r.GroupDetectionTriggerCap);
        field("RapidMoveTriggerCap", r.RapidMoveTriggerCap);
        field("ParkingTriggerCap", r.ParkingTriggerCap);
        field("UnattendedBaggageTriggerCap", r.UnattendedBaggageTriggerCap);
        field("AttendedBaggageTriggerCap", r.AttendedBaggageTriggerCap);
        // Kept: devices leave "Trigger" out of this name.
        field("ThermometryCap", r.ThermometryCap);
        field("FaceLibTriggerCap", r.FaceLibTriggerCap);
        field("WhiteListTriggerCap", r.WhiteListTriggerCap);
        field("FaceContrastSuccessTriggerCap", r.FaceContrastSuccessTriggerCap);
        field("FaceContrastFailureTriggerCap", r.FaceContrastFailureTriggerCap);
        field("FramesPeopleCountingTriggerCap", r.FramesPeopleCountingTriggerCap);
        field("HFPDTriggerCap", r.HFPDTriggerCap);
        field("ObjectsThrownDetectionTriggerCap", r.ObjectsThrownDetectionTriggerCap);
    }
};

/// The kinds of event in the protocol's own trigger document, root "EventTriggersCap", which the
/// client fetches itself. A member is true if its element is present.
struct CAPABILITYSET_API EventTARNAbility : CBaseCapability
{
    static constexpr const char* kRoot = "EventTriggersCap";

    bool DiskfullTriggerCap = false;               ///< disk full
    bool DiskerrorTriggerCap = false;              ///< disk error
    bool IllaccesTriggerCap = false;               ///< illegal access
    bool BlackListTriggerCap = false;              ///< match on the block list
    bool WhiteListTriggerCap = false;              ///< match on the allow list
    bool VehicleDetectionTriggerCap = false;       ///< vehicle detection
    bool SafetyHelmetDetectionTriggerCap = false;  ///< safety helmet detection
    bool HighHDTemperatureTriggerCap = false;      ///< disk too hot
    bool LowHDTemperatureTriggerCap = false;       ///< disk too cold
    bool HDImpactTriggerCap = false;               ///< shock to a disk
    bool HDBadBlockTriggerCap = false;             ///< bad blocks on a disk
    bool SevereHDFailureTriggerCap = false;        ///< severe disk failure
    bool WirelessSmokeTriggerCap = false;          ///< wireless smoke detector
    bool AbnormalRebootTriggerCap = false;         ///< unexpected reboot
    bool LogExceptionTriggerCap = false;           ///< log fault

    EventTARNAbility() = default;
    explicit EventTARNAbility(const std::string& text) { Parse(text); }
    explicit EventTARNAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("DiskfullTriggerCap", r.DiskfullTriggerCap, as::presence);
        field("DiskerrorTriggerCap", r.DiskerrorTriggerCap, as::presence);
        field("IllaccesTriggerCap", r.IllaccesTriggerCap, as::presence);
        field("BlackListTriggerCap", r.BlackListTriggerCap, as::presence);
        field("WhiteListTriggerCap", r.WhiteListTriggerCap, as::presence);
        field("VehicleDetectionTriggerCap", r.VehicleDetectionTriggerCap, as::presence);
        field("SafetyHelmetDetectionTriggerCap", r.SafetyHelmetDetectionTriggerCap, as::presence);
        field("HighHDTemperatureTriggerCap", r.HighHDTemperatureTriggerCap, as::presence);
        field("LowHDTemperatureTriggerCap", r.LowHDTemperatureTriggerCap, as::presence);
        field("HDImpactTriggerCap", r.HDImpactTriggerCap, as::presence);
        field("HDBadBlockTriggerCap", r.HDBadBlockTriggerCap, as::presence);
        field("SevereHDFailureTriggerCap", r.SevereHDFailureTriggerCap, as::presence);
        field("WirelessSmokeTriggerCap", r.WirelessSmokeTriggerCap, as::presence);
        field("AbnormalRebootTriggerCap", r.AbnormalRebootTriggerCap, as::presence);
        field("LogExceptionTriggerCap", r.LogExceptionTriggerCap, as::presence);
    }
};

/// The event types of a channel, root "ChannelEventCap", a document that the client fetches itself.
/// Capable if "eventType" is present, even if its list is empty.
struct CAPABILITYSET_API ChannelEventAbility : CBaseCapability
{
    static constexpr const char* kRoot = "ChannelEventCap";

    OptElement<std::string> eventType;  ///< event types, as the device names them

    ChannelEventAbility() = default;
    explicit ChannelEventAbility(const std::string& text) { Parse(text); }
    explicit ChannelEventAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("eventType", r.eventType);
    }
};

}  // namespace CapabilitySet
