// What a device can do with sounds: searching detected ones, importing libraries of them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"

namespace CapabilitySet
{

/// Searching detected sounds.
struct CAPABILITYSET_API AudioDetectionSearchCapability : JsonTree<AudioDetectionSearchCapability>
{
    AudioDetectionSearchCapability() = default;
    explicit AudioDetectionSearchCapability(const std::string& text) { Parse(text); }
};

/// What names the sounds to import.
struct CAPABILITYSET_API AudioImportSourceCap : JsonPart<AudioImportSourceCap>
{
    JsonTextLimits UUID;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("UUID", r.UUID);
    }
};

/// Where an imported sound goes, and under which names: of a capability, or of a request.
template <class Member>
struct AudioLibPlace
{
    Member audioLibID;
    Member audioSampleID;
    Member audioID;
    Member sampleName;
    Member sampleType;

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

/// What can be told of such a place.
struct CAPABILITYSET_API AudioImportDestinationCap : JsonPart<AudioImportDestinationCap>,
                                                     AudioLibPlace<JsonTextLimits>
{
};

/// Importing sounds into a library.
struct CAPABILITYSET_API ImportAudioLibCap : JsonRecord<ImportAudioLibCap>
{
    static constexpr const char* kKey = "ImportAudioLibCap";
    static constexpr bool kMayLackKey = true;

    AudioImportSourceCap SourceData;
    AudioImportDestinationCap DestinationData;

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
