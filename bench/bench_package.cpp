// Downloading data packages over HTTP: memory at its peak, and exchanges, beside a client that
// appends what arrives to a text. Device and clients each have a process of their own.
// SPDX-License-Identifier: Apache-2.0
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Comparison.h"
#include "Device/DeviceServer.h"
#include "Device/Package.h"
#include "PelNetSDK/Login.h"
#include "PlainClient.h"

namespace
{

using Bench::PlainClient;

constexpr char kUser[] = "admin";

/// Where a device listens, as a device's process tells it.
struct Place
{
    char url[64];
    char password[64];
};

/// What a client did, as its process tells it.
struct Told
{
    bool whole;        ///< it got the package, and every byte is the device's
    double exchanges;  ///< for the package
};

/// A process that runs `body` and writes what it returns to a pipe.
template <class Result>
class Child
{
public:
    template <class Body>
    explicit Child(Body body)
    {
        if (pipe(pipe_) != 0)
            return;
        process_ = fork();
        if (process_ == 0) {
            close(pipe_[0]);
            body([this](const Result& result) {
                return write(pipe_[1], &result, sizeof result) == sizeof result;
            });
            _exit(0);
        }
        close(pipe_[1]);
    }
    ~Child()
    {
        if (process_ > 0)
            Wait();
        close(pipe_[0]);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    bool Read(Result& result) const
    {
        return process_ > 0 && read(pipe_[0], &result, sizeof result) == sizeof result;
    }

    /// Waits for its end; what it held of memory at most, in MiB.
    double Wait()
    {
        rusage usage{};
        int status = 0;
        wait4(process_, &status, 0, &usage);
        process_ = -1;
        return static_cast<double>(usage.ru_maxrss) / 1024;
    }

private:
    int pipe_[2] = {-1, -1};
    pid_t process_ = -1;
};

/// Serves until the other end of `alive` is closed.
template <class Tell>
void Serve(int alive, Tell tell)
{
    std::string error;
    const auto model = Device::DeviceModel::Load("recorder", error);
    const auto server = model ? Device::DeviceServer::Start(model, {}, error) : nullptr;
    if (server == nullptr)
        return;
    Place place{};
    server->Url().copy(place.url, sizeof place.url - 1);
    model->PasswordOf(kUser)->copy(place.password, sizeof place.password - 1);
    char end = 0;
    if (tell(place))
        static_cast<void>(read(alive, &end, 1) + 1);
}

Told DownloadPlainly(const Place& place, const std::string& task)
{
    std::string package;
    PlainClient client(
        std::string(place.url) + "/TARN/SDT/HFPD/search/dataPackage/" + task + "?format=json",
        kUser, place.password, &package);
    const bool got = client.Get() != 0;
    return {got && Device::IsWholePackage(package), client.Needed().exchanges};
}

unsigned long long Exchanges()
{
    tagNET_ORB_STATISTICS now{};
    NET_ORB_GetStatistics(&now);
    return now.exchanges;
}

Told Download(const Place& place, const std::string& task)
{
    tagNET_ORB_LOGIN_INFO info{};
    info.address = place.url;
    info.userName = kUser;
    info.password = place.password;
    const int user = NET_ORB_Login(&info);
    const unsigned long long before = Exchanges();
    tagNET_ORB_XML_CONFIG_OUTPUT output{};
    unsigned int err = 0;
    const bool got = CapabilitySet::JsonConfigApp::GetHFPDDataPackage(output, task, err, user);
    const unsigned long long exchanges = Exchanges() - before;
    const std::unique_ptr<char[]> package(static_cast<char*>(output.outBuffer));
    NET_ORB_Logout(user);
    return {got && Device::IsWholePackage({package.get(), output.returnedSize}),
            static_cast<double>(exchanges)};
}

/// Runs a client; false when it did not get the package.
bool Measure(Told (*client)(const Place&, const std::string&), const Place& place,
             const std::string& task, double& memory, double& exchanges)
{
    Child<Told> child([&](auto tell) { tell(client(place, task)); });
    Told told{};
    const bool whole = child.Read(told) && told.whole;
    memory = child.Wait();
    exchanges = told.exchanges;
    return whole;
}

void Compare(benchmark::State& state, const std::string& task)
{
    int alive[2];
    if (pipe(alive) != 0) {
        state.SkipWithError("there is no pipe");
        return;
    }
    const Child<Place> device([&](auto tell) {
        close(alive[1]);
        Serve(alive[0], tell);
    });
    close(alive[0]);
    const std::unique_ptr<int, void (*)(int*)> ender(&alive[1], [](int* end) { close(*end); });
    for (auto round : state) {
        Place place{};
        double baseline = 0;
        double ours = 0;
        double exchanges = 0;
        if (!device.Read(place) || !Measure(&DownloadPlainly, place, task, baseline, exchanges) ||
            !Measure(&Download, place, task, ours, exchanges)) {
            state.SkipWithError("the package did not arrive whole");
            return;
        }
        state.counters["baseline"] = baseline;
        state.counters["ours"] = ours;
        state.counters["exchanges"] = exchanges;
    }
}

void Add(const std::string& size)
{
    benchmark::RegisterBenchmark(
        ("a package of " + size + " MiB").c_str(),
        [task = "pkg-" + size + "M"](benchmark::State& state) { Compare(state, task); })
        ->Iterations(1);
}

}  // namespace

int main(int argc, char** argv)
{
    Add("50");
    Add("256");
    return Bench::Run(argc, argv);
}
