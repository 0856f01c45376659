// The limits and options of a JSON capability member.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/JsonTARN/JsonRecord.h"

namespace CapabilitySet
{

/// The keys "@min", "@max", "@def" and "@opt" of a member; those that are missing are 0 or empty.
struct CAPABILITYSET_API JsonLimits : JsonPart<JsonLimits>
{
    int min = 0;
    int max = 0;
    int def = 0;
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

}  // namespace CapabilitySet
