// What a channel can detect and how it can react, the query for it, and the memory of tracking.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/ElementRecord.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/OptionTypes.h"

struct _xmlNode;

namespace CapabilitySet
{

// Members bear the names of their elements. In every record `capable` is raised by the first
// element read, or by a nested record that is capable itself. Parse(_xmlNode*) takes the record's
// element; null reads nothing.

/// The tables that turn option strings into codes.
namespace option_codes
{

/// "diskFull" 0, "diskError" 1, "nicBroken" 2, "ipConflict" 3, "illAccess" 4, "videoMismatch" 5,
/// "badVideo" 6, "recordingFailure" 7, "raid" 8, "resolutionMismatch" 9, "spareException" 11,
/// "temperatureException" 12, "subsystemException" 13, "fanException" 14, "POEPoweException" 15.
extern CAPABILITYSET_API const OptionCodes kExceptionTypes;
/// Seconds "5" 0, "10" 1, "30" 2, "60" 3, "120" 4, "300" 5, "600" 6, and "manual" 7.
extern CAPABILITYSET_API const OptionCodes kPulseDurations;
/// "normalTrack" 0, "highSpeedRoadTrack" 1, "urbanRoadTrack" 2.
extern CAPABILITYSET_API const OptionCodes kTrackTypes;
/// "sensitivityDetection" 0, "thresholdDetection" 1, "all" 2.
extern CAPABILITYSET_API const OptionCodes kAudioModes;
/// "bothway" 0, "leftToRight" 1, "rightToLeft" 2.
extern CAPABILITYSET_API const OptionCodes kCrossDirections;

}  // namespace option_codes

/// Exceptions of a device and the reactions to them.
struct CAPABILITYSET_API ExceptionAlarm : ElementRecord<ExceptionAlarm>
{
    std::vector<int> exceptionType;  ///< option_codes::kExceptionTypes
    std::vector<AlarmHandleType::HandleType> alarmHandleType;

    ExceptionAlarm() = default;
    explicit ExceptionAlarm(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("exceptionType", r.exceptionType, as::Codes{option_codes::kExceptionTypes});
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
    }
};

/// Alarm inputs.
struct CAPABILITYSET_API AlarmIn : ElementRecord<AlarmIn>
{
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;

    AlarmIn() = default;
    explicit AlarmIn(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
    }
};

/// Alarm outputs.
struct CAPABILITYSET_API AlarmOut : ElementRecord<AlarmOut>
{
    unsigned int alarmTime = 0;      ///< seconds
    std::vector<int> pulseDuration;  ///< option_codes::kPulseDurations

    AlarmOut() = default;
    explicit AlarmOut(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("alarmTime", r.alarmTime);
        field("pulseDuration", r.pulseDuration, as::Codes{option_codes::kPulseDurations});
    }
};

/// Face detection.
struct CAPABILITYSET_API FaceDetection : ElementRecord<FaceDetection>
{
    bool detectFaceEnable = false;
    MinMaxElement detectFaceSensitive;
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;
    bool triggerRecord = false;

    FaceDetection() = default;
    explicit FaceDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("detectFaceEnable", r.detectFaceEnable, as::firstOption);
        field("detectFaceSensitive", r.detectFaceSensitive);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("triggerRecord", r.triggerRecord, as::textFlag);
    }
};

/// Tracking by hand.
struct CAPABILITYSET_API ManualTrace : ElementRecord<ManualTrace>
{
    bool enabled = false;
    std::vector<int> trackType;  ///< option_codes::kTrackTypes

    ManualTrace() = default;
    explicit ManualTrace(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled, as::textFlag);
        field("trackType", r.trackType, as::Codes{option_codes::kTrackTypes});
    }
};

/// Tracking of a target.
struct CAPABILITYSET_API Track : ElementRecord<Track>
{
    bool trackEnable = false;
    bool stopTrackWhenFindFace = false;  ///< always false
    MinMaxElement stopTrackThreshold;
    ManualTrace manualTrace;

