// Exchanges with a device over HTTP, beside a client that keeps neither answers nor connections.
// SPDX-License-Identifier: Apache-2.0
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <curl/curl.h>

#include "CapabilitySet/SystemAbility.h"
#include "Comparison.h"
#include "Device/DeviceServer.h"
#include "PelNetSDK/Login.h"

namespace
{

using CapabilitySet::DeviceCap;
using Statistics = tagNET_ORB_STATISTICS;

constexpr char kPath[] = "/TARN/System/capabilities";
constexpr char kUser[] = "admin";
constexpr std::uint64_t kStep = 16384;
constexpr std::uint64_t kGrowths = 20;
constexpr int kQueries = 100;

/// What one side needed.
struct Need
{
    double exchanges = 0;
    double connections = 0;
};

/// A client that fetches documents and keeps its connection as long as it lives.
class PlainClient
{
public:
    PlainClient(const std::string& url, const std::string& password)
    {
        CURL* const curl = handle_.get();
        curl_easy_setopt(curl, CURLOPT_URL, (url + kPath).c_str());
        curl_easy_setopt(curl, CURLOPT_PROXY, "");
        curl_easy_setopt(curl, CURLOPT_HTTPAUTH, CURLAUTH_DIGEST);
        curl_easy_setopt(curl, CURLOPT_USERNAME, kUser);
        curl_easy_setopt(curl, CURLOPT_PASSWORD, password.c_str());
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &PlainClient::OnBody);
        curl_easy_setopt(curl, CURLOPT_WRITEDATA, &received_);
        curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &PlainClient::OnHeader);
        curl_easy_setopt(curl, CURLOPT_HEADERDATA, &need_);
    }

    /// Bytes of the document; 0 when there was none.
    std::uint64_t Get()
    {
        received_ = 0;
        long status = 0;
        long connections = 0;
        const CURLcode result = curl_easy_perform(handle_.get());
        curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
        curl_easy_getinfo(handle_.get(), CURLINFO_NUM_CONNECTS, &connections);
        need_.connections += static_cast<double>(connections);
        return result == CURLE_OK && status == 200 ? received_ : 0;
    }

    [[nodiscard]] Need Needed() const { return need_; }

private:
    static std::size_t OnBody(const char* /*data*/, std::size_t size, std::size_t count, void* into)
    {
        *static_cast<std::uint64_t*>(into) += size * count;
        return size * count;
    }

    static std::size_t OnHeader(const char* line, std::size_t size, std::size_t count, void* into)
    {
        if (std::string_view(line, size * count).substr(0, 5) == "HTTP/")
            static_cast<Need*>(into)->exchanges += 1;
        return size * count;
    }

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle_{curl_easy_init(),
                                                                curl_easy_cleanup};
    std::uint64_t received_ = 0;
    Need need_;
};

/// A device on the loopback, and a session with it.
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
        if (model != nullptr)
            server = Device::DeviceServer::Start(model, {}, error);
        if (server == nullptr)
            return;
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

    /// Exchanges of `queries` operations, and the connections of the session up to their end.
    [[nodiscard]] bool Ask(int queries, Need& need) const
    {
        const Statistics before = Counters();
        DeviceCap record;
        unsigned int err = 0;
        for (int i = 0; i < queries; ++i) {
            if (!DeviceCap::GetDeviceCapability(record, err, userID))
                return false;
        }
        const Statistics after = Counters();
        need.exchanges = static_cast<double>(after.exchanges - before.exchanges);
        need.connections = static_cast<double>(after.connections - connectionsBefore);
        return true;
    }
};

/// One query whose answer fits the buffer after twenty growths. The plain client is already
/// authorised, and asks again for each.
bool AskLargeAnswer(Site& site, Need& plain, Need& ours)
{
    Device::Fault padding;
    padding.kind = Device::FaultKind::Oversize;
    padding.pathPrefix = kPath;
    padding.bytes = kGrowths * kStep;
    PlainClient client(site.server->Url(), site.password);
    if (client.Get() == 0 || !site.server->SetFaults({padding}, site.error))
        return false;
    const double before = client.Needed().exchanges;
    std::uint64_t size = kStep;
    for (std::uint64_t bytes = client.Get(); bytes != 0 && bytes > size; bytes = client.Get())
        size += kStep;
    plain.exchanges = client.Needed().exchanges - before;
    plain.connections = client.Needed().connections;
    const bool answered = site.Ask(1, ours);
    return size == (kGrowths + 1) * kStep && answered && site.server->SetFaults({}, site.error);
}

/// A hundred queries. The plain client begins each with a new connection.
bool AskOften(Site& site, Need& plain, Need& ours)
{
    for (int i = 0; i < kQueries; ++i) {
        PlainClient client(site.server->Url(), site.password);
        if (client.Get() == 0)
            return false;
        plain.exchanges += client.Needed().exchanges;
        plain.connections += client.Needed().connections;
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
