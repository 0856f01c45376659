// Many clients of one device over HTTP, and the library's share of a query's cost.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <json/reader.h>
#include <libxml/parser.h>
#include <malloc.h>
#include <unistd.h>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/SystemAbility.h"
#include "DeviceProcess.h"
#include "PelNetSDK/Login.h"
#include "PlainClient.h"

namespace
{

using Bench::DeviceProcess;
using Bench::PlainClient;
using CapabilitySet::AlarmHostCommunicationStatus;
using CapabilitySet::AlarmHostZoneConfig;
using CapabilitySet::BasicCapability;
using CapabilitySet::DeviceCap;
using CapabilitySet::JsonConfigApp;
using Clock = std::chrono::steady_clock;

constexpr char kProfile[] = "alarmhost";
constexpr int kSessions = 8;
constexpr std::uint64_t kWarmUp = 10'000;
constexpr double kMebibyte = 1024.0 * 1024.0;
constexpr double kMostGrowth = 1.05;  // of memory after the warm-up
// The allocator keeps a heap per thread, whose unused part settles later.
constexpr double kMostProcessGrowth = 1.15;
constexpr double kMostShare = 1.15;

/// One operation and the request that it sends.
struct Query
{
    const char* name;
    const char* path;
    bool post;
    bool (*ask)(int userID);  ///< false also if the record was not filled
};

constexpr Query kQueries[] = {
    {"GetBasicCapability", "/TARN/SDK/deviceAbility/1", true,
     [](int userID) {
         BasicCapability record;
         unsigned int err = 0;
         return BasicCapability::GetBasicCapability(record, err, userID) && record.valid;
     }},
    {"GetDeviceCapability", "/TARN/System/capabilities", false,
     [](int userID) {
         DeviceCap record;
         unsigned int err = 0;
         return DeviceCap::GetDeviceCapability(record, err, userID) && record.capable;
     }},
    {"GetAlarmHostZoneConfiguration", "/TARN/SecurityCP/Configuration/zones?format=json", false,
     [](int userID) {
         AlarmHostZoneConfig record;
         unsigned int err = 0;
         return JsonConfigApp::GetAlarmHostZoneConfiguration(record, err, userID) &&
                !record.zones.empty();
     }},
    {"GetAlarmHostCommuniStatus", "/TARN/SecurityCP/status/communication?format=json", false,
     [](int userID) {
         AlarmHostCommunicationStatus record;
         unsigned int err = 0;
         return JsonConfigApp::GetAlarmHostCommuniStatus(record, err, userID) &&
                !record.root.isNull();
     }},
};

class Session
{
public:
    explicit Session(const DeviceProcess& device)
    {
        tagNET_ORB_LOGIN_INFO info{};
        info.address = device.Url().c_str();
        info.userName = DeviceProcess::kUser;
        info.password = device.Password().c_str();
        if (!device.CertificateFile().empty()) {
            info.certificateFile = device.CertificateFile().c_str();
        }
        userID_ = NET_ORB_Login(&info);
    }
    ~Session() { NET_ORB_Logout(userID_); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    [[nodiscard]] int UserID() const { return userID_; }

private:
    int userID_ = -1;
};

/// Memory of both processes while no operation runs, and its growth since the warm-up.
class Memory
{
public:
    explicit Memory(pid_t device) : device_(device)
    {
        heap_ = mallinfo2().uordblks;
        client_ = Bench::ResidentBytes(getpid());
        served_ = Bench::ResidentBytes(device_);
    }

    void End()
    {
        heapGrowth = Growth(heap_, mallinfo2().uordblks);
        clientGrowth = Growth(client_, Bench::ResidentBytes(getpid()));
        deviceGrowth = Growth(served_, Bench::ResidentBytes(device_));
    }

    [[nodiscard]] bool IsFlat() const
    {
        return std::max(heapGrowth, deviceGrowth) <= kMostGrowth &&
               clientGrowth <= kMostProcessGrowth;
    }

    [[nodiscard]] double ClientMebibytes() const
    {
        return static_cast<double>(client_) / kMebibyte;
    }
    [[nodiscard]] double DeviceMebibytes() const
    {
        return static_cast<double>(served_) / kMebibyte;
    }

