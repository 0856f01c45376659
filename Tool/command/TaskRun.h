// Tasks that go on in a device: begun, or taken up again, and waited for.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include "Tool/command/DeviceCommand.h"

namespace Tool
{

struct TaskOptions
{
    std::string task;   ///< one that was begun before; empty: begin one
    double wait = 120;  ///< seconds without any progress; 0: not at all
};

/// --task and --wait.
void AddTaskOptions(CLI::App& command, TaskOptions& options);

/// How far a task is.
struct TaskState
{
    int percent = 0;
    bool isDone = false;
    std::string word = {};  ///< what the device calls its state; empty: it does not say
    std::string halt = {};  ///< why it will not get on by itself, behind a semicolon
};

/// What is special about tasks of one kind.
struct TaskSteps
{
    const char* doing;                   ///< "searching"
    std::function<std::string()> begin;  ///< begins one and gives its ID
    std::function<TaskState(const std::string& task)> look;
    std::function<Report(const std::string& task)> finish;  ///< of a task that is done
};

/// "task 12", its progress and its state.
Report ReportTask(const std::string& task, const TaskState& state);

/// Begins a task or takes one up again, waits until it is done, and finishes with it. A signal or a
/// failure meanwhile tells how to take the task up again, where it outlives the program.
Report RunTask(Talk& talk, const TaskOptions& options, const TaskSteps& steps);

}  // namespace Tool
