// Audio detection of a channel and the library of known sounds.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonCap/AudioCap.h"

namespace CapabilitySet
{

/// Audio detection of a channel. To change it: read it, edit `root`, set it.
struct CAPABILITYSET_API CAudioDectionCfg : JsonTree<CAudioDectionCfg>
{
    CAudioDectionCfg() = default;
    explicit CAudioDectionCfg(const std::string& text) { Parse(text); }
};

/// A detected sound.
struct CAPABILITYSET_API AudioLibSource
{
    std::string UUID;  ///< identifier from the detection's result

    /// Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("UUID", r.UUID);
    }
};

/// A place in the audio library; ImportAudioLibCap lists the limits.
struct CAPABILITYSET_API AudioLibDestination : AudioLibPlace<std::string>
{
    /// Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& value);
};

/// A detected sound to import, and its place in the library.
struct CAPABILITYSET_API AudioImportAudioLibData : JsonRecord<AudioImportAudioLibData>
{
    static constexpr const char* kKey = "ImportAudioLib";

    AudioLibSource SourceData;            ///< the sound
    AudioLibDestination DestinationData;  ///< its place in the library

    AudioImportAudioLibData() = default;
    explicit AudioImportAudioLibData(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("SourceData", r.SourceData);
        field("DestinationData", r.DestinationData);
    }
};

/// The result of an import.
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
