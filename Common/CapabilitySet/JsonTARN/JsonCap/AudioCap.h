// Capabilities for sounds: searching detected ones, importing them into a library.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"

namespace CapabilitySet
{

/// Search for detected sounds.
struct CAPABILITYSET_API AudioDetectionSearchCapability : JsonTree<AudioDetectionSearchCapability>
{
    AudioDetectionSearchCapability() = default;
    explicit AudioDetectionSearchCapability(const std::string& text) { Parse(text); }
};

/// How the sound to import is named.
struct CAPABILITYSET_API AudioImportSourceCap : JsonPart<AudioImportSourceCap>
{
    JsonTextLimits UUID;  ///< limits of the sound's identifier

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("UUID", r.UUID);
    }
};

/// A place in the audio library: its limits in a capability, its values in a request.
template <class Member>
struct AudioLibPlace
{
    Member audioLibID;     ///< the library
    Member audioSampleID;  ///< the sample
    Member audioID;        ///< the sound
    Member sampleName;     ///< name of the sample
    Member sampleType;     ///< kind of sound, such as "glassBreak"

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("audioLibID", r.audioLibID);
        field("audioSampleID", r.audioSampleID);
        field("audioID", r.audioID);
        field("sampleName", r.sampleName);
        field("sampleType", r.sampleType);
    }
};

/// Limits of a place in the library.
struct CAPABILITYSET_API AudioImportDestinationCap : JsonPart<AudioImportDestinationCap>,
                                                     AudioLibPlace<JsonTextLimits>
{
};

/// Import of detected sounds into a library.
struct CAPABILITYSET_API ImportAudioLibCap : JsonRecord<ImportAudioLibCap>
{
    static constexpr const char* kKey = "ImportAudioLibCap";
    static constexpr bool kMayLackKey = true;

    AudioImportSourceCap SourceData;            ///< the sound
    AudioImportDestinationCap DestinationData;  ///< its place in the library

    ImportAudioLibCap() = default;
    explicit ImportAudioLibCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("SourceData", r.SourceData);
        field("DestinationData", r.DestinationData);
    }
};

}  // namespace CapabilitySet
