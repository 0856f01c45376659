// Tasks that run in a device.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/TaskRun.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>

#include "PelNetSDK/Login.h"
#include "Tool/terminal/Interruption.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

[[noreturn]] void GiveUp(const Talk& talk, unsigned int error, const std::string& why)
{
    talk.Fail({{error, why, {}}, {}});
}

std::string Standing(const std::string& task, const std::string& verb, const TaskState& state)
{
    return "task " + task + verb + std::to_string(state.percent) + " %";
}

/// Polls the task until it is done; once if nobody wants to wait.
TaskState Await(Talk& talk, const TaskOptions& options, const TaskSteps& steps,
                const std::string& task)
{
    using Clock = std::chrono::steady_clock;
    using namespace std::chrono_literals;
    std::chrono::milliseconds pause = 200ms;
    int furthest = -1;
    Clock::time_point moved = Clock::now();
    for (;;) {
        TaskState state = steps.look(task);
        if (state.isDone || options.wait.count() <= 0) {
            return state;
        }
        if (!state.halt.empty()) {
            GiveUp(talk, NET_ORB_DEVICE_REFUSED,
                   Standing(task, " is " + state.word + " at ", state) + "; " + state.halt);
        }
        talk.Say(steps.doing, std::clamp(state.percent, 0, 100));
        if (state.percent > furthest) {
            furthest = state.percent;
            moved = Clock::now();
        } else if (Clock::now() - moved > options.wait) {
            GiveUp(talk, NET_ORB_DEVICE_BUSY,
                   Standing(task, " has stood at ", state) + " for too long");
        }
        std::this_thread::sleep_for(pause);
        pause = std::min<std::chrono::milliseconds>(pause * 3 / 2, 1s);
    }
}

Report BeginAndFinish(Talk& talk, const TaskOptions& options, const TaskSteps& steps,
                      const std::string& task)
{
    const TaskState state = Await(talk, options, steps, task);
    return options.wait.count() <= 0 && !state.isDone ? ReportTask(task, state)
                                                      : steps.finish(task);
}

}  // namespace

Report ReportTask(const std::string& task, const TaskState& state)
{
    Report report{{"Task",
                   RecordNode::Kind::Record,
                   {},
                   true,
                   {tree::Text("task", task), tree::Integer("progress", state.percent)}}};
    if (!state.word.empty()) {
        report.values.children.push_back(tree::Text("state", state.word));
    }
    return report;
}

Report RunTask(Talk& talk, const TaskOptions& options, const TaskSteps& steps)
{
    const std::string task = options.task.empty() ? steps.begin() : options.task;
    if (task.empty()) {
        GiveUp(talk, NET_ORB_NETWORK_ERRORDATA, "the device named no task");
    }
    // A simulated device ends with this process, and so do its tasks.
    const bool isLasting = !talk.Device().starts_with("sim:");
    std::optional<AtInterruption> farewell;
    if (isLasting) {
        farewell.emplace(
            AtInterruption::Kind::Say,
            Harmless("capset: interrupted; the device keeps task " + task + TaskHint(task)) + "\n");
    }
    try {
        return BeginAndFinish(talk, options, steps, task);
    } catch (const DeviceFailure& failure) {
        Refusal why = failure.Why();
        // A task that the device refuses cannot be continued.
        const unsigned int error = why.failure.error;
        const bool isRefused = error == NET_ORB_DEVICE_REFUSED || MeansUnsupported(error);
        why.task = isLasting && !isRefused ? task : std::string();
        talk.Fail(std::move(why));
    } catch (const Failure& failure) {
        throw Failure(failure.what() + (isLasting ? TaskHint(task) : std::string()),
                      failure.Code());
    }
}

}  // namespace Tool