    Track() = default;
    explicit Track(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("trackEnable", r.trackEnable, as::firstOption);
        // Kept: clients rely on this element overwriting the flag before it; its own stays false.
        field("stopTrackWhenFindFace", r.trackEnable, as::firstOption);
        field("stopTrackThreshold", r.stopTrackThreshold, as::attributes);
        field("ManualTrace", r.manualTrace);
    }
};

/// A steep drop of sound.
struct CAPABILITYSET_API AudioSteepDrop : ElementRecord<AudioSteepDrop>
{
    OptElement<std::string> enable;
    MinMaxElement sensitivityLevel;

    AudioSteepDrop() = default;
    explicit AudioSteepDrop(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable);
        field("sensitivityLevel", r.sensitivityLevel, as::attributes);
    }
};

/// Abnormal sound.
struct CAPABILITYSET_API Abnormal : ElementRecord<Abnormal>
{
    MinMaxElement sensitivityLevel;
    std::vector<int> audioMode;  ///< option_codes::kAudioModes
    bool enable = false;
    MinMaxElement threshold;

    Abnormal() = default;
    explicit Abnormal(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("sensitivityLevel", r.sensitivityLevel);
        field("audioMode", r.audioMode, as::Codes{option_codes::kAudioModes});
        field("enable", r.enable, as::firstOption);
        field("threshold", r.threshold);
    }
};

/// Audio detection.
struct CAPABILITYSET_API VoiceDetection : ElementRecord<VoiceDetection>
{
    bool enable = false;
    Abnormal abnormal;
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;
    AudioSteepDrop audioSteepDrop;

    VoiceDetection() = default;
    explicit VoiceDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        field("Abnormal", r.abnormal);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("audioSteepDrop", r.audioSteepDrop);
    }
};

/// One line whose crossing is detected.
struct CAPABILITYSET_API AlertLine : ElementRecord<AlertLine>
{
    int id = 0;
    std::vector<int> crossDirection;  ///< option_codes::kCrossDirections
    MinMaxElement sensitivityLevel;

    AlertLine() = default;
    explicit AlertLine(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("crossDirection", r.crossDirection, as::Codes{option_codes::kCrossDirections});
        field("sensitivityLevel", r.sensitivityLevel);
    }
};

/// Line crossing.
struct CAPABILITYSET_API TraversingVirtualPlane : ElementRecord<TraversingVirtualPlane>
{
    bool enable = false;
    OptElement<std::string> enableDualVca;
    unsigned int alertlineNum = 0;
    MinMaxElement alertlineID;
    std::vector<std::shared_ptr<AlertLine>> alertLine;
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;
    OptElement<std::string> recogRuleType;

    TraversingVirtualPlane() = default;
    explicit TraversingVirtualPlane(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        field("enableDualVca", r.enableDualVca);
        field("alertlineNum", r.alertlineNum);
        field("alertlineID", r.alertlineID);
        field("AlertLine", r.alertLine, as::repeated);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("recogRuleType", r.recogRuleType);
    }
};

/// One region whose intrusion is detected.
struct CAPABILITYSET_API Intrusiongion : ElementRecord<Intrusiongion>
{
    int id = 0;
    MinMaxElement regionNum;
    MinMaxElement duration;
    MinMaxElement sensitivityLevel;
    MinMaxElement rate;

    Intrusiongion() = default;
    explicit Intrusiongion(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("regionNum", r.regionNum);
        field("duration", r.duration);
        field("sensitivityLevel", r.sensitivityLevel);
        field("rate", r.rate);
    }
};

/// Region intrusion.
struct CAPABILITYSET_API FieldDetection : ElementRecord<FieldDetection>
{
    bool enable = false;
    OptElement<std::string> enableDualVca;
    unsigned int intrusiongionNum = 0;
    MinMaxElement intrusiongionID;
    std::vector<std::shared_ptr<Intrusiongion>> intrusiongion;
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;

