// What all paged searches share: the page asked for and the page received.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// The page that a search asks for.
struct CAPABILITYSET_API SearchPage
{
    std::string searchID;          ///< chosen by the client, the same for all pages of a search
    int searchResultPosition = 0;  ///< index of the first result wanted, from 0
    int maxResults = 0;            ///< page size

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("searchID", r.searchID);
        field("searchResultPosition", r.searchResultPosition);
        field("maxResults", r.maxResults);
    }
};

/// What an answer says about its page.
struct CAPABILITYSET_API SearchResultPage
{
    /// Some devices send the result without a key around it.
    static constexpr bool kMayLackKey = true;

    std::string responseStatusStrg;  ///< "OK", "MORE" if pages follow, "NO MATCH"
    int numOfMatches = 0;            ///< results in this page
    int totalMatches = 0;            ///< results in all pages
    int progress = 0;                ///< progress of the search on the device, percent

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
