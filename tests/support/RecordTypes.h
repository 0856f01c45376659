// A list of record types that tests walk.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace TestSupport
{

template <class... Records>
struct RecordTypes
{
    /// Calls `visit.operator()<Record>()` for each.
    template <class Visit>
    static void ForEach(Visit&& visit)
    {
        (visit.template operator()<Records>(), ...);
    }
};

}  // namespace TestSupport