    FieldDetection() = default;
    explicit FieldDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        field("enableDualVca", r.enableDualVca);
        // Kept: devices spell it so, here and below.
        field("intrusiongionNum", r.intrusiongionNum);
        field("intrusiongionID", r.intrusiongionID);
        field("Intrusiongion", r.intrusiongion, as::repeated);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
    }
};

/// Defocus of the lens.
struct CAPABILITYSET_API DefousDetection : ElementRecord<DefousDetection>
{
    bool enable = false;
    std::vector<AlarmHandleType::HandleType> alarmHandleType;
    MinMaxElement sensitivityLevel;

    DefousDetection() = default;
    explicit DefousDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("sensitivityLevel", r.sensitivityLevel);
    }
};

/// Change of the scene.
struct CAPABILITYSET_API SceneChangeDetection : ElementRecord<SceneChangeDetection>
{
    bool enable = false;
    MinMaxElement sensitiveLevel;
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;
    bool sceneChangeDetectionRecord = false;

    SceneChangeDetection() = default;
    explicit SceneChangeDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        // Kept: devices name it differently from the other events.
        field("sensitiveLevel", r.sensitiveLevel);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("sceneChangeDetectionRecord", r.sceneChangeDetectionRecord, as::textFlag);
    }
};

/// Reactions to content analysis.
struct CAPABILITYSET_API VCADetection : ElementRecord<VCADetection>
{
    bool enable = false;
    unsigned int alarmTime = 0;  ///< seconds
    std::vector<AlarmHandleType::HandleType> alarmHandleType;
    bool preset = false;
    bool cruise = false;
    bool ptzTrack = false;

    VCADetection() = default;
    explicit VCADetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("preset", r.preset, as::textFlag);
        field("cruise", r.cruise, as::textFlag);
        field("ptzTrack", r.ptzTrack, as::textFlag);
    }
};

/// The event ability document of a channel.
struct CAPABILITYSET_API EventAbility : CBaseCapability
{
    static constexpr const char* kRoot = "EventAbility";

    unsigned int channelNO = 0;
    ExceptionAlarm exceptionAlarm;
    AlarmIn alarmIn;
    AlarmOut alarmOut;
    FaceDetection faceDetection;
    Track track;
    VoiceDetection voiceDetection;
    TraversingVirtualPlane traversingVirtualPlane;
    FieldDetection fieldDetection;
    DefousDetection defousDetection;
    SceneChangeDetection sceneChangeDetection;
    VCADetection vcaDetection;

    EventAbility() = default;
    explicit EventAbility(const std::string& text) { Parse(text); }
    explicit EventAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document, root "EventAbility".
    void Parse(const std::string& text);
    void Parse(_xmlNode* element);

    /// Asks for a channel. True when the device answered; `out.capable` is not examined.
    static bool GetEventAbility(EventAbility& out, unsigned int& err, const int userID,
                                const unsigned int channel);

    /// Remembers for the process how a channel tracks, under two texts of the caller's choice and
    /// the channel. The first record saved for a key is kept. Returns true. The memory has no
    /// lock: callers keep saves and reads from overlapping.
    static bool SaveTrackAbility(const Track& track, const std::string& key1,
                                 const std::string& key2, unsigned int channel);
    /// The remembered record; false, with `out` left alone, when none was saved for the key.
    static bool GetTrackAbility(Track& out, const std::string& key1, const std::string& key2,
                                unsigned int channel);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("channelNO", r.channelNO, as::quiet);
        field("ExceptionAlarm", r.exceptionAlarm);
        field("AlarmIn", r.alarmIn);
        field("AlarmOut", r.alarmOut);
        field("FaceDetection", r.faceDetection);
        field("Track", r.track);
        field("VoiceDetection", r.voiceDetection);
        field("TraversingVirtualPlane", r.traversingVirtualPlane);
        field("FieldDetection", r.fieldDetection);
        // Kept: devices spell it this way.
        field("DefousDetection", r.defousDetection);
        field("SceneChangeDetection", r.sceneChangeDetection);
        field("VCADetection", r.vcaDetection);
    }
};

}  // namespace CapabilitySet
