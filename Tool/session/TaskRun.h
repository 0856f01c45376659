// Tasks that run in a device: started or continued, and waited for.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "Tool/session/Report.h"
#include "Tool/session/Talk.h"

namespace Tool
{

struct TaskOptions
{
    std::string task;                         ///< a task to continue; empty: start one
    std::chrono::duration<double> wait{120};  ///< longest time without progress; 0: do not wait
};

/// How far a task is.
struct TaskState
{
    int percent = 0;
    bool isDone = false;
    std::string word = {};  ///< the device's own word for the state; may be empty
    std::string halt = {};  ///< if it will not continue by itself: what the user can do
};

/// What differs between kinds of tasks.
struct TaskSteps
{
    const char* doing;                   ///< "searching"
    std::function<std::string()> begin;  ///< starts one and returns its ID
    std::function<TaskState(const std::string& task)> look;
    std::function<Report(const std::string& task)> finish;  ///< for a task that is done
};

/// The task's ID, progress and state.
Report ReportTask(const std::string& task, const TaskState& state);

/// Starts or continues a task, waits until it is done, and finishes it. If a signal or a failure
/// ends the program first, the message says how to continue the task.
Report RunTask(Talk& talk, const TaskOptions& options, const TaskSteps& steps);

}  // namespace Tool
