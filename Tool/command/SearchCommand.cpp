// capset search: recordings, faces, targets and people that a device holds.
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "Tool/command/Assignment.h"
#include "Tool/command/DeviceCommand.h"
#include "Tool/command/SearchCommands.h"
#include "Tool/command/TaskRun.h"
#include "Tool/record/JsonTree.h"
#include "Tool/session/PackageDownload.h"
#include "Tool/session/Paging.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

/// What any search may be told.
struct SearchOptions
{
    TimeOptions time;
    PageOptions page;
    std::vector<std::string> tracks;
    std::vector<int> channels;
    std::vector<std::string> filters;
    std::string download;
    TaskOptions task;  ///< of the download
};
using Options = std::shared_ptr<SearchOptions>;

/// A command whose action gets the options; those of time and paging are there already.
CLI::App& AddSearch(CLI::App& group, CommandLine& line, const CommandText& text,
                    const Options& options, Report (*search)(Talk&, const SearchOptions&))
{
    CLI::App& command = AddDeviceCommand(
        group, line, text, [options, search](Talk& talk) { return search(talk, *options); });
    AddTimeOptions(command, options->time);
    AddPageOptions(command, options->page);
    return command;
}

void AddListOption(CLI::App& command, const char* name, auto& value, const char* description,
                   const char* type)
{
    command.add_option(name, value, description)
        ->type_name(type)
        ->expected(1)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->group("Search");
}

/// Asks for pages of JSON by a description that is the same but for its page.
template <class Result, class Description, class Operation>
Report FetchJsonPages(Talk& talk, const SearchOptions& options, const std::string& name,
                      Description description, Operation operation)
{
    return FetchPages(talk, options.page, name, [&](const PageRequest& request) {
        description.searchID = request.searchID;
        description.searchResultPosition = request.position;
        description.maxResults = request.count;
        Result result;
        talk.Do([&](unsigned int& error) {
            return operation(description, result, error, talk.UserID());
        });
        return ReadPage(DescribeJson(name, result));
    });
}

Report SearchContent(Talk& talk, const SearchOptions& options)
{
    CMSearchDescription description;
    description.trackIDList.trackID = options.tracks;
    const auto span = std::make_shared<TimeSpan>();
    span->startTime = StartTime(options.time, "Z");
    span->endTime = EndTime(options.time, "Z");
    description.timeSpanList.timeSpan.push_back(span);
    return FetchPages(talk, options.page, "Recordings", [&](const PageRequest& request) {
        description.searchID = request.searchID;
        description.searchResultPosition = request.position;
        description.maxResults = request.count;
        CMSearchResult result;
        talk.Do([&](unsigned int& /*error*/) {
            return ConfigCapXML::SearchContent(description, result, talk.UserID());
        });
        return ReadPage(Describe("Recordings", result));
    });
}

Report SearchCaptures(Talk& talk, const SearchOptions& options)
{
    CaptureSearchDescription description;
    for (const std::string& filter : options.filters) {
        Assign(static_cast<FaceAttributes&>(description), ReadAssignment(filter));
    }
    description.startTime = StartTime(options.time, "Z");
    description.endTime = EndTime(options.time, "Z");
    description.channelID = options.channels;
    description.maxSearchResults = options.page.limit;
    if (options.download.empty()) {
        return FetchJsonPages<CaptureSearchResult>(talk, options, "Captures", description,
                                                   &JsonConfigApp::GetCaptureSearchResult);
    }
    DownloadFile file(options.download);
    description.searchID = NewSearchID();
    description.maxResults = options.page.pageSize;
    return Download(
        talk, file, [&](tagNET_ORB_XML_CONFIG_OUTPUT& package, unsigned int& error, int userID) {
            return JsonConfigApp::GetFCDataPackageByJson(description, package, error, userID);
        });
}

