// Lists in XML documents: pages of them for searches, items of them replaced one by one.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Device/Profile.h"

namespace Device
{

/// One page of a list.
struct Page
{
    size_t first;        ///< index of its first item
    size_t count;        ///< number of its items
    const char* status;  ///< "MORE" when items follow, "NO MATCHES" when the list is empty, "OK"
};

Page PageOf(size_t total, int position, int size);

/// The part of a document that a search asks for: of the items only those of the page, and the
/// page's figures in its own "searchID", "responseStatusStrg", "numOfMatches" and "totalMatches"
/// where the document has them. Numbers that the search does not tell are 0 and everything.
std::string MakePage(const std::string& document, const Paging& paging, std::string_view search);

/// The document with those of its items replaced that `changes` holds too, told apart by the text
/// of their child `key`. Items that only `changes` holds follow the document's own.
std::string MergeItems(const std::string& document, std::string_view changes, std::string_view item,
                       std::string_view key);

}  // namespace Device
