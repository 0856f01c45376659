// Faults that the device's server commits on request, for testing clients.
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
    Delay,         ///< waits `interval` before answering
    Drip,          ///< sends `bytes` of the answer every `interval`
    Truncate,      ///< closes the connection after `bytes` of the announced length
    Stall,         ///< stops after `bytes` for `interval` (0: until the client or the server gives
                   ///< up), then closes the connection
    Reset,         ///< resets the connection instead of answering
    Unauthorized,  ///< answers 401 with a fresh challenge, whatever the credentials
    StaleNonce,    ///< answers 401 as if the nonce had expired, whatever the credentials
    ServerError,   ///< answers `httpStatus` with an HTML page
    Oversize,      ///< appends `bytes` blanks to the answer
    Refuse,        ///< answers with the status document of `subStatusCode`
};

/// A fault and the requests it strikes. Several faults may strike the same request. Requests with
/// wrong credentials are struck by `Unauthorized` only.
struct Fault
{
    FaultKind kind = FaultKind::Delay;
    std::string pathPrefix = {};  ///< start of the paths; empty: all
    unsigned int times = 0;       ///< number of requests, from the first one on; 0: all
    std::chrono::milliseconds interval{0};
    std::uint64_t bytes = 0;
    int httpStatus = 503;                      ///< 500 to 599
    std::string subStatusCode = "deviceBusy";  ///< one of StatusDocument.h
};

/// How many requests a fault has changed. An answer that is too short to be truncated, for example,
/// does not count.
using FaultCounter = std::shared_ptr<std::atomic<std::uint64_t>>;

/// All faults that strike one request.
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

    /// Counts the faults of a kind, once per request. Called when they take effect.
    void Strike(FaultKind kind);

    std::vector<std::pair<FaultKind, FaultCounter>> uncounted;
};

/// Plans and counts faults. Any thread may use it.
class FaultPlanner
{
public:
    /// Replaces all faults and resets the counts.
    void Set(std::vector<Fault> faults);

    FaultPlan Plan(std::string_view path, bool authorized);

    /// How often each fault struck, in order.
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

/// Returns a message if the fault makes no sense.
std::string CheckFault(const Fault& fault);

}  // namespace Device
