// Downloading data packages over HTTP: peak memory and exchanges, compared with a client that
// appends what arrives to a string. The device and each client run in separate processes.
// SPDX-License-Identifier: Apache-2.0
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Comparison.h"
#include "Device/search/Package.h"
#include "DeviceProcess.h"
#include "PelNetSDK/Login.h"
#include "PlainClient.h"

namespace
{

using Bench::DeviceProcess;
using Bench::PlainClient;

/// A client's own report.
struct Told
{
    bool whole;        ///< the package arrived, and every byte is right
    double exchanges;  ///< for the package
};

/// A process that runs `body` and writes the result to a pipe.
class Child
{
public:
    template <class Body>
    explicit Child(Body body)
    {
        if (pipe(pipe_) != 0) {
            return;
        }
        process_ = fork();
        if (process_ == 0) {
            close(pipe_[0]);
            const Told result = body();
            _exit(write(pipe_[1], &result, sizeof result) == sizeof result ? 0 : 1);
        }
        close(pipe_[1]);
    }
    ~Child()
    {
        if (process_ > 0) {
            Wait();
        }
        close(pipe_[0]);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    bool Read(Told& result) const
    {
        return process_ > 0 && read(pipe_[0], &result, sizeof result) == sizeof result;
    }

    /// Waits for its end; returns its peak memory in MiB.
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

Told DownloadPlainly(const DeviceProcess& device, const std::string& task)
{
    PlainClient client(device.Url(), DeviceProcess::kUser, device.Password());
    const std::string path = "/TARN/SDT/HFPD/search/dataPackage/" + task + "?format=json";
    return {Device::IsWholePackage(client.Fetch(path.c_str())),
            static_cast<double>(client.Exchanges())};
}

unsigned long long Exchanges()
{
    tagNET_ORB_STATISTICS now{};
    NET_ORB_GetStatistics(&now);
    return now.exchanges;
}

Told Download(const DeviceProcess& device, const std::string& task)
{
    tagNET_ORB_LOGIN_INFO info{};
    info.address = device.Url().c_str();
    info.userName = DeviceProcess::kUser;
    info.password = device.Password().c_str();
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

/// Runs a client; false if it did not get the package.
bool Measure(Told (*client)(const DeviceProcess&, const std::string&), const DeviceProcess& device,
             const std::string& task, double& memory, double& exchanges)
{
    Child child([&] { return client(device, task); });
    Told told{};
    const bool whole = child.Read(told) && told.whole;
    memory = child.Wait();
    exchanges = told.exchanges;
    return whole;
}

void Compare(benchmark::State& state, const std::string& task)
{
    const auto device = DeviceProcess::Start("recorder", {});
    for (auto round : state) {
        double baseline = 0;
        double ours = 0;
        double exchanges = 0;
        if (device == nullptr || !Measure(&DownloadPlainly, *device, task, baseline, exchanges) ||
            !Measure(&Download, *device, task, ours, exchanges)) {
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