    // Relative to the value after the warm-up.
    double heapGrowth = 0;    ///< the client's live allocations
    double clientGrowth = 0;  ///< the client's process
    double deviceGrowth = 0;

private:
    static double Growth(std::size_t& held, std::size_t now)
    {
        const double growth =
            static_cast<double>(now) / static_cast<double>(std::max<std::size_t>(held, 1));
        held = now;
        return growth;
    }

    pid_t device_;
    std::size_t heap_ = 0;
    std::size_t client_ = 0;
    std::size_t served_ = 0;
};

struct Load
{
    std::uint64_t requests;
    unsigned threads;
};

/// Runs the queries in turn on all threads, one per entry; returns the number of failures.
std::uint64_t RunQueries(const std::vector<std::unique_ptr<Session>>& sessions, unsigned threads,
                         std::vector<std::uint32_t>& microseconds)
{
    std::atomic<std::uint64_t> begun{0};
    std::atomic<std::uint64_t> failed{0};
    const auto work = [&](int userID) {
        for (std::uint64_t i = begun++; i < microseconds.size(); i = begun++) {
            const Clock::time_point start = Clock::now();
            if (!kQueries[i % std::size(kQueries)].ask(userID)) {
                ++failed;
            }
            microseconds[i] = static_cast<std::uint32_t>(
                std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start)
                    .count());
        }
    };
    std::vector<std::thread> running;
    for (unsigned i = 0; i < threads; ++i) {
        running.emplace_back(work, sessions[i % kSessions]->UserID());
    }
    for (std::thread& thread : running) {
        thread.join();
    }
    return failed;
}

/// Prints a row; true if no query failed and memory stayed flat.
bool RunLoad(const char* name, const Load& load, bool tls)
{
    Device::ServerOptions options;
    options.tls = tls;
    const auto device = DeviceProcess::Start(kProfile, std::move(options));
    std::vector<std::unique_ptr<Session>> sessions;
    for (int i = 0; device != nullptr && i < kSessions; ++i) {
        sessions.push_back(std::make_unique<Session>(*device));
    }
    if (device == nullptr || sessions.back()->UserID() < 0) {
        std::fprintf(stderr, "bench_load: no device to ask\n");
        return false;
    }
    std::vector<std::uint32_t> warmUp(kWarmUp);
    std::uint64_t failed = RunQueries(sessions, load.threads, warmUp);
    // Touch the pages before memory is measured.
    std::vector<std::uint32_t> microseconds(load.requests, 1);
    Memory memory(device->Pid());
    const Clock::time_point start = Clock::now();
    failed += RunQueries(sessions, load.threads, microseconds);
    const std::chrono::duration<double> took = Clock::now() - start;
    memory.End();

    const auto rank = microseconds.begin() + static_cast<std::ptrdiff_t>(load.requests * 99 / 100);
    std::nth_element(microseconds.begin(), rank, microseconds.end());
    std::printf("%-6s %8u %10llu %8llu %11.0f %8.1f %6.3f %8.1f %6.3f %8.1f %6.3f\n", name,
                load.threads, static_cast<unsigned long long>(load.requests),
                static_cast<unsigned long long>(failed),
                static_cast<double>(load.requests) / took.count(), *rank / 1000.0,
                memory.heapGrowth, memory.ClientMebibytes(), memory.clientGrowth,
                memory.DeviceMebibytes(), memory.deviceGrowth);
    std::fflush(stdout);
    return failed == 0 && memory.IsFlat();
}

template <class Ask>
double MicrosecondsOf(int queries, Ask ask)
{
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < queries; ++i) {
        if (!ask()) {
            return 0;
        }
    }
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count() / queries;
}

double MedianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// What any client does with a document; false if it is not one.
bool ParsePlainly(const std::string& document)
{
    if (!document.starts_with('<')) {
        Json::Value root;
        return Json::Reader().parse(document, root);
    }
    xmlDoc* const parsed = xmlParseDoc(reinterpret_cast<const xmlChar*>(document.c_str()));
    xmlFreeDoc(parsed);
    return parsed != nullptr;
}

/// Ways to fetch the same documents: libcurl alone, libcurl and a plain parser, the library.
struct Times
{
    std::vector<double> fetched;
    std::vector<double> parsed;
    std::vector<double> ours;

    static double Ratio(const std::vector<double>& ours, const std::vector<double>& plain)
    {
        std::vector<double> ratios(ours.size());
        std::transform(ours.begin(), ours.end(), plain.begin(), ratios.begin(), std::divides<>());
        return MedianOf(std::move(ratios));
    }
};

