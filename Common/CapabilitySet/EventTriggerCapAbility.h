// Which reactions each kind of event may start, and which kinds of event there are.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/ElementRecord.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/OptionTypes.h"

struct _xmlNode;

namespace CapabilitySet
{

/// The reactions that one kind of event may start. A flag whose text is neither "true" nor "false"
/// keeps its value; each element present makes the record capable.
struct CAPABILITYSET_API EventTriggerCapType : ElementRecord<EventTriggerCapType>
{
    bool isSupportCenter = false;           ///< tells the monitoring centre
    bool isSupportRecord = false;           ///< starts recording
    bool isSupportMonitorAlarm = false;     ///< warns on the local display
    bool isSupportBeep = false;             ///< beeps
    bool isSupportIO = false;               ///< switches outputs
    bool isSupportFTP = false;              ///< sends pictures to an FTP server
    bool isSupportEmail = false;            ///< sends mail
    bool isSupportLightAudioAlarm = false;  ///< lights and sounds
    bool isSupportFocus = false;            ///< focuses
    bool isSupportPTZ = false;              ///< moves the camera
    int maxPresetActionNum = 0;             ///< preset calls that one event may start
    int maxPatrolActionNum = 0;             ///< patrols
    int maxPatternActionNum = 0;            ///< patterns

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

/// The event trigger capability document of a channel.
struct CAPABILITYSET_API EventTriggerCap : CBaseCapability
{
    static constexpr const char* kRoot = "EventTriggersCap";

    EventTriggerCapType DiskfullTriggerCap;
    EventTriggerCapType DiskerrorTriggerCap;
    EventTriggerCapType NicbrokenTriggerCap;
    EventTriggerCapType IpconflictTriggerCap;
    EventTriggerCapType IllaccesTriggerCap;
    EventTriggerCapType BadvideoTriggerCap;
    EventTriggerCapType VideomismatchTriggerCap;
    EventTriggerCapType IOTriggerCap;
    EventTriggerCapType RegionEntranceTriggerCap;
    EventTriggerCapType RegionExitingTriggerCap;
    EventTriggerCapType LoiteringTriggerCap;
    EventTriggerCapType GroupDetectionTriggerCap;
    EventTriggerCapType RapidMoveTriggerCap;
    EventTriggerCapType ParkingTriggerCap;
    EventTriggerCapType UnattendedBaggageTriggerCap;
    EventTriggerCapType AttendedBaggageTriggerCap;
    EventTriggerCapType ThermometryCap;
    EventTriggerCapType FaceLibTriggerCap;
    EventTriggerCapType WhiteListTriggerCap;
    EventTriggerCapType FaceContrastSuccessTriggerCap;
    EventTriggerCapType FaceContrastFailureTriggerCap;
    EventTriggerCapType FramesPeopleCountingTriggerCap;
    EventTriggerCapType HFPDTriggerCap;
    EventTriggerCapType ObjectsThrownDetectionTriggerCap;

    EventTriggerCap() = default;
    explicit EventTriggerCap(const std::string& text) { Parse(text); }
    explicit EventTriggerCap(_xmlNode* element) { Parse(element); }

    /// Reads a whole document, root "EventTriggersCap".
    void Parse(const std::string& text);
    void Parse(_xmlNode* element);

    /// Asks for a channel. True when the device answered and `out` is capable. Clients pass the
    /// error slot by value, so they learn of a failure from the result and
    /// Keel::Error::GetLastError() alone.
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
        // Kept: devices name this one without "Trigger".
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

/// The kinds of event that a device announces in the protocol's own trigger document, root
/// "EventTriggersCap", which the client fetches itself: true for each element that is present.
struct CAPABILITYSET_API EventTARNAbility : CBaseCapability
{
    static constexpr const char* kRoot = "EventTriggersCap";

    bool DiskfullTriggerCap = false;
    bool DiskerrorTriggerCap = false;
    bool IllaccesTriggerCap = false;
    bool BlackListTriggerCap = false;
    bool WhiteListTriggerCap = false;
    bool VehicleDetectionTriggerCap = false;
    bool SafetyHelmetDetectionTriggerCap = false;
    bool HighHDTemperatureTriggerCap = false;
    bool LowHDTemperatureTriggerCap = false;
    bool HDImpactTriggerCap = false;
    bool HDBadBlockTriggerCap = false;
    bool SevereHDFailureTriggerCap = false;
    bool WirelessSmokeTriggerCap = false;
    bool AbnormalRebootTriggerCap = false;
    bool LogExceptionTriggerCap = false;

    EventTARNAbility() = default;
    explicit EventTARNAbility(const std::string& text) { Parse(text); }
    explicit EventTARNAbility(_xmlNode* element) { Parse(element); }

    void Parse(const std::string& text);
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

/// The event types of a channel, root "ChannelEventCap", a document that the client fetches
/// itself. Capable when "eventType" is present, be its list empty.
struct CAPABILITYSET_API ChannelEventAbility : CBaseCapability
{
    static constexpr const char* kRoot = "ChannelEventCap";

    OptElement<std::string> eventType;

    ChannelEventAbility() = default;
    explicit ChannelEventAbility(const std::string& text) { Parse(text); }
    explicit ChannelEventAbility(_xmlNode* element) { Parse(element); }

    void Parse(const std::string& text);
    void Parse(_xmlNode* element);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("eventType", r.eventType);
    }
};

}  // namespace CapabilitySet
