// capset search people and task: searches for people, which run as tasks of the device.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <charconv>
#include <iterator>
#include <memory>
#include <optional>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ReportCommand.h"
#include "Tool/session/PackageDownload.h"
#include "Tool/session/Paging.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

struct PeopleOptions
{
    TaskOptions task;
    PageOptions page;
    std::string download;
};

/// The device's word for the state of a task, sent beside its progress.
std::string StateWord(const Json::Value& root)
{
    const Json::Value progress = root.isObject() ? root["progress"] : Json::Value();
    const Json::Value word = progress.isObject() ? progress["status"] : Json::Value();
    return word.isString() ? word.asString() : std::string();
}

TaskState Look(Talk& talk, const std::string& task)
{
    HFPDSearchProgress record;
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::GetHFPDSearchProgress(record, task, error, talk.UserID());
    });
    constexpr int kWhole = 100;
    const int percent = record.progress.value;
    TaskState state{percent, percent >= kWhole, StateWord(record.root)};
    if (state.word == "paused") {
        state.halt =
            "\"capset search task " + talk.Device() + " " + task + " resume\" continues it";
    } else if (state.word == "cancelled") {
        state.halt = "start another one";
    }
    return state;
}

std::string Begin(Talk& talk)
{
    HFPDCaptureLibCollisionTask task;
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::GetHFPDCaptureLibCollisionTask(task, error, talk.UserID());
    });
    return task.taskID;
}

Report ReadPeople(Talk& talk, const PageOptions& options, const std::string& task)
{
    Report report = FetchPages(talk, options, "People", [&](const PageRequest& /*all at once*/) {
        HFPDSearchFaceResult result;
        talk.Do([&](unsigned int& error) {
            return JsonConfigApp::GetHFPDSearchRecordData(result, task, error, talk.UserID());
        });
        Page page = ReadPage(DescribeWhole("People", result));
        page.hasMore = false;
        return page;
    });
    report.values.children.insert(report.values.children.begin(), tree::Text("task", task));
    report.shown->children.insert(report.shown->children.begin(), tree::Text("task", task));
    return report;
}

Report SearchPeople(Talk& talk, const PeopleOptions& options)
{
    std::optional<DownloadFile> file;
    if (!options.download.empty()) {
        file.emplace(options.download);
    }
    const auto finish = [&](const std::string& task) {
        if (!file) {
            return ReadPeople(talk, options.page, task);
        }
        return Download(
            talk, *file,
            [&task](tagNET_ORB_XML_CONFIG_OUTPUT& package, unsigned int& error, int userID) {
                return JsonConfigApp::GetHFPDDataPackage(package, task, error, userID);
            });
    };
    return RunTask(talk, options.task,
                   {"searching", [&] { return Begin(talk); },
                    [&](const std::string& task) { return Look(talk, task); }, finish});
}

/// What can be done with a task, in the order of the library's numbers.
constexpr const char* kActions[] = {"pause", "resume", "delete", "cancel"};

Report Manage(Talk& talk, const std::string& task, const std::string& action)
{
    if (action.empty()) {
        return ReportTask(task, Look(talk, task));
    }
    int number = 0;
    const auto [end, error] = std::from_chars(task.data(), task.data() + task.size(), number);
    if (error != std::errc() || end != task.data() + task.size()) {
        throw Failure("\"" + task + "\" is not the number of a task", kUsage);
    }
    const auto* const chosen = std::ranges::find(kActions, action);
    talk.Do([&](unsigned int& failure) {
        JsonStatus status;
        return JsonConfigApp::GetHFPDManagementTask(status,
                                                    static_cast<int>(chosen - std::begin(kActions)),
                                                    number, failure, talk.UserID());
    });
    talk.CheckStatus();
    if (action == "delete") {
        return {{"Task",
                 RecordNode::Kind::Record,
                 {},
                 true,
                 {tree::Text("task", task), tree::Text("state", "deleted")}}};
    }
    return ReportTask(task, Look(talk, task));
}

void AddTaskCommand(Command& group, CommonOptions& common)
{
    struct Options
    {
        std::string task;
        std::string action;
    };
    const auto options = std::make_shared<Options>();
    Command& command = AddReportCommand(
        group, common,
        {"task", "Show how far a search for people is, pause, resume, cancel or delete it",
         "sim:recorder 12 pause"},
        [options](Talk& talk) { return Manage(talk, options->task, options->action); });
    command.Positional("task", options->task, "the ID that \"search people\" printed").Required();
    const std::vector<std::string> actions(std::begin(kActions), std::end(kActions));
    command
        .Positional("action", options->action,
                    Joined(actions, "or") + "; nothing: only show the state")
        .OneOf(actions);
}

}  // namespace

void AddPeopleCommands(Command& group, CommonOptions& common)
{
    const auto options = std::make_shared<PeopleOptions>();
    Command& command = AddReportCommand(
        group, common,
        {"people", "Find people that libraries know among the captures, as a task of the device",
         "sim:recorder --limit 10"},
        [options](Talk& talk) { return SearchPeople(talk, *options); });
    AddLimitOption(command, options->page);
    AddDownloadOption(command, options->download);
    AddTaskOptions(command, options->task);
    AddTaskCommand(group, common);
}

}  // namespace Tool
