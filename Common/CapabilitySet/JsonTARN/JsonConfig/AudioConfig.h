// Audio detection of a channel, and the library of sounds that detection knows.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonCap/AudioCap.h"

namespace CapabilitySet
{

/// Audio detection of a channel. Read it, change `root`, and set it.
struct CAPABILITYSET_API CAudioDectionCfg : JsonTree<CAudioDectionCfg>
{
    CAudioDectionCfg() = default;
    explicit CAudioDectionCfg(const std::string& text) { Parse(text); }
};

/// A detected sound.
struct CAPABILITYSET_API AudioLibSource
{
    std::string UUID;  ///< as the detection's result names it

    /// Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("UUID", r.UUID);
    }
};

/// A place in the audio library. Words are those that ImportAudioLibCap lists.
struct CAPABILITYSET_API AudioLibDestination : AudioLibPlace<std::string>
{
    /// Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& value);
};

/// Which detected sound to import, and where to.
struct CAPABILITYSET_API AudioImportAudioLibData : JsonRecord<AudioImportAudioLibData>
{
    static constexpr const char* kKey = "ImportAudioLib";

    AudioLibSource SourceData;
    AudioLibDestination DestinationData;

    AudioImportAudioLibData() = default;
    explicit AudioImportAudioLibData(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("SourceData", r.SourceData);
        field("DestinationData", r.DestinationData);
    }
};

/// What became of an import.
struct CAPABILITYSET_API AudioImportAudioLibResult : JsonTree<AudioImportAudioLibResult>
{
    AudioImportAudioLibResult() = default;
    explicit AudioImportAudioLibResult(const std::string& text) { Parse(text); }
};

/// The audio libraries of the device.
struct CAPABILITYSET_API AudioLibBaseConfig : JsonTree<AudioLibBaseConfig>
{
    AudioLibBaseConfig() = default;
    explicit AudioLibBaseConfig(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
