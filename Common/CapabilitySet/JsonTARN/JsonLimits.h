// Limits and options of a JSON capability member.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The keys "@min", "@max", "@def" and "@opt" of a member. A missing key reads as 0 or empty.
template <class Limit, class Default>
struct CAPABILITYSET_API JsonLimitsOf : JsonPart<JsonLimitsOf<Limit, Default>>
{
    Limit min{};                   ///< "@min": lower limit
    Limit max{};                   ///< "@max": upper limit
    Default def{};                 ///< "@def": default
    std::vector<std::string> opt;  ///< "@opt": options, in the device's order

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("@min", r.min);
        field("@max", r.max);
        field("@def", r.def);
        field("@opt", r.opt);
    }
};

/// Limits of a number.
using JsonLimits = JsonLimitsOf<int, int>;
/// Limits of a text: its length, and its default.
using JsonTextLimits = JsonLimitsOf<int, std::string>;
/// Limits of a time, as the device writes times.
using JsonTimeLimits = JsonLimitsOf<std::string, std::string>;

}  // namespace CapabilitySet
