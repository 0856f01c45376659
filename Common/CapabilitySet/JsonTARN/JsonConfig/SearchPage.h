// What searches have in common: the page that is asked for, and what the answer says of it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// The page of a search that a description asks for.
struct CAPABILITYSET_API SearchPage
{
    std::string searchID;          ///< of the client's choice, the same for all pages of one search
    int searchResultPosition = 0;  ///< index of the first result wanted, from 0
    int maxResults = 0;            ///< how many results the page may hold

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("searchID", r.searchID);
        field("searchResultPosition", r.searchResultPosition);
        field("maxResults", r.maxResults);
    }
};

/// What an answer says of its page.
struct CAPABILITYSET_API SearchResultPage
{
    /// Some devices answer a search without a key around the result.
    static constexpr bool kMayLackKey = true;

    std::string responseStatusStrg;  ///< "OK", "MORE" when further pages follow, "NO MATCH"
    int numOfMatches = 0;            ///< results in this page
    int totalMatches = 0;            ///< results in all pages together
    int progress = 0;                ///< of the search on the device, percent

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("responseStatusStrg", r.responseStatusStrg);
        field("numOfMatches", r.numOfMatches);
        field("totalMatches", r.totalMatches);
        field("progress", r.progress);
    }
};

}  // namespace CapabilitySet
