// What libcurl's failures mean.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <curl/curl.h>

#include <string>
#include <string_view>

namespace PelNet
{

/// A failed transfer as the interface reports it.
struct HttpFault
{
    unsigned error = 0;  ///< NET_ORB_ number
    std::string detail;  ///< for a person
};

/// What libcurl's number amounts to. `text` is libcurl's own about it; `wasSent` tells whether a
/// request had left. `handle` is the transfer's. Throws std::bad_alloc.
[[nodiscard]] HttpFault JudgeTransfer(CURL* handle, CURLcode code, std::string_view text,
                                      bool wasSent);

}  // namespace PelNet
