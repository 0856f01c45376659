// capset search: recordings, faces, targets and people on a device.
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "Tool/command/Assignment.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ReportCommand.h"
#include "Tool/session/PackageDownload.h"
#include "Tool/session/Paging.h"
#include "Tool/session/TaskRun.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

constexpr const char* kGroup = "Search";
constexpr const char* kMemberFilter =
    "NAME=VALUE of the search, as the device names it, NAME.NAME for a nested member; can be "
    "repeated";

/// What any search can be told.
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

/// A search command, with the options for time and paging.
Command& AddSearch(Command& group, CommonOptions& common, const CommandText& text,
                   const Options& options, Report (*search)(Talk&, const SearchOptions&))
{
    Command& command = AddReportCommand(
        group, common, text, [options, search](Talk& talk) { return search(talk, *options); });
    AddTimeOptions(command, options->time);
    AddPageOptions(command, options->page);
    return command;
}

void AddFilterOption(Command& command, SearchOptions& options, const char* description)
{
    command.Option("--filter", options.filters, "FILTER", description).Group(kGroup);
}

/// Fetches pages of JSON with a description that differs only in its page.
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
        return ReadPage(DescribeWhole(name, result));
    });
}

Report SearchContent(Talk& talk, const SearchOptions& options)
{
    talk.SetChannelOption("--track ID");
    CMSearchDescription description;
    description.trackIDList.trackID = options.tracks;
    const auto span = std::make_shared<TimeSpan>();
    span->startTime = StartTime(options.time, "Z");
    span->endTime = EndTime(options.time, "Z");
    description.timeSpanList.timeSpan.push_back(span);
    Report report = FetchPages(talk, options.page, "Recordings", [&](const PageRequest& request) {
        description.searchID = request.searchID;
        description.searchResultPosition = request.position;
        description.maxResults = request.count;
        CMSearchResult result;
        talk.Do([&](unsigned int& /*error*/) {
            return ConfigCapXML::SearchContent(description, result, talk.UserID());
        });
        return ReadPage(Describe("Recordings", result));
    });
    // These are longer than a line, and mostly for programs.
    for (RecordNode& list : report.shown->children) {
        for (RecordNode& row : list.children) {
            std::erase_if(row.children,
                          [](const RecordNode& each) { return each.name == "playbackURI"; });
        }
    }
    if (!report.values.children.front().children.empty()) {
        report.remark += "; --json also gives where each can be played";
    }
    return report;
}

Report SearchCaptures(Talk& talk, const SearchOptions& options)
{
    talk.SetChannelOption("--channel N");
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

/// Has the device pack the results, which is a task, and saves the package.
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

/// Puts a filter into the search's own members, or else into the JSON sent along with them.
void AddFilter(FDLibSearchDescription& description, const Assignment& filter)
{
    if (filter.path.front() == "searchType" && filter.path.size() == 1) {
        description.searchType = filter.value;
    } else if (filter.path.front() == "Attendance" && filter.path.size() > 1) {
        // Devices read these only in a search of this type.
        description.searchType = "attendance";
        Assign(description.Attendance, filter, 1);
    } else {
        AssignMember(description.root, filter);
    }
}

Report SearchFaces(Talk& talk, const SearchOptions& options)
{
    FDLibSearchDescription description;
    description.hasTimeRange = !options.time.from.empty() || !options.time.to.empty();
    description.startTime = StartTime(options.time, "");
    description.endTime = EndTime(options.time, "");
    for (const std::string& filter : options.filters) {
        AddFilter(description, ReadAssignment(filter));
    }
    description.maxResultNumber = options.page.limit;
    if (options.download.empty() && !options.task.task.empty()) {
        throw Failure("--task continues the packing of a download: add --download FILE", kUsage);
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
        AssignMember(description.root, ReadAssignment(filter));
    }
    return FetchJsonPages<TargetSearchResult>(talk, options, "Targets", description,
                                              &JsonConfigApp::SearchTargetFiles);
}

}  // namespace

void AddSearchCommands(Command& program, CommonOptions& common)
{
    Command& group = program.Add("search", "Find recordings, faces, targets and people");
    group.Example("capset search content sim:recorder --track 101");
    Options options = std::make_shared<SearchOptions>();
    Command& content = AddSearch(group, common,
                                 {"content", "Find recordings",
                                  "sim:recorder --track 101 --from 2026-11-18 --to 2026-11-19"},
                                 options, &SearchContent);
    content
        .Option("--track", options->tracks, "ID",
                "track to search: 100 times the channel plus the stream, such as 101; can be "
                "repeated")
        .Group(kGroup);

    options = std::make_shared<SearchOptions>();
    Command& captures = AddSearch(
        group, common, {"captures", "Find captured faces", "sim:recorder --filter gender=female"},
        options, &SearchCaptures);
    captures.Option("--channel", options->channels, "N", "channel to search; can be repeated")
        .Group(kGroup);
    AddFilterOption(captures, *options,
                    "NAME=VALUE of a face's looks: ageGroup, gender, glasses, mask ...; can be "
                    "repeated");
    AddDownloadOption(captures, options->download);

    options = std::make_shared<SearchOptions>();
    Command& faces = AddSearch(
        group, common, {"faces", "Find faces that libraries know", "sim:recorder --limit 10"},
        options, &SearchFaces);
    AddFilterOption(faces, *options, kMemberFilter);
    AddDownloadOption(faces, options->download);
    AddTaskOptions(faces, options->task);

    options = std::make_shared<SearchOptions>();
    Command& targets = AddSearch(
        group, common,
        {"targets", "Find files by what they show", "sim:recorder --filter targetType=human"},
        options, &SearchTargets);
    AddFilterOption(targets, *options, kMemberFilter);

    AddPeopleCommands(group, common);
}

}  // namespace Tool
