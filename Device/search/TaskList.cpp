// The search tasks that a device keeps.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/TaskList.h"

#include <algorithm>

#include "Device/Behaviour.h"
#include "Device/Limits.h"
#include "Device/document/JsonDocument.h"
#include "Device/search/Package.h"

namespace Device
{

void SearchTask::Advance()
{
    if (state == State::Running) {
        progress = std::min(progress + step, 100);
    }
}

const char* SearchTask::StateText() const
{
    return state == State::Paused      ? "paused"
           : state == State::Cancelled ? "cancelled"
           : Done()                    ? "finished"
                                       : "running";
}

std::uint64_t ReadPackageSize(const Json::Value& value)
{
    return value.isUInt64() ? value.asUInt64()
                            : PackageSizeOf("pkg-" + JsonText(value)).value_or(0);
}

void TaskList::Read(const Json::Value& tasks, std::uint64_t packageSize)
{
    for (const Json::Value& entry : tasks) {
        const std::string id = JsonText(JsonMember(entry, "taskID"));
        const int step = JsonNumber(JsonMember(entry, "step")).value_or(SearchTask().step);
        const int progress = JsonNumber(JsonMember(entry, "progress")).value_or(0);
        if (id.empty()) {
            throw StateFault("a task has no \"taskID\"");
        }
        if (step < 0 || step > 100 || progress < 0 || progress > 100) {
            throw StateFault("task \"" + id + "\": progress and step are percentages");
        }
        const Json::Value& size = JsonMember(entry, "packageSize");
        tasks_[id] = {SearchTask::State::Running, progress,
                      size.isNull() ? packageSize : ReadPackageSize(size), step};
    }
}

std::string TaskList::Start(const std::string& prefix, std::uint64_t packageSize)
{
    if (tasks_.size() >= kMostTasks) {
        return {};
    }
    const std::string id = prefix + std::to_string(nextId_++);
    tasks_[id].packageSize = packageSize;
    return id;
}

SearchTask* TaskList::Find(const std::string& id)
{
    const auto found = tasks_.find(id);
    if (found != tasks_.end()) {
        return &found->second;
    }
    const std::optional<std::uint64_t> size = PackageSizeOf(id);
    if (!size || tasks_.size() >= kMostTasks) {
        return nullptr;
    }
    SearchTask& task = tasks_[id];
    task.progress = 100;
    task.packageSize = *size;
    return &task;
}

}  // namespace Device
