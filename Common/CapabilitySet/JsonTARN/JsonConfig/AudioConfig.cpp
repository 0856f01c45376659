// Audio detection of a channel, and the library of sounds that detection knows.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/AudioConfig.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<CAudioDectionCfg>;
template struct JsonRecord<AudioImportAudioLibData>;
template struct JsonRecord<AudioImportAudioLibResult>;
template struct JsonRecord<AudioLibBaseConfig>;

void AudioLibSource::Parse(const Json::Value& value)
{
    json::ReadFields(*this, value);
}

void AudioLibDestination::Parse(const Json::Value& value)
{
    json::ReadFields(*this, value);
}

}  // namespace CapabilitySet
