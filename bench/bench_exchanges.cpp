// Exchanges with a device over HTTP, compared with a client that keeps no answers or connections.
// SPDX-License-Identifier: Apache-2.0
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

#include <curl/curl.h>

#include "CapabilitySet/SystemAbility.h"
#include "Comparison.h"
#include "Device/http/DeviceServer.h"
#include "PelNetSDK/Login.h"
#include "PlainClient.h"

namespace
{

using Bench::PlainClient;
using CapabilitySet::DeviceCap;
using Statistics = tagNET_ORB_STATISTICS;

constexpr char kPath[] = "/TARN/System/capabilities";
constexpr char kUser[] = "admin";
constexpr std::uint64_t kStep = 16384;
constexpr std::uint64_t kGrowths = 20;
constexpr int kQueries = 100;

/// The cost of one side.
struct Need
{
    double exchanges = 0;
    double connections = 0;
};

/// A device on the loopback and a session with it.
struct Site
{
    std::shared_ptr<Device::DeviceModel> model;
    std::unique_ptr<Device::DeviceServer> server;
    std::string password;
    int userID = -1;
    unsigned long long connectionsBefore = 0;
    std::string error;

    Site()
    {
        model = Device::DeviceModel::Load("dome", error);
        if (model != nullptr) {
            server = Device::DeviceServer::Start(model, {}, error);
        }
        if (server == nullptr) {
            return;
        }
        password = *model->PasswordOf(kUser);
        connectionsBefore = Counters().connections;
        const std::string url = server->Url();
        tagNET_ORB_LOGIN_INFO info{};
        info.address = url.c_str();
        info.userName = kUser;
        info.password = password.c_str();
        userID = NET_ORB_Login(&info);
    }
    ~Site() { NET_ORB_Logout(userID); }
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    static Statistics Counters()
    {
        Statistics now{};
        NET_ORB_GetStatistics(&now);
        return now;
    }

    /// Exchanges of `queries` operations, and connections of the session so far.
    [[nodiscard]] bool Ask(int queries, Need& need) const
    {
        const Statistics before = Counters();
        DeviceCap record;
        unsigned int err = 0;
        for (int i = 0; i < queries; ++i) {
            if (!DeviceCap::GetDeviceCapability(record, err, userID)) {
                return false;
            }
        }
        const Statistics after = Counters();
        need.exchanges = static_cast<double>(after.exchanges - before.exchanges);
        need.connections = static_cast<double>(after.connections - connectionsBefore);
        return true;
    }
};

/// One query whose answer fits the buffer after twenty growths. The plain client is already
/// authorised and asks again for each growth.
bool AskLargeAnswer(Site& site, Need& plain, Need& ours)
{
    Device::Fault padding;
    padding.kind = Device::FaultKind::Oversize;
    padding.pathPrefix = kPath;
    padding.bytes = kGrowths * kStep;
    PlainClient client(site.server->Url(), kUser, site.password);
    if (client.Fetch(kPath).empty() || !site.server->SetFaults({padding}, site.error)) {
        return false;
    }
    const long before = client.Exchanges();
    std::uint64_t size = kStep;
    while (client.Fetch(kPath).size() > size) {
        size += kStep;
    }
    plain.exchanges = static_cast<double>(client.Exchanges() - before);
    plain.connections = static_cast<double>(client.Connections());
    const bool answered = site.Ask(1, ours);
    return size == (kGrowths + 1) * kStep && answered && site.server->SetFaults({}, site.error);
}

/// A hundred queries. The plain client opens a connection for each.
bool AskOften(Site& site, Need& plain, Need& ours)
{
    for (int i = 0; i < kQueries; ++i) {
        PlainClient client(site.server->Url(), kUser, site.password);
        if (client.Fetch(kPath).empty()) {
            return false;
        }
        plain.exchanges += static_cast<double>(client.Exchanges());
        plain.connections += static_cast<double>(client.Connections());
    }
    return site.Ask(kQueries, ours);
}

void Add(const char* work, bool (*ask)(Site&, Need&, Need&))
{
    const auto run = [ask](benchmark::State& state) {
        for (auto round : state) {
            Site site;
            Need plain;
            Need ours;
            if (site.userID < 0 || !ask(site, plain, ours)) {
                state.SkipWithError("the device did not answer as it should");
                return;
            }
            state.counters["baseline"] = plain.exchanges;
            state.counters["ours"] = ours.exchanges;
            state.counters["connections"] = ours.connections;
        }
    };
    benchmark::RegisterBenchmark(work, run)->Iterations(1);
}

}  // namespace

int main(int argc, char** argv)
{
    curl_global_init(CURL_GLOBAL_DEFAULT);
    Add("an answer that needs 20 growths", AskLargeAnswer);
    Add("100 queries on one session", AskOften);
    return Bench::Run(argc, argv);
}
