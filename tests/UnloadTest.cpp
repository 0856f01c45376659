// Two copies of the shared library in one process, loaded, used and unloaded.
// SPDX-License-Identifier: Apache-2.0
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <thread>

#include "CapabilitySet/BasicCapability.h"
#include "support/SdkCalls.h"
#include "support/TemporaryFolder.h"

namespace
{

using CapabilitySet::BasicCapability;
namespace fs = std::filesystem;

/// A loaded copy of the library.
class Copy
{
public:
    Copy(const fs::path& folder, const char* name) : file_(folder / name)
    {
        if (!fs::exists(file_)) {
            fs::copy_file(LIBRARY, file_);
        }
        handle_ = dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL);
        // The exported query by its mangled name.
        ask_ = reinterpret_cast<Query*>(
            handle_ == nullptr
                ? nullptr
                : dlsym(handle_,
                        "_ZN13CapabilitySet15BasicCapability18GetBasicCapabilityERS0_Rji"));
        EXPECT_NE(ask_, nullptr) << dlerror();
    }
    ~Copy() { dlclose(handle_); }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    /// USB sockets of the device; -1 if it does not answer.
    [[nodiscard]] int UsbSockets(int userID) const
    {
        BasicCapability record;
        unsigned err = 0;
        return ask_ != nullptr && ask_(record, err, userID) ? record.hardware.USBNum : -1;
    }

private:
    using Query = bool(BasicCapability& out, unsigned int& err, int userID);
    fs::path file_;
    void* handle_ = nullptr;
    Query* ask_ = nullptr;
};

/// Number of lines that contain `part` in a file of /proc/self.
std::size_t Lines(const char* file, const std::string& part)
{
    std::ifstream lines(std::string("/proc/self/") + file);
    std::size_t count = 0;
    for (std::string line; std::getline(lines, line);) {
        count += line.find(part) != std::string::npos ? 1 : 0;
    }
    return count;
}

std::size_t EntriesOf(const char* folder)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

/// Loads both copies, uses each on threads that end, and unloads them.
void UseBoth(const fs::path& folder, int userID)
{
    const Copy first(folder, "first.so");
    const Copy second(folder, "second.so");
    std::array<int, 4> sockets{};
    std::array<std::thread, 4> threads;
    for (std::size_t i = 0; i < threads.size(); ++i) {
        threads[i] =
            std::thread([&, i] { sockets[i] = (i % 2 == 0 ? first : second).UsbSockets(userID); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(std::count(sockets.begin(), sockets.end(), sockets.front()), 4);
    EXPECT_GT(sockets.front(), 0);
    EXPECT_GT(Lines("maps", folder.string()), 2U);
}

TEST(UnloadTest, TwoCopiesLeaveNeitherCodeNorThreadsNorFilesNorMemory)
{
    const TestSupport::TemporaryFolder folder;
    const std::string& name = folder.Path();
    tagNET_ORB_LOGIN_INFO info{};
    info.address = "sim:recorder";
    const TestSupport::LoggedIn session(info);

    std::size_t files = 0;
    std::size_t threads = 0;
    std::size_t memory = 0;
    for (int round = 0; round < 40; ++round) {
        UseBoth(name, session.UserID());
        EXPECT_EQ(Lines("maps", name), 0U) << "still mapped after round " << round;
        // The first rounds create what the process keeps: loggers, stacks.
        if (round == 10) {
            files = EntriesOf("/proc/self/fd");
            threads = EntriesOf("/proc/self/task");
            memory = mallinfo2().uordblks;
        }
    }
    EXPECT_EQ(EntriesOf("/proc/self/fd"), files);
    EXPECT_EQ(EntriesOf("/proc/self/task"), threads);
    // What threads leave in the heap's caches varies by a few kilobytes.
    EXPECT_LE(mallinfo2().uordblks, memory + 32768) << "bytes on the heap";
}

}  // namespace