/// Part of a table: a wire and the delay of the device's answers.
struct Road
{
    const char* name;
    bool tls;
    int delay;  ///< milliseconds
    int rounds;
    int queries;  ///< of each kind in a round
};

/// Runs the three ways in turn; true if none failed.
bool Measure(const Road& road, const Query& query, PlainClient& client, int userID, Times& times)
{
    const auto fetch = [&]() -> const std::string& { return client.Fetch(query.path, query.post); };
    for (int round = 0; round < road.rounds; ++round) {
        times.fetched.push_back(MicrosecondsOf(road.queries, [&] { return !fetch().empty(); }));
        times.parsed.push_back(MicrosecondsOf(road.queries, [&] { return ParsePlainly(fetch()); }));
        times.ours.push_back(MicrosecondsOf(road.queries, [&] { return query.ask(userID); }));
        if (times.fetched.back() <= 0 || times.parsed.back() <= 0 || times.ours.back() <= 0) {
            std::fprintf(stderr, "bench_load: %s was not answered\n", query.name);
            return false;
        }
    }
    return true;
}

/// Prints one row per query; true if the goals are met. On a loopback, parsing costs as much as the
/// exchange, so the library is compared with a client that fetches and parses. With a device that
/// takes its time, it is compared with the fetch alone.
bool RunShare(const Road& road)
{
    Device::ServerOptions options;
    options.tls = road.tls;
    if (road.delay > 0) {
        options.faults.emplace_back();
        options.faults.back().interval = std::chrono::milliseconds(road.delay);
    }
    const auto device = DeviceProcess::Start(kProfile, std::move(options));
    if (device == nullptr) {
        return false;
    }
    const Session session(*device);
    PlainClient client(device->Url(), DeviceProcess::kUser, device->Password(),
                       device->CertificateFile());
    bool allMet = true;
    for (const Query& query : kQueries) {
        Times times;
        if (!Measure(road, query, client, session.UserID(), times)) {
            return false;
        }
        const double ofFetch = Times::Ratio(times.ours, times.fetched);
        const double ofParse = Times::Ratio(times.ours, times.parsed);
        const bool met = (road.delay > 0 ? ofFetch : ofParse) <= kMostShare;
        allMet = allMet && met;
        std::printf("%-12s %-30s %6zu %9.1f %9.1f %9.1f %8.3f %8.3f  <= %.2f of %-7s %s\n",
                    road.name, query.name, client.Fetch(query.path, query.post).size(),
                    MedianOf(times.fetched), MedianOf(times.parsed), MedianOf(times.ours), ofFetch,
                    ofParse, kMostShare, road.delay > 0 ? "fetch" : "+parse", met ? "yes" : "NO");
        std::fflush(stdout);
    }
    return allMet;
}

}  // namespace

int main(int argc, char** argv)
{
    Load load{1'000'000, 64};
    if (argc > 1) {
        load.requests = std::strtoull(argv[1], nullptr, 10);
    }
    if (argc > 2) {
        load.threads = static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10));
    }
    if (argc > 3 || load.requests == 1 || load.threads == 0) {
        std::fprintf(stderr, "usage: bench_load [REQUESTS [THREADS]], 0 requests for no load\n");
        return 2;
    }
    bool met = true;
    if (load.requests > 0) {
        std::printf("%-6s %8s %10s %8s %11s %8s %6s %8s %6s %8s %6s\n", "wire", "threads",
                    "requests", "failed", "requests/s", "p99 ms", "heap", "client", "grew",
                    "device", "grew");
        met = RunLoad("http", load, false);
        met = RunLoad("https", load, true) && met;
        std::printf("\n");
    }
    std::printf("%-12s %-30s %6s %9s %9s %9s %8s %8s  %-18s %s\n", "wire", "query", "bytes",
                "fetch us", "+parse us", "ours us", "of fetch", "of both", "goal", "met");
    constexpr Road kRoads[] = {
        {"http", false, 0, 101, 40}, {"https", true, 0, 101, 40}, {"http, 5 ms", false, 5, 21, 10}};
    for (const Road& road : kRoads) {
        met = RunShare(road) && met;
    }
    return met ? 0 : 1;
}
