// Search by human features: its task, progress and results.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// The task that compares captured faces with libraries. `root` has the rest of the answer.
struct CAPABILITYSET_API HFPDCaptureLibCollisionTask : JsonRecord<HFPDCaptureLibCollisionTask>
{
    static constexpr const char* kKey = "";

    std::string taskID;  ///< task number in decimal, for the calls that follow

    HFPDCaptureLibCollisionTask() = default;
    explicit HFPDCaptureLibCollisionTask(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("taskID", r.taskID);
    }
};

/// Progress of a task, sent as an object with "value" or as a bare number.
struct CAPABILITYSET_API HFPDProgress
{
    bool present = false;  ///< the device sent the progress
    int value = 0;         ///< percent

    /// Null reads nothing. Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& progress);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("value", r.value);
    }
};

/// Progress of a search task.
struct CAPABILITYSET_API HFPDSearchProgress : JsonRecord<HFPDSearchProgress>
{
    static constexpr const char* kKey = "";

    HFPDProgress progress;  ///< the progress

    HFPDSearchProgress() = default;
    explicit HFPDSearchProgress(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("progress", r.progress);
    }
};

/// What a search task has found. The matches are in `root`.
struct CAPABILITYSET_API HFPDSearchFaceResult : JsonRecord<HFPDSearchFaceResult>, SearchResultPage
{
    static constexpr const char* kKey = "HFPDSearchFaceResult";

    HFPDSearchFaceResult() = default;
    explicit HFPDSearchFaceResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
