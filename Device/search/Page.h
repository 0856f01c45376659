// One page of a list.
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
    const char* status;  ///< "MORE" if items follow, "NO MATCHES" if the list is empty, else "OK"
};

/// The page at a position, with at most `most` items.
inline Page PageOf(size_t total, size_t position, size_t most)
{
    const size_t first = std::min(total, position);
    const size_t count = std::min(total - first, most);
    return {first, count, total == 0 ? "NO MATCHES" : first + count < total ? "MORE" : "OK"};
}

}  // namespace Device
