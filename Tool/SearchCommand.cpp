// capset search: recordings, faces and targets that a device holds.
// SPDX-License-Identifier: Apache-2.0
#include <chrono>
#include <memory>
#include <thread>

#include "Assignment.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "DeviceCommand.h"
#include "DownloadFile.h"
#include "JsonRecord.h"
#include "Paging.h"
#include "PelNetSDK/PelNetSDK.h"
#include "Text.h"

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

void AddDownload(CLI::App& command, SearchOptions& options)
{
    command
        .add_option("--download", options.download,
                    "save what is found as the device packs it, in place of a table")
        ->type_name("FILE")
        ->group("Search");
}

Report Saved(DownloadFile& file, const std::string& name, std::string_view bytes)
{
    file.Finish(bytes);
    return {{"Download",
             RecordNode::Kind::Record,
             {},
             true,
             {tree::Text("file", name), tree::Whole("bytes", bytes.size())}}};
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
    tagNET_ORB_XML_CONFIG_OUTPUT package{};
    talk.Say("downloading");
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::GetFCDataPackageByJson(description, package, error, talk.UserID());
    });
    const std::unique_ptr<char[]> bytes(static_cast<char*>(package.outBuffer));
    return Saved(file, options.download, {bytes.get(), package.returnedSize});
}

/// The path of a package on the device that the talk is with.
std::string PathOf(const std::string& url)
{
    const std::size_t scheme = url.find("://");
    const std::size_t path = scheme == std::string::npos ? 0 : url.find('/', scheme + 3);
    if (path == std::string::npos || url.compare(path, 1, "/") != 0) {
        throw Failure("the device names no place of its package: \"" + url + "\"");
    }
    return url.substr(path);
}

/// Has the device pack what the search finds, waits, and returns the package.
std::string FetchFacePackage(Talk& talk, FDLibSearchDescription& description)
{
    FDLibFCSearchPackageByJsonResult task;
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::GetFDLibFCSearchDataPackageTaskID(description, task, error,
                                                                talk.UserID());
    });
    FDLibFCSearchPackageByTaskID state;
    for (;;) {
        state = {};
        talk.Do([&](unsigned int& error) {
            return JsonConfigApp::GetFDLibFCSearchDataPackage(state, task.taskID, error,
                                                              talk.UserID());
        });
        constexpr int kWhole = 100;
        if (!state.URL.empty() || state.progress >= kWhole) {
            break;
        }
        talk.Say("the device is packing, " + std::to_string(state.progress) + " %");
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    talk.Say("downloading");
    return talk.Send("GET " + PathOf(state.URL));
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
    if (options.download.empty()) {
        return FetchJsonPages<FDLibSearchResult>(talk, options, "Faces", description,
                                                 &JsonConfigApp::GetFDLibFCSearchByJson);
    }
    DownloadFile file(options.download);
    description.searchID = NewSearchID();
    description.maxResults = options.page.pageSize;
    return Saved(file, options.download, FetchFacePackage(talk, description));
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
    CLI::App& group = AddCommandGroup(app, "search", "Find recordings, faces and targets",
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
    AddDownload(captures, *options);

    options = std::make_shared<SearchOptions>();
    CLI::App& faces = AddSearch(
        group, line, {"faces", "Find faces that libraries know", "sim:recorder --limit 10"},
        options, &SearchFaces);
    AddListOption(faces, "--filter", options->filters,
                  "NAME=VALUE of the search, as the device names it; can be repeated", "FILTER");
    AddDownload(faces, *options);

    options = std::make_shared<SearchOptions>();
    CLI::App& targets = AddSearch(
        group, line,
        {"targets", "Find files by what is to be seen", "sim:recorder --filter targetType=human"},
        options, &SearchTargets);
    AddListOption(targets, "--filter", options->filters,
                  "NAME=VALUE of the search, as the device names it; can be repeated", "FILTER");
}

}  // namespace Tool
