// The search tasks that a device keeps.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include <json/value.h>

namespace Device
{

/// A search that a device runs by itself.
struct SearchTask
{
    enum class State
    {
        Running,
        Paused,
        Cancelled,
    };

    State state = State::Running;
    int progress = 0;  ///< percent
    std::uint64_t packageSize = 0;
    int step = 25;  ///< percent added by each look at the progress

    [[nodiscard]] bool Done() const { return progress >= 100; }
    /// Adds a step if the task is running.
    void Advance();
    /// "running", "paused", "cancelled" or "finished".
    [[nodiscard]] const char* StateText() const;
};

/// A package size as a profile writes it: a number, or a text such as "50M". 0 for anything else.
std::uint64_t ReadPackageSize(const Json::Value& value);

/// Tasks by ID, kMostTasks at most. Not locked.
class TaskList
{
public:
    /// Adds the tasks that a profile's document lists; their packages have `packageSize` unless
    /// they say otherwise. Throws StateFault.
    void Read(const Json::Value& tasks, std::uint64_t packageSize);

    /// Starts a task and returns its ID, a number behind `prefix`; empty if there are too many.
    std::string Start(const std::string& prefix, std::uint64_t packageSize);

    /// The task, or null. The name of a package ("pkg-50M") is always the ID of a finished task.
    SearchTask* Find(const std::string& id);

    /// False if there is no such task.
    bool Remove(const std::string& id) { return tasks_.erase(id) > 0; }

private:
    std::map<std::string, SearchTask> tasks_;
    unsigned int nextId_ = 100;
};

}  // namespace Device
