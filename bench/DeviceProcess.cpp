// A simulated device served over HTTP by a separate process, so that only the client is measured.
// SPDX-License-Identifier: Apache-2.0
#include "DeviceProcess.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

namespace Bench
{
namespace
{

/// Runs in the child: reports its address and serves until the parent closes the lifeline.
int Serve(const std::string& profile, Device::ServerOptions options, int tellTo, int lifeline)
{
    std::string error;
    const auto model = Device::DeviceModel::Load(profile, error);
    const auto server =
        model == nullptr ? nullptr : Device::DeviceServer::Start(model, std::move(options), error);
    if (server == nullptr) {
        return 1;
    }
    std::ostringstream told;
    told << server->Url() << '\n'
         << *model->PasswordOf(DeviceProcess::kUser) << '\n'
         << server->CertificatePem();
    const std::string text = told.str();
    if (write(tellTo, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        return 1;
    }
    close(tellTo);
    char none = 0;
    return static_cast<int>(read(lifeline, &none, 1));
}

}  // namespace

std::unique_ptr<DeviceProcess> DeviceProcess::Start(const std::string& profile,
                                                    Device::ServerOptions options)
{
    int told[2];
    int life[2];
    if (pipe2(told, O_CLOEXEC) != 0 || pipe2(life, O_CLOEXEC) != 0) {
        return nullptr;
    }
    const pid_t pid = fork();
    if (pid == 0) {
        close(told[0]);
        close(life[1]);
        _exit(Serve(profile, std::move(options), told[1], life[0]));
    }
    close(told[1]);
    close(life[0]);
    std::unique_ptr<DeviceProcess> device(new DeviceProcess);
    device->pid_ = pid;
    device->lifeline_ = life[1];
    const bool heard = pid > 0 && device->Hear(told[0]);
    close(told[0]);
    return heard ? std::move(device) : nullptr;
}

bool DeviceProcess::Hear(int from)
{
    std::string text;
    char part[4096];
    for (ssize_t size = read(from, part, sizeof part); size > 0;
         size = read(from, part, sizeof part)) {
        text.append(part, static_cast<std::size_t>(size));
    }
    std::istringstream lines(text);
    std::getline(lines, url_);
    std::getline(lines, password_);
    const std::string certificate(std::istreambuf_iterator<char>(lines), {});
    if (!certificate.empty()) {
        char name[] = "/tmp/capabilityset-bench-XXXXXX";
        const int file = mkstemp(name);
        if (file < 0) {
            return false;
        }
        close(file);
        certificateFile_ = name;
        std::ofstream(certificateFile_) << certificate;
    }
    return !url_.empty();
}

DeviceProcess::~DeviceProcess()
{
    close(lifeline_);
    if (pid_ > 0) {
        waitpid(pid_, nullptr, 0);
    }
    if (!certificateFile_.empty()) {
        unlink(certificateFile_.c_str());
    }
}

std::size_t ResidentBytes(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/statm");
    std::size_t pages = 0;
    std::size_t resident = 0;
    status >> pages >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace Bench
