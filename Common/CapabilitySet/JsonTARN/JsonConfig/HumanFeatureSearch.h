// Searching by human features: the search's task, its progress, its results.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// The task that compares captures with libraries. What else the device says of it stands in
/// `root`.
struct CAPABILITYSET_API HFPDCaptureLibCollisionTask : JsonRecord<HFPDCaptureLibCollisionTask>
{
    static constexpr const char* kKey = "";

    std::string taskID;  ///< a number in decimal: names the task in all that follows

    HFPDCaptureLibCollisionTask() = default;
    explicit HFPDCaptureLibCollisionTask(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("taskID", r.taskID);
    }
};

/// How much of a task is done; sent as an object with "value" or as the bare number.
struct CAPABILITYSET_API HFPDProgress
{
    bool present = false;
    int value = 0;  ///< percent

    /// Null reads nothing. Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& progress);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("value", r.value);
    }
};

/// How far a search task is.
struct CAPABILITYSET_API HFPDSearchProgress : JsonRecord<HFPDSearchProgress>
{
    static constexpr const char* kKey = "";

    HFPDProgress progress;

    HFPDSearchProgress() = default;
    explicit HFPDSearchProgress(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("progress", r.progress);
    }
};

/// What a search task has found. The matches stand in `root`.
struct CAPABILITYSET_API HFPDSearchFaceResult : JsonRecord<HFPDSearchFaceResult>, SearchResultPage
{
    static constexpr const char* kKey = "HFPDSearchFaceResult";

    HFPDSearchFaceResult() = default;
    explicit HFPDSearchFaceResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
