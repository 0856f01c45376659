// Searches that go on in the device: tasks with progress, results and packages.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <map>
#include <mutex>

#include "Device/AnswerTable.h"
#include "Device/JsonDocument.h"
#include "Device/Routes.h"
#include "Device/search/JsonSearch.h"
#include "Device/search/Package.h"
#include "Device/search/SearchPage.h"

namespace Device
{
namespace
{

constexpr int kStep =
    25;  // percent that a look at a task's progress brings it on, if none is given
constexpr size_t kMostTasks = 1000;
constexpr const char* kFetch = "/TARN/Intelligent/FDLib/FCSearch/dataPackage/file?taskID=";

bool IsAlphanumeric(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

struct Task
{
    enum class State
    {
        Running,
        Paused,
        Cancelled,
    };

    State state = State::Running;
    int progress = 0;
    std::uint64_t packageSize = 0;
    int step = kStep;

    [[nodiscard]] bool Done() const { return progress >= 100; }
    void Advance()
    {
        if (state == State::Running) {
            progress = std::min(progress + step, 100);
        }
    }
};

std::uint64_t ReadSize(const Json::Value& value)
{
    return value.isUInt64() ? value.asUInt64()
                            : PackageSizeOf("pkg-" + JsonText(value)).value_or(0);
}

class SearchTasks : public Behaviour
{
public:
    SearchTasks(const Profile& profile, const Json::Value& start)
        : table_(profile, false),
          results_(ReadSearched(start.toStyledString(),
                                {.list = "results", .time = {}, .filters = {}})["results"]),
          packageSize_(ReadSize(JsonMember(start, "packageSize"))),
          bytesPerFace_(ReadSize(JsonMember(start, "bytesPerFace")))
    {
        for (const Json::Value& entry : JsonMember(start, "tasks")) {
            const std::string id = JsonText(JsonMember(entry, "taskID"));
            if (id.empty()) {
                throw StateFault("a task has no \"taskID\"");
            }
            Task task;
            task.progress = JsonNumber(JsonMember(entry, "progress")).value_or(0);
            const Json::Value& size = JsonMember(entry, "packageSize");
            task.packageSize = size.isNull() ? packageSize_ : ReadSize(size);
            task.step = JsonNumber(JsonMember(entry, "step")).value_or(kStep);
            tasks_[id] = task;
        }
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
    Response Move(const Call& call, Task::State from, Task::State to);
    Task* Find(const std::string& id);
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
    std::map<std::string, Task> tasks_;
    std::string collision_;
    unsigned int nextId_ = 100;
};

Response Reply(const Json::Value& document)
{
    return {200, "application/json", document.toStyledString()};
}

Response Unknown(const Call& call)
{
    return MakeStatus(Outcome::kInvalidId, call.request.target);
}

// A task; any name that asks for a package of some size is one that has long been done.
Task* SearchTasks::Find(const std::string& id)
{
    const auto found = tasks_.find(id);
    if (found != tasks_.end()) {
        return &found->second;
    }
    const std::optional<std::uint64_t> size = PackageSizeOf(id);
    if (!size || tasks_.size() >= kMostTasks) {
        return nullptr;
    }
    return &tasks_.emplace(id, Task{Task::State::Running, 100, *size}).first->second;
}

Response SearchTasks::Begin(const Call& call, const std::string& prefix, std::uint64_t size)
{
    if (tasks_.size() >= kMostTasks) {
        return MakeStatus(Outcome::kDeviceBusy, call.request.target);
    }
    Json::Value document;
    const std::string id = prefix + std::to_string(nextId_++);
    tasks_[id] = Task{Task::State::Running, 0, size};
    document["taskID"] = id;
    return Reply(document);
}

Response SearchTasks::Start(const Call& call)
{
    return Begin(call, "", packageSize_);
}

// There is one task that compares captures with libraries, started when it is first asked for and
// again when it was cancelled.
Response SearchTasks::StartCollision(const Call& call)
{
    const auto former = tasks_.find(collision_);
    if (former != tasks_.end() && former->second.state != Task::State::Cancelled) {
        Json::Value document;
        document["taskID"] = collision_;
        return Reply(document);
    }
    collision_ = std::to_string(nextId_);
    return Begin(call, "", packageSize_);
}

Response SearchTasks::ReadProgress(const Call& call)
{
    Task* task = Find(call.selectors[0]);
    if (task == nullptr) {
        return Unknown(call);
    }
    task->Advance();
    Json::Value document;
    document["progress"]["value"] = task->progress;
    document["progress"]["status"] = task->state == Task::State::Paused      ? "paused"
                                     : task->state == Task::State::Cancelled ? "cancelled"
                                     : task->Done()                          ? "finished"
                                                                             : "running";
    return Reply(document);
}

// What has been found so far.
Response SearchTasks::ReadResults(const Call& call)
{
    const Task* task = Find(call.selectors[0]);
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
    return Reply(document);
}

Response SearchTasks::PackageOf(const Call& call, const std::string& id)
{
    const Task* task = Find(id);
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

Response SearchTasks::Move(const Call& call, Task::State from, Task::State to)
{
    Task* task = Find(call.selectors[0]);
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
    return Move(call, Task::State::Running, Task::State::Paused);
}

Response SearchTasks::Resume(const Call& call)
{
    return Move(call, Task::State::Paused, Task::State::Running);
}

Response SearchTasks::Cancel(const Call& call)
{
    const Task* task = Find(call.selectors[0]);
    return Move(call, task == nullptr ? Task::State::Running : task->state, Task::State::Cancelled);
}

Response SearchTasks::Delete(const Call& call)
{
    return tasks_.erase(call.selectors[0]) > 0 ? MakeStatus(Outcome::kOk, call.request.target)
                                               : Unknown(call);
}

// Packs what the search for faces finds with the same description.
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
    const auto size = PackageSizeOf(*found.answer->search, FillIn(*found.answer, found.channel),
                                    request, bytesPerFace_);
    return size ? Begin(call, "faces ", *size)
                : MakeStatus(Outcome::kBadJsonContent, call.request.target);
}

Response SearchTasks::ReadPacking(const Call& call)
{
    const std::string id = PackingId(call);
    Task* task = Find(id);
    if (task == nullptr) {
        return Unknown(call);
    }
    task->Advance();
    Json::Value document;
    document["progress"] = task->progress;
    document["URL"] = task->Done() ? kFetch + PercentEncoded(id, &IsAlphanumeric) : std::string();
    return Reply(document);
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
    // Kept: clients send the number without a slash before it, too.
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