/// Has the device pack what a search finds, a task, and saves the package.
Report DownloadFaces(Talk& talk, const SearchOptions& options, FDLibSearchDescription& description)
{
    DownloadFile file(options.download);
    std::string url;
    const auto begin = [&] {
        FDLibFCSearchPackageByJsonResult task;
        talk.Do([&](unsigned int& error) {
            return JsonConfigApp::GetFDLibFCSearchDataPackageTaskID(description, task, error,
                                                                    talk.UserID());
        });
        return task.taskID;
    };
    const auto look = [&](const std::string& task) {
        FDLibFCSearchPackageByTaskID state;
        talk.Do([&](unsigned int& error) {
            return JsonConfigApp::GetFDLibFCSearchDataPackage(state, task, error, talk.UserID());
        });
        constexpr int kWhole = 100;
        url = state.URL;
        return TaskState{state.progress, !url.empty() || state.progress >= kWhole};
    };
    const auto finish = [&](const std::string& /*task*/) {
        return Download(talk, file, PackageAt(url));
    };
    return RunTask(talk, options.task, {"the device is packing", begin, look, finish});
}

Report SearchFaces(Talk& talk, const SearchOptions& options)
{
    FDLibSearchDescription description;
    description.hasTimeRange = !options.time.from.empty() || !options.time.to.empty();
    description.startTime = StartTime(options.time, "");
    description.endTime = EndTime(options.time, "");
    for (const std::string& filter : options.filters) {
        const Assignment assignment = ReadAssignment(filter);
        description.root[assignment.path.front()] = assignment.value;
    }
    description.maxResultNumber = options.page.limit;
    if (options.download.empty() && !options.task.task.empty()) {
        throw Failure("--task takes up the packing of a download: say --download FILE", kUsage);
    }
    if (options.download.empty()) {
        return FetchJsonPages<FDLibSearchResult>(talk, options, "Faces", description,
                                                 &JsonConfigApp::GetFDLibFCSearchByJson);
    }
    description.searchID = NewSearchID();
    description.maxResults = options.page.pageSize;
    return DownloadFaces(talk, options, description);
}

Report SearchTargets(Talk& talk, const SearchOptions& options)
{
    TargetSearchDescription description;
    description.root = Json::Value(Json::objectValue);
    description.root["startTime"] = StartTime(options.time, "Z");
    description.root["endTime"] = EndTime(options.time, "Z");
    for (const std::string& filter : options.filters) {
        const Assignment assignment = ReadAssignment(filter);
        description.root[assignment.path.front()] = assignment.value;
    }
    return FetchJsonPages<TargetSearchResult>(talk, options, "Targets", description,
                                              &JsonConfigApp::SearchTargetFiles);
}

}  // namespace

void AddSearchCommands(CLI::App& app, CommandLine& line)
{
    CLI::App& group = AddCommandGroup(app, "search", "Find recordings, faces, targets and people",
                                      "search content sim:recorder --track 101");
    Options options = std::make_shared<SearchOptions>();
    CLI::App& content = AddSearch(group, line,
                                  {"content", "Find recordings",
                                   "sim:recorder --track 101 --from 2026-11-18 --to 2026-11-19"},
                                  options, &SearchContent);
    AddListOption(content, "--track", options->tracks,
                  "track to search, channel times 100 plus stream, such as 101; can be repeated",
                  "ID");

    options = std::make_shared<SearchOptions>();
    CLI::App& captures = AddSearch(
        group, line, {"captures", "Find captured faces", "sim:recorder --filter gender=female"},
        options, &SearchCaptures);
    AddListOption(captures, "--channel", options->channels, "channel to search; can be repeated",
                  "N");
    AddListOption(captures, "--filter", options->filters,
                  "NAME=VALUE of a face's looks: ageGroup, gender, glasses, mask ...; can be "
                  "repeated",
                  "FILTER");
    AddDownloadOption(captures, options->download);

    options = std::make_shared<SearchOptions>();
    CLI::App& faces = AddSearch(
        group, line, {"faces", "Find faces that libraries know", "sim:recorder --limit 10"},
        options, &SearchFaces);
    AddListOption(faces, "--filter", options->filters,
                  "NAME=VALUE of the search, as the device names it; can be repeated", "FILTER");
    AddDownloadOption(faces, options->download);
    AddTaskOptions(faces, options->task);

    options = std::make_shared<SearchOptions>();
    CLI::App& targets = AddSearch(
        group, line,
        {"targets", "Find files by what is to be seen", "sim:recorder --filter targetType=human"},
        options, &SearchTargets);
    AddListOption(targets, "--filter", options->filters,
                  "NAME=VALUE of the search, as the device names it; can be repeated", "FILTER");

    AddPeopleCommands(group, line);
}

}  // namespace Tool
