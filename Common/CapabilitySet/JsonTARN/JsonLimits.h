// The limits and options of a JSON capability member.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The keys "@min", "@max", "@def" and "@opt" of a member; those that are missing are 0 or empty.
template <class Limit, class Default>
struct CAPABILITYSET_API JsonLimitsOf : JsonPart<JsonLimitsOf<Limit, Default>>
{
    Limit min{};
    Limit max{};
    Default def{};
    std::vector<std::string> opt;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("@min", r.min);
        field("@max", r.max);
        field("@def", r.def);
        field("@opt", r.opt);
    }
};

/// Of a number.
using JsonLimits = JsonLimitsOf<int, int>;
/// Of a text: how long it is, and what it is unless told.
using JsonTextLimits = JsonLimitsOf<int, std::string>;
/// Of a time; limits and default are as the device writes them.
using JsonTimeLimits = JsonLimitsOf<std::string, std::string>;

}  // namespace CapabilitySet
