// Lists in XML documents: picks pages of them and replaces single items.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Device/manifest/Profile.h"

namespace Device
{

/// The document with only the items of the page that `search` asks for. The elements "searchID",
/// "responseStatusStrg", "numOfMatches" and "totalMatches" are filled in where they exist. The page
/// starts at 0 and contains everything unless the search says otherwise.
std::string MakePage(const std::string& document, const Paging& paging, std::string_view search);

/// The document with its items replaced by those in `changes` that have the same text in their
/// child `key`. New items are appended.
std::string MergeItems(const std::string& document, std::string_view changes, std::string_view item,
                       std::string_view key);

}  // namespace Device
