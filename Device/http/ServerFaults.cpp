// Chooses the faults that strike a request.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/ServerFaults.h"

#include <utility>

#include "Device/message/StatusDocument.h"

namespace Device
{
namespace
{

void Add(const Fault& fault, FaultPlan& plan)
{
    switch (fault.kind) {
        case FaultKind::Delay:
            plan.delay += fault.interval;
            break;
        case FaultKind::Drip:
            plan.dripInterval = fault.interval;
            plan.dripBytes = fault.bytes;
            break;
        case FaultKind::Truncate:
            plan.truncateAt = fault.bytes;
            break;
        case FaultKind::Stall:
            plan.stallAt = fault.bytes;
            plan.stallTime = fault.interval;
            break;
        case FaultKind::Reset:
            plan.reset = true;
            break;
        case FaultKind::Unauthorized:
            plan.unauthorized = true;
            break;
        case FaultKind::StaleNonce:
            plan.staleNonce = true;
            break;
        case FaultKind::ServerError:
            plan.serverError = fault.httpStatus;
            break;
        case FaultKind::Oversize:
            plan.padding += fault.bytes;
            break;
        case FaultKind::Refuse:
            plan.refusal = fault.subStatusCode;
            break;
    }
}

}  // namespace

void FaultPlan::Strike(FaultKind kind)
{
    std::erase_if(uncounted, [kind](const auto& each) {
        const bool strikes = each.first == kind;
        *each.second += strikes ? 1 : 0;
        return strikes;
    });
}

void FaultPlanner::Set(std::vector<Fault> faults)
{
    std::vector<Active> active;
    active.reserve(faults.size());
    for (Fault& fault : faults) {
        active.push_back({std::move(fault)});
    }
    const std::lock_guard lock(mutex_);
    active_ = std::move(active);
}

FaultPlan FaultPlanner::Plan(std::string_view path, bool authorized)
{
    FaultPlan plan;
    const std::lock_guard lock(mutex_);
    for (Active& active : active_) {
        const Fault& fault = active.fault;
        if ((authorized || fault.kind == FaultKind::Unauthorized) &&
            path.starts_with(fault.pathPrefix) &&
            (fault.times == 0 || active.planned < fault.times)) {
            ++active.planned;
            Add(fault, plan);
            plan.uncounted.emplace_back(fault.kind, active.struck);
        }
    }
    return plan;
}

std::vector<std::uint64_t> FaultPlanner::Counts() const
{
    std::vector<std::uint64_t> counts;
    const std::lock_guard lock(mutex_);
    counts.reserve(active_.size());
    for (const Active& active : active_) {
        counts.push_back(*active.struck);
    }
    return counts;
}

std::string CheckFault(const Fault& fault)
{
    constexpr std::uint64_t kMaxPadding = std::uint64_t{1} << 32;
    if (fault.interval.count() < 0) {
        return "a fault's interval must not be negative";
    }
    if (fault.kind == FaultKind::Drip && fault.bytes == 0) {
        return "drip needs a number of bytes";
    }
    if (fault.kind == FaultKind::Oversize && fault.bytes > kMaxPadding) {
        return "oversize adds 4 GiB at most";
    }
    if (fault.kind == FaultKind::ServerError &&
        (fault.httpStatus < 500 || fault.httpStatus > 599)) {
        return "the status of a server error is 500 to 599";
    }
    if (fault.kind == FaultKind::Refuse && FindOutcome(fault.subStatusCode) == nullptr) {
        return "there is no refusal \"" + fault.subStatusCode + "\"";
    }
    return {};
}

}  // namespace Device
