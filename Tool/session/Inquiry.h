// Asking a device for one record, and judging what came.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "Tool/Failure.h"
#include "Tool/record/RecordNames.h"
#include "Tool/session/SdkFailure.h"

namespace Tool
{

enum class Outcome
{
    Answered,
    Unsupported,  ///< the device does not know the record
    Failed,       ///< anything else, an answer that cannot be read among it
    NotAsked,     ///< the device was out of reach by then
};

/// What asking for a record gave.
struct Finding
{
    const RecordEntry* record = nullptr;
    Outcome outcome = Outcome::NotAsked;
    SdkFailure failure;    ///< means nothing for an Answered one
    std::string document;  ///< the device's document, empty when none came
    Reading reading;       ///< of an Answered one
};

/// Asks once. Never throws for what the device does.
Finding Inquire(const RecordEntry& record, int userID, const Selectors& selectors);

/// The finding as docs/capset.md describes it; with what the document held beside the record when
/// `explain` is set.
Json::Value ToJson(const Finding& finding, const std::string& device, bool explain);

/// {"path", "line", "reason"} of each.
Json::Value ToJson(const std::vector<Untaken>& untaken);

}  // namespace Tool
