// What goes to a device and what comes back: requests, responses, and bodies made while sent.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>

namespace Device
{

/// One request to a device, over HTTP or in this process.
struct Request
{
    std::string method;  ///< "GET", "PUT", "POST" or "DELETE"
    std::string target;  ///< path and query; the path is already percent-decoded
    std::string body;
};

/// A body that is produced while it is sent, so it may be larger than memory.
class BodySource
{
public:
    BodySource() = default;
    BodySource(const BodySource&) = delete;
    BodySource& operator=(const BodySource&) = delete;
    virtual ~BodySource() = default;

    /// The total number of bytes.
    [[nodiscard]] virtual std::uint64_t Size() const = 0;
    /// Writes the next `count` bytes, or fewer at the end, and returns how many.
    virtual size_t Read(char* to, size_t count) = 0;
};

/// A device's answer.
struct Response
{
    int status = 200;         ///< HTTP status; 4xx and 5xx are refusals
    std::string contentType;  ///< such as "application/xml"
    std::string body = {};
    std::shared_ptr<BodySource> source = nullptr;  ///< if set, sent instead of `body`
    std::set<std::string> allowed = {};            ///< with status 405: the methods of the path
};

}  // namespace Device
