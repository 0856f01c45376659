// Which part of a list a client gets that asks for it page by page.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>

namespace Device
{

/// One page of a list.
struct Page
{
    size_t first;        ///< index of its first item
    size_t count;        ///< number of its items
    const char* status;  ///< "MORE" when items follow, "NO MATCHES" when the list is empty, "OK"
};

/// The page at a position, of at most so many items.
inline Page PageOf(size_t total, size_t position, size_t most)
{
    const size_t first = std::min(total, position);
    const size_t count = std::min(total - first, most);
    return {first, count, total == 0 ? "NO MATCHES" : first + count < total ? "MORE" : "OK"};
}

}  // namespace Device
