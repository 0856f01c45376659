// What a device can do with sounds: searching detected ones, importing libraries of them.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/AudioCap.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<AudioImportSourceCap>;
template struct JsonPart<AudioImportDestinationCap>;

template struct JsonRecord<AudioDetectionSearchCapability>;
template struct JsonRecord<ImportAudioLibCap>;

}  // namespace CapabilitySet
