// Searches that run in the device.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/SearchTasks.h"

#include <mutex>

#include "Device/document/JsonDocument.h"
#include "Device/document/Text.h"
#include "Device/manifest/AnswerTable.h"
#include "Device/message/Routes.h"
#include "Device/search/JsonSearch.h"
#include "Device/search/Package.h"
#include "Device/search/SearchPage.h"
#include "Device/search/TaskList.h"

namespace Device
{
namespace
{

constexpr const char* kFetch = "/TARN/Intelligent/FDLib/FCSearch/dataPackage/file?taskID=";

bool IsAlphanumeric(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

class SearchTasks : public Behaviour
{
public:
    SearchTasks(const Profile& profile, const Json::Value& start)
        : table_(profile, false),
          results_(ReadSearched(start.toStyledString(),
                                {.list = "results", .time = {}, .filters = {}})["results"]),
          packageSize_(ReadPackageSize(JsonMember(start, "packageSize"))),
          bytesPerFace_(ReadPackageSize(JsonMember(start, "bytesPerFace")))
    {
        tasks_.Read(JsonMember(start, "tasks"), packageSize_);
    }

    std::optional<Response> Answer(const ParsedRequest& request) override;

private:
    Response Start(const Call& call);
    Response StartCollision(const Call& call);
    Response ReadProgress(const Call& call);
    Response ReadResults(const Call& call);
    Response ReadPackage(const Call& call);
    Response Pause(const Call& call);
    Response Resume(const Call& call);
    Response Cancel(const Call& call);
    Response Delete(const Call& call);
    Response StartPacking(const Call& call);
    Response ReadPacking(const Call& call);
    Response FetchPacked(const Call& call);

    Response Begin(const Call& call, const std::string& prefix, std::uint64_t size);
    Response Move(const Call& call, SearchTask::State from, SearchTask::State to);
    Response PackageOf(const Call& call, const std::string& id);
    [[nodiscard]] static std::string PackingId(const Call& call)
    {
        const std::string* id = call.request.FindParameter("taskID");
        return id == nullptr ? std::string() : *id;
    }

    static const Route<SearchTasks> kRoutes[];

    const AnswerTable table_;
    const Json::Value results_;
    const std::uint64_t packageSize_;
    const std::uint64_t bytesPerFace_;
    std::mutex mutex_;
    TaskList tasks_;
    std::string collision_;
};

Response Unknown(const Call& call)
{
    return MakeStatus(Outcome::kInvalidId, call.request.target);
}

Response SearchTasks::Begin(const Call& call, const std::string& prefix, std::uint64_t size)
{
    const std::string id = tasks_.Start(prefix, size);
    if (id.empty()) {
        return MakeStatus(Outcome::kDeviceBusy, call.request.target);
    }
    Json::Value document;
    document["taskID"] = id;
    return MakeJson(document);
}

Response SearchTasks::Start(const Call& call)
{
    return Begin(call, "", packageSize_);
}

// There is one task that compares captures with libraries. It starts when it is first asked for,
// and again after it was cancelled.
Response SearchTasks::StartCollision(const Call& call)
{
    const SearchTask* former = tasks_.Find(collision_);
    if (former == nullptr || former->state == SearchTask::State::Cancelled) {
        collision_ = tasks_.Start("", packageSize_);
    }
    if (collision_.empty()) {
        return MakeStatus(Outcome::kDeviceBusy, call.request.target);
    }
    Json::Value document;
    document["taskID"] = collision_;
    return MakeJson(document);
}

Response SearchTasks::ReadProgress(const Call& call)
{
    SearchTask* task = tasks_.Find(call.selectors[0]);
    if (task == nullptr) {
        return Unknown(call);
    }
    task->Advance();
    Json::Value document;
    document["progress"]["value"] = task->progress;
    document["progress"]["status"] = task->StateText();
    return MakeJson(document);
}

// The matches found so far.
Response SearchTasks::ReadResults(const Call& call)
{
    const SearchTask* task = tasks_.Find(call.selectors[0]);
    if (task == nullptr) {
        return Unknown(call);
    }
    const auto total = results_.size();
    const auto found = total * static_cast<Json::ArrayIndex>(task->progress) / 100;
    std::vector<Json::Value> matches(results_.begin(), results_.end());
    matches.resize(found);
    Json::Value document;
    Json::Value& result = document["HFPDSearchFaceResult"];
    result = MakeSearchPage({}, matches, "MatchList", "");
    result["taskID"] = call.selectors[0];
    result["progress"] = task->progress;
    return MakeJson(document);
}

Response SearchTasks::PackageOf(const Call& call, const std::string& id)
{
    const SearchTask* task = tasks_.Find(id);
    if (task == nullptr) {
        return Unknown(call);
    }
    if (!task->Done()) {
        return MakeStatus(Outcome::kTaskNotFinished, call.request.target);
    }
    return {200, "application/octet-stream", {}, MakePackage(task->packageSize, id)};
}

Response SearchTasks::ReadPackage(const Call& call)
{
    return PackageOf(call, call.selectors[0]);
}

Response SearchTasks::Move(const Call& call, SearchTask::State from, SearchTask::State to)
{
    SearchTask* task = tasks_.Find(call.selectors[0]);
    if (task == nullptr) {
        return Unknown(call);
    }
    const bool possible = task->state == from && !task->Done();
    if (possible) {
        task->state = to;
    }
    return MakeStatus(possible ? Outcome::kOk : Outcome::kWrongTaskState, call.request.target);
}

Response SearchTasks::Pause(const Call& call)
{
    return Move(call, SearchTask::State::Running, SearchTask::State::Paused);
}

Response SearchTasks::Resume(const Call& call)
{
    return Move(call, SearchTask::State::Paused, SearchTask::State::Running);
}

Response SearchTasks::Cancel(const Call& call)
{
    const SearchTask* task = tasks_.Find(call.selectors[0]);
    return Move(call, task == nullptr ? SearchTask::State::Running : task->state,
                SearchTask::State::Cancelled);
}

Response SearchTasks::Delete(const Call& call)
{
    return tasks_.Remove(call.selectors[0]) ? MakeStatus(Outcome::kOk, call.request.target)
                                            : Unknown(call);
}

// Packs the matches of a face search with the same description.
Response SearchTasks::StartPacking(const Call& call)
{
    Request search{"POST", call.request.target, std::string(call.request.body)};
    constexpr std::string_view kLast = "/dataPackage";
    if (const size_t at = search.target.find(kLast); at != std::string::npos) {
        search.target.erase(at, kLast.size());
    }
    const ParsedRequest request(search);
    const AnswerTable::Found found = table_.Find(request);
    if (found.answer == nullptr || !found.answer->search) {
        return MakeStatus(Outcome::kNotSupport, call.request.target);
    }
    const auto size = PackageSizeOf(*found.answer->search, found.answer->DocumentFor(found.channel),
                                    request, bytesPerFace_);
    return size ? Begin(call, "faces ", *size)
                : MakeStatus(Outcome::kBadJsonContent, call.request.target);
}

Response SearchTasks::ReadPacking(const Call& call)
{
    const std::string id = PackingId(call);
    SearchTask* task = tasks_.Find(id);
    if (task == nullptr) {
        return Unknown(call);
    }
    task->Advance();
    Json::Value document;
    document["progress"] = task->progress;
    document["URL"] = task->Done() ? kFetch + PercentEncoded(id, &IsAlphanumeric) : std::string();
    return MakeJson(document);
}

Response SearchTasks::FetchPacked(const Call& call)
{
    return PackageOf(call, PackingId(call));
}

const Route<SearchTasks> SearchTasks::kRoutes[] = {
    {"POST", "TARN/SDT/HFPD/searchTask", &SearchTasks::Start},
    {"GET", "TARN/SDT/HFPD/searchTask/captureLibCollision", &SearchTasks::StartCollision},
    {"GET", "TARN/SDT/HFPD/searchTask/result/recordData/*", &SearchTasks::ReadResults},
    {"GET", "TARN/SDT/HFPD/search/dataPackage/*", &SearchTasks::ReadPackage},
    {"GET", "TARN/SDT/Management/Task/progress/*", &SearchTasks::ReadProgress},
    {"GET", "TARN/SDT/Management/Task/pause/*", &SearchTasks::Pause},
    {"GET", "TARN/SDT/Management/Task/resume/*", &SearchTasks::Resume},
    {"GET", "TARN/SDT/Management/Task/cancel/*", &SearchTasks::Cancel},
    // Kept: some clients omit the slash before the number.
    {"GET", "TARN/SDT/Management/Task/cancel*", &SearchTasks::Cancel},
    {"DELETE", "TARN/SDT/Management/Task/*", &SearchTasks::Delete},
    {"POST", "TARN/Intelligent/FDLib/FCSearch/dataPackage", &SearchTasks::StartPacking},
    {"GET", "TARN/Intelligent/FDLib/FCSearch/dataPackage/progress", &SearchTasks::ReadPacking},
    {"GET", "TARN/Intelligent/FDLib/FCSearch/dataPackage/file", &SearchTasks::FetchPacked},
};

std::optional<Response> SearchTasks::Answer(const ParsedRequest& request)
{
    const std::lock_guard lock(mutex_);
    return AnswerByRoute<SearchTasks>(*this, kRoutes, request);
}

}  // namespace

std::unique_ptr<Behaviour> MakeSearchTasks(const Profile& profile)
{
    const auto start = profile.state.find("searchTasks");
    if (start == profile.state.end()) {
        return nullptr;
    }
    try {
        return std::make_unique<SearchTasks>(profile, start->second);
    } catch (const std::invalid_argument& fault) {
        throw StateFault(std::string("\"searchTasks\": ") + fault.what());
    }
}

}  // namespace Device
