// Sessions and the table of user IDs.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Session.h"

#include <algorithm>
#include <numeric>

namespace PelNet
{

void Session::Keep(KeptAnswer::Content&& content)
{
    const std::shared_ptr<KeptAnswer>& slot = KeptAnswer::OfThisThread();
    const std::lock_guard lock(mutex_);
    if (closed_) {
        return;
    }
    std::erase_if(slots_, [](const auto& known) { return known.expired(); });
    const bool known =
        std::ranges::any_of(slots_, [&](const auto& other) { return other.lock() == slot; });
    if (!known) {
        slots_.push_back(slot);
    }
    slot->Keep(std::move(content));
}

std::optional<int> Session::KnownChannel(int channel, int mode) const
{
    const std::lock_guard lock(mutex_);
    const auto found = channels_.find({channel, mode});
    return found == channels_.end() ? std::nullopt : std::optional(found->second);
}

void Session::LearnChannel(int channel, int mode, int number)
{
    const std::lock_guard lock(mutex_);
    if (channels_.size() < limits::kChannels) {
        channels_[{channel, mode}] = number;
    }
}

void Session::Close() noexcept
{
    transport_->Cancel();
    const std::lock_guard lock(mutex_);
    closed_ = true;
    for (const std::weak_ptr<KeptAnswer>& known : slots_) {
        if (const auto slot = known.lock()) {
            slot->Drop(*this);
        }
    }
    slots_.clear();
}

SessionTable& SessionTable::Instance()
{
    static auto* const table = new SessionTable;
    return *table;
}

SessionTable::SessionTable()
{
    std::iota(free_.begin(), free_.end(), 0);
}

int SessionTable::Add(std::shared_ptr<Session> session)
{
    const std::lock_guard lock(mutex_);
    if (freeCount_ == 0) {
        return -1;
    }
    const int id = free_[firstFree_];
    firstFree_ = (firstFree_ + 1) % free_.size();
    --freeCount_;
    sessions_[static_cast<std::size_t>(id)] = std::move(session);
    return id;
}

bool SessionTable::Full() const
{
    const std::lock_guard lock(mutex_);
    return freeCount_ == 0;
}

std::shared_ptr<Session> SessionTable::Find(int userID) const
{
    if (userID < 0 || userID >= kCapacity) {
        return nullptr;
    }
    const std::lock_guard lock(mutex_);
    return sessions_[static_cast<std::size_t>(userID)];
}

std::shared_ptr<Session> SessionTable::Remove(int userID)
{
    if (userID < 0 || userID >= kCapacity) {
        return nullptr;
    }
    const std::lock_guard lock(mutex_);
    auto session = std::exchange(sessions_[static_cast<std::size_t>(userID)], nullptr);
    if (session) {
        free_[(firstFree_ + freeCount_++) % free_.size()] = userID;
    }
    return session;
}

}  // namespace PelNet
