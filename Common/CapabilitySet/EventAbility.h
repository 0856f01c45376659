// What a channel can detect and how it can react. Queries.h describes the query.
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

// A record is capable once an element was read or a nested record is capable.

/// Tables that convert option strings to codes. Unknown options are logged and skipped.
namespace option_codes
{

/// "diskFull" 0, "diskError" 1, "nicBroken" 2, "ipConflict" 3, "illAccess" 4, "videoMismatch" 5,
/// "badVideo" 6, "recordingFailure" 7, "raid" 8, "resolutionMismatch" 9, "spareException" 11,
/// "temperatureException" 12, "subsystemException" 13, "fanException" 14, "POEPoweException" 15.
extern CAPABILITYSET_API const OptionCodes kExceptionTypes;
/// Seconds: "5" 0, "10" 1, "30" 2, "60" 3, "120" 4, "300" 5, "600" 6, and "manual" 7.
extern CAPABILITYSET_API const OptionCodes kPulseDurations;
/// "normalTrack" 0, "highSpeedRoadTrack" 1, "urbanRoadTrack" 2.
extern CAPABILITYSET_API const OptionCodes kTrackTypes;
/// "sensitivityDetection" 0, "thresholdDetection" 1, "all" 2.
extern CAPABILITYSET_API const OptionCodes kAudioModes;
/// "bothway" 0, "leftToRight" 1, "rightToLeft" 2.
extern CAPABILITYSET_API const OptionCodes kCrossDirections;

}  // namespace option_codes

/// Device faults and the reactions to them.
struct CAPABILITYSET_API ExceptionAlarm : ElementRecord<ExceptionAlarm>
{
    std::vector<int> exceptionType;  ///< faults, codes of option_codes::kExceptionTypes
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers

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
    unsigned int alarmTime = 0;  ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers

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
    unsigned int alarmTime = 0;      ///< a count; the device defines its unit
    std::vector<int> pulseDuration;  ///< pulse lengths, codes of option_codes::kPulseDurations

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
    bool detectFaceEnable = false;      ///< detection can be enabled
    MinMaxElement detectFaceSensitive;  ///< range of the sensitivity
    unsigned int alarmTime = 0;         ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers
    bool triggerRecord = false;                                ///< detection can start a recording

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

/// Manual tracking.
struct CAPABILITYSET_API ManualTrace : ElementRecord<ManualTrace>
{
    bool enabled = false;        ///< manual tracking is available
    std::vector<int> trackType;  ///< kinds of track, codes of option_codes::kTrackTypes

    ManualTrace() = default;
    explicit ManualTrace(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled, as::textFlag);
        field("trackType", r.trackType, as::Codes{option_codes::kTrackTypes});
    }
};

/// Tracking of moving targets.
struct CAPABILITYSET_API Track : ElementRecord<Track>
{
    bool trackEnable = false;            ///< tracking can be enabled; see Fields
    bool stopTrackWhenFindFace = false;  ///< always false after reading; see Fields
    MinMaxElement stopTrackThreshold;    ///< range of the threshold that stops tracking
    ManualTrace manualTrace;             ///< manual tracking

    Track() = default;
    explicit Track(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("trackEnable", r.trackEnable, as::firstOption);
        // Kept: clients rely on this element overwriting trackEnable; its own member stays false.
        field("stopTrackWhenFindFace", r.trackEnable, as::firstOption);
        field("stopTrackThreshold", r.stopTrackThreshold, as::attributes);
        field("ManualTrace", r.manualTrace);
    }
};

/// Sudden drop of the sound level.
struct CAPABILITYSET_API AudioSteepDrop : ElementRecord<AudioSteepDrop>
{
    OptElement<std::string> enable;  ///< options of the switch
    MinMaxElement sensitivityLevel;  ///< range of the sensitivity

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
    MinMaxElement sensitivityLevel;  ///< range of the sensitivity
    std::vector<int> audioMode;      ///< detection modes, codes of option_codes::kAudioModes
    bool enable = false;             ///< detection can be enabled
    MinMaxElement threshold;         ///< range of the sound threshold

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
    bool enable = false;         ///< detection can be enabled
    Abnormal abnormal;           ///< abnormal sound
    unsigned int alarmTime = 0;  ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers
    AudioSteepDrop audioSteepDrop;                             ///< sudden drop of the sound level

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

/// One line for crossing detection.
struct CAPABILITYSET_API AlertLine : ElementRecord<AlertLine>
{
    int id = 0;                       ///< line number
    std::vector<int> crossDirection;  ///< directions, codes of option_codes::kCrossDirections
    MinMaxElement sensitivityLevel;   ///< range of the sensitivity

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

/// Line crossing detection.
struct CAPABILITYSET_API TraversingVirtualPlane : ElementRecord<TraversingVirtualPlane>
{
    bool enable = false;                                ///< detection can be enabled
    OptElement<std::string> enableDualVca;              ///< options of the dual analysis switch
    unsigned int alertlineNum = 0;                      ///< number of lines
    MinMaxElement alertlineID;                          ///< range of the line numbers
    std::vector<std::shared_ptr<AlertLine>> alertLine;  ///< the lines
    unsigned int alarmTime = 0;                         ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers
    OptElement<std::string> recogRuleType;  ///< recognition rules the device offers

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

/// One region for intrusion detection.
struct CAPABILITYSET_API Intrusiongion : ElementRecord<Intrusiongion>
{
    int id = 0;                      ///< region number
    MinMaxElement regionNum;         ///< range of "regionNum", as the device defines it
    MinMaxElement duration;          ///< range of the time a target must stay
    MinMaxElement sensitivityLevel;  ///< range of the sensitivity
    MinMaxElement rate;              ///< range of "rate", as the device defines it

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

/// Region intrusion detection.
struct CAPABILITYSET_API FieldDetection : ElementRecord<FieldDetection>
{
    bool enable = false;                    ///< detection can be enabled
    OptElement<std::string> enableDualVca;  ///< options of the dual analysis switch
    unsigned int intrusiongionNum = 0;      ///< number of regions
    MinMaxElement intrusiongionID;          ///< range of the region numbers
    std::vector<std::shared_ptr<Intrusiongion>> intrusiongion;  ///< the regions
    unsigned int alarmTime = 0;  ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers

