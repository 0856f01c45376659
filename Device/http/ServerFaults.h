// Faults that the device's server commits on request, so that clients can be tried against them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Device
{

enum class FaultKind
{
    Delay,         ///< waits `interval` before it answers
    Drip,          ///< sends `bytes` of the answer every `interval`
    Truncate,      ///< closes the connection after `bytes` of the announced length
    Stall,         ///< falls silent after `bytes` for `interval` (0: until the client or the server
                   ///< gives up), then closes the connection
    Reset,         ///< resets the connection instead of answering
    Unauthorized,  ///< answers 401 with a fresh challenge, whatever the credentials
    StaleNonce,    ///< answers 401 as if the nonce had grown old, whatever the credentials
    ServerError,   ///< answers `httpStatus` with a page instead of a document
    Oversize,      ///< adds `bytes` blanks behind the answer
    Refuse,        ///< answers the status document of `subStatusCode`
};

/// One fault and the requests it strikes. Several may strike the same request. Those with wrong
/// credentials are struck by `Unauthorized` alone.
struct Fault
{
    FaultKind kind = FaultKind::Delay;
    std::string pathPrefix = {};  ///< paths that begin so; empty: all
    unsigned int times = 0;       ///< the first so many of those requests; 0: all
    std::chrono::milliseconds interval{0};
    std::uint64_t bytes = 0;
    int httpStatus = 503;                      ///< 500 to 599
    std::string subStatusCode = "deviceBusy";  ///< a word of StatusDocument.h
};

/// How often a fault struck: requests that it changed, not those that it was only meant for. An
/// answer that is shorter than where it was to be cut counts nothing.
using FaultCounter = std::shared_ptr<std::atomic<std::uint64_t>>;

/// The faults that strike one request, put together.
struct FaultPlan
{
    std::chrono::milliseconds delay{0};
    std::chrono::milliseconds dripInterval{0};
    std::uint64_t dripBytes = 0;  ///< 0: no dripping
    std::optional<std::uint64_t> truncateAt;
    std::optional<std::uint64_t> stallAt;
    std::chrono::milliseconds stallTime{0};  ///< 0: no end
    std::uint64_t padding = 0;
    bool reset = false;
    bool unauthorized = false;
    bool staleNonce = false;
    std::optional<int> serverError;
    std::optional<std::string> refusal;

    /// Counts the faults of a kind, once for this request: they take effect now.
    void Strike(FaultKind kind);

    std::vector<std::pair<FaultKind, FaultCounter>> uncounted;
};

/// Hands out plans, and counts. Any thread may use it.
class FaultPlanner
{
public:
    /// Replaces all faults and starts counting anew.
    void Set(std::vector<Fault> faults);

    FaultPlan Plan(std::string_view path, bool authorized);

    /// How often each fault struck, in the order in which they were set.
    [[nodiscard]] std::vector<std::uint64_t> Counts() const;

private:
    struct Active
    {
        Fault fault;
        unsigned int planned = 0;
        FaultCounter struck = std::make_shared<std::atomic<std::uint64_t>>(0);
    };

    mutable std::mutex mutex_;
    std::vector<Active> active_;
};

/// Empty when the fault makes sense, otherwise a sentence about what is wrong with it.
std::string CheckFault(const Fault& fault);

}  // namespace Device
