// Lists in XML documents: pages of them for searches, items of them replaced one by one.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Device/Profile.h"

namespace Device
{

/// The part of a document that a search asks for: of the items only those of the page, and the
/// page's figures in its own "searchID", "responseStatusStrg", "numOfMatches" and "totalMatches"
/// where the document has them. Numbers that the search does not tell are 0 and everything.
std::string MakePage(const std::string& document, const Paging& paging, std::string_view search);

/// The document with those of its items replaced that `changes` holds too, told apart by the text
/// of their child `key`. Items that only `changes` holds follow the document's own.
std::string MergeItems(const std::string& document, std::string_view changes, std::string_view item,
                       std::string_view key);

}  // namespace Device