    FieldDetection() = default;
    explicit FieldDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        field("enableDualVca", r.enableDualVca);
        // Kept: devices spell it this way, here and below.
        field("intrusiongionNum", r.intrusiongionNum);
        field("intrusiongionID", r.intrusiongionID);
        field("Intrusiongion", r.intrusiongion, as::repeated);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
    }
};

/// Defocus detection.
struct CAPABILITYSET_API DefousDetection : ElementRecord<DefousDetection>
{
    bool enable = false;                                       ///< detection can be enabled
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers
    MinMaxElement sensitivityLevel;                            ///< range of the sensitivity

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

/// Scene change detection.
struct CAPABILITYSET_API SceneChangeDetection : ElementRecord<SceneChangeDetection>
{
    bool enable = false;           ///< detection can be enabled
    MinMaxElement sensitiveLevel;  ///< range of the sensitivity
    unsigned int alarmTime = 0;    ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers
    bool sceneChangeDetectionRecord = false;                   ///< detection can start a recording

    SceneChangeDetection() = default;
    explicit SceneChangeDetection(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enable", r.enable, as::firstOption);
        // Kept: devices do not call it "sensitivityLevel" here.
        field("sensitiveLevel", r.sensitiveLevel);
        field("alarmTime", r.alarmTime);
        field("alarmHandleType", r.alarmHandleType, as::handleTypes);
        field("sceneChangeDetectionRecord", r.sceneChangeDetectionRecord, as::textFlag);
    }
};

/// Reactions to content analysis.
struct CAPABILITYSET_API VCADetection : ElementRecord<VCADetection>
{
    bool enable = false;         ///< analysis can be enabled
    unsigned int alarmTime = 0;  ///< a count; the device defines its unit
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers
    bool preset = false;                                       ///< can call a preset
    bool cruise = false;                                       ///< can start a patrol
    bool ptzTrack = false;                                     ///< can start PTZ tracking

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

/// The event ability document of a channel, root "EventAbility".
struct CAPABILITYSET_API EventAbility : CBaseCapability
{
    static constexpr const char* kRoot = "EventAbility";

    unsigned int channelNO = 0;                     ///< channel the document is about
    ExceptionAlarm exceptionAlarm;                  ///< device faults
    AlarmIn alarmIn;                                ///< alarm inputs
    AlarmOut alarmOut;                              ///< alarm outputs
    FaceDetection faceDetection;                    ///< face detection
    Track track;                                    ///< tracking of moving targets
    VoiceDetection voiceDetection;                  ///< audio detection
    TraversingVirtualPlane traversingVirtualPlane;  ///< line crossing
    FieldDetection fieldDetection;                  ///< region intrusion
    DefousDetection defousDetection;                ///< defocus
    SceneChangeDetection sceneChangeDetection;      ///< scene change
    VCADetection vcaDetection;                      ///< reactions to content analysis

    EventAbility() = default;
    explicit EventAbility(const std::string& text) { Parse(text); }
    explicit EventAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

    /// Device ability 17, EventAbility/channelNO. True even if the document could not be read.
    static bool GetEventAbility(EventAbility& out, unsigned int& err, const int userID,
                                const unsigned int channel);

    /// Caches for the process how a channel tracks. The key is the channel and two texts of the
    /// caller's choice. The first record saved for a key is kept. Always returns true. No lock: the
    /// caller must not let cache calls overlap.
    static bool SaveTrackAbility(const Track& track, const std::string& key1,
                                 const std::string& key2, unsigned int channel);
    /// The cached record. False, with `out` unchanged, if none was saved for the key.
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
