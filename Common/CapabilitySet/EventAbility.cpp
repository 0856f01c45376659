// What a channel can detect and how it can react.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventAbility.h"

#include <limits>

#include "CapabilitySet/private/KeepFirstCache.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/ElementRecordMembers.h"

namespace CapabilitySet
{
namespace option_codes
{

// Kept: clients rely on these numbers, on the gap at 10, and on the spelling "POEPowe".
constexpr OptionCodes::Entry kExceptionTypesEntries[] = {{"diskFull", 0},
                                                         {"diskError", 1},
                                                         {"nicBroken", 2},
                                                         {"ipConflict", 3},
                                                         {"illAccess", 4},
                                                         {"videoMismatch", 5},
                                                         {"badVideo", 6},
                                                         {"recordingFailure", 7},
                                                         {"raid", 8},
                                                         {"resolutionMismatch", 9},
                                                         {"spareException", 11},
                                                         {"temperatureException", 12},
                                                         {"subsystemException", 13},
                                                         {"fanException", 14},
                                                         {"POEPoweException", 15}};
constinit const OptionCodes kExceptionTypes{"ExceptionType", kExceptionTypesEntries};
constexpr OptionCodes::Entry kPulseDurationsEntries[] = {
    {"5", 0}, {"10", 1}, {"30", 2}, {"60", 3}, {"120", 4}, {"300", 5}, {"600", 6}, {"manual", 7}};
constinit const OptionCodes kPulseDurations{"PulseDuration", kPulseDurationsEntries};
constexpr OptionCodes::Entry kTrackTypesEntries[] = {
    {"normalTrack", 0}, {"highSpeedRoadTrack", 1}, {"urbanRoadTrack", 2}};
constinit const OptionCodes kTrackTypes{"trackType", kTrackTypesEntries};
constexpr OptionCodes::Entry kAudioModesEntries[] = {
    {"sensitivityDetection", 0}, {"thresholdDetection", 1}, {"all", 2}};
constinit const OptionCodes kAudioModes{"audioMode", kAudioModesEntries};
constexpr OptionCodes::Entry kCrossDirectionsEntries[] = {
    {"bothway", 0}, {"leftToRight", 1}, {"rightToLeft", 2}};
constinit const OptionCodes kCrossDirections{"crossDirection", kCrossDirectionsEntries};

}  // namespace option_codes

namespace
{

using TrackCache = KeepFirstCache<unsigned int, Track>;

TrackCache& TrackAbilities()
{
    static TrackCache cache;
    return cache;
}

void ReadEvents(EventAbility& events, xmlNode* firstChild)
{
    // Kept: devices send -1 for "no channel", which does not count as an answer.
    constexpr unsigned int kNoChannel = std::numeric_limits<unsigned int>::max();
    xml::FieldReader<EventAbility> reader(firstChild);
    EventAbility::Fields(events, reader);
    if (reader.Read() || (reader.Found("channelNO") && events.channelNO != kNoChannel)) {
        events.capable = true;
    }
}

}  // namespace

template struct ElementRecord<ExceptionAlarm>;
template struct ElementRecord<AlarmIn>;
template struct ElementRecord<AlarmOut>;
template struct ElementRecord<FaceDetection>;
template struct ElementRecord<ManualTrace>;
template struct ElementRecord<Track>;
template struct ElementRecord<AudioSteepDrop>;
template struct ElementRecord<Abnormal>;
template struct ElementRecord<VoiceDetection>;
template struct ElementRecord<AlertLine>;
template struct ElementRecord<TraversingVirtualPlane>;
template struct ElementRecord<Intrusiongion>;
template struct ElementRecord<FieldDetection>;
template struct ElementRecord<DefousDetection>;
template struct ElementRecord<SceneChangeDetection>;
template struct ElementRecord<VCADetection>;

void EventAbility::Parse(const std::string& text)
{
    xml::WithRoot(text, kRoot, CAPABILITYSET_HERE,
                  [this](xmlNode* root) { ReadEvents(*this, root->children); });
}

void EventAbility::Parse(_xmlNode* element)
{
    if (element != nullptr) {
        xml::EndAtException([&] { ReadEvents(*this, element->children); });
    }
}

bool EventAbility::GetEventAbility(EventAbility& out, unsigned int& err, const int userID,
                                   const unsigned int channel)
{
    static constexpr query::Policy kPolicy{
        .growth = query::kDeviceAbility.growth,
        .limit = query::LimitReport::TraceAndTag,
        .limitTag = "[DWN]",
        // Kept: support staff search logs for this call, which is not the one made.
        .failedCall = "NET_ORB_STDXMLConfig"};
    return query::AskDeviceAbility(
        out, err, userID, CAPABILITYSET_HERE, 17, [&] { return query::ChannelXml(kRoot, channel); },
        kPolicy);
}

bool EventAbility::SaveTrackAbility(const Track& track, const std::string& key1,
                                    const std::string& key2, unsigned int channel)
{
    return TrackAbilities().Save(track, key1, key2, channel);
}

bool EventAbility::GetTrackAbility(Track& out, const std::string& key1, const std::string& key2,
                                   unsigned int channel)
{
    return TrackAbilities().Get(out, key1, key2, channel);
}

}  // namespace CapabilitySet
