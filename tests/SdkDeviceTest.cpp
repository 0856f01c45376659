// The bundled SDK against the simulated device's own server, over TLS and back.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Device/DeviceServer.h"
#include "support/SdkCalls.h"

namespace
{

using namespace std::chrono_literals;
using Device::FaultKind;
using TestSupport::Ask;
using TestSupport::LoggedIn;
using TestSupport::Outcome;
using TestSupport::Statistics;

/// Answers with what was asked, so that a mixed-up answer shows.
class EchoModel : public Device::DeviceModel
{
public:
    [[nodiscard]] std::string Name() const override { return "echo"; }
    [[nodiscard]] std::string Description() const override { return "echo"; }
    [[nodiscard]] bool CheckPassword(std::string_view user, std::string_view text) const override
    {
        return user == "admin" && text == password_;
    }
    [[nodiscard]] const std::string* PasswordOf(std::string_view user) const override
    {
        return user == "admin" ? &password_ : nullptr;
    }
    Device::Response Handle(const Device::Request& request) override
    {
        ++handled;
        // The login's question and any other about channels want a number.
        const bool isChannel = request.target.find("/TARN/SDK/channels/") == 0;
        return {200, "text/plain",
                isChannel ? "1" : request.method + " " + request.target + " " + request.body};
    }

    std::atomic<int> handled{0};

private:
    const std::string password_ = "secret-1";
};

class SdkDevice : public testing::Test
{
protected:
    void Start(Device::ServerOptions options)
    {
        std::string error;
        options.tls = true;
        options.log = [this](const auto& request) { rejected_ += request.status == 401 ? 1 : 0; };
        server_ = Device::DeviceServer::Start(model_, std::move(options), error);
        ASSERT_NE(server_, nullptr) << error;
        std::ofstream(file_) << server_->CertificatePem();
        url_ = server_->Url();
        info_.address = url_.c_str();
        info_.certificateFile = file_.c_str();
        info_.userName = "admin";
        info_.password = "secret-1";
    }
    ~SdkDevice() override
    {
        server_.reset();
        std::filesystem::remove(file_);
    }

    const std::shared_ptr<EchoModel> model_ = std::make_shared<EchoModel>();
    std::atomic<int> rejected_{0};
    std::string file_ = (std::filesystem::temp_directory_path() /
                         ("sdkDeviceTest" + std::to_string(getpid()) + ".pem"))
                            .string();
    std::string url_;
    tagNET_ORB_LOGIN_INFO info_{};
    std::unique_ptr<Device::DeviceServer> server_;
};

TEST_F(SdkDevice, AHundredQueriesTakeOneConnectionAndOneChallenge)
{
    Start({});
    const auto before = Statistics();
    const LoggedIn device(info_);
    for (int i = 0; i < 100; ++i) {
        const std::string target = "/TARN/a?n=" + std::to_string(i);
        EXPECT_EQ(Ask(device.UserID(), "GET " + target).answer, "GET " + target + " ");
    }
    EXPECT_EQ(Statistics().connections - before.connections, 1U);
    EXPECT_EQ(rejected_, 1);
}

TEST_F(SdkDevice, AGrownRepeatIsServedFromTheKeptAnswerAndAChangeCarriedOutOnce)
{
    Start({});
    const LoggedIn device(info_);
    const int before = model_->handled;
    const Outcome small = Ask(device.UserID(), "PUT /TARN/a", "<a/>", {.answer = 4});
    EXPECT_EQ(small.error, NET_ORB_BUFFER_TOO_SMALL);
    const Outcome grown =
        Ask(device.UserID(), "PUT /TARN/a", "<a/>", {.answer = small.returnedSize});
    EXPECT_EQ(grown.answer, "PUT /TARN/a <a/>");
    EXPECT_EQ(model_->handled - before, 1);
}

TEST_F(SdkDevice, TheThreadThatAsksHearsHowMuchOfTheAnswerHasCome)
{
    Start({});
    tagNET_ORB_LOGIN_INFO simulated{};
    simulated.address = "sim:recorder";
    for (const auto& [info, request, size] :
         {std::tuple(info_, "PUT /TARN/a", 500'012ULL),
          std::tuple(simulated, "GET /TARN/SDT/HFPD/search/dataPackage/pkg-1M", 1ULL << 20)}) {
        const LoggedIn device(info);
        std::vector<std::pair<unsigned long long, unsigned long long>> heard;
        NET_ORB_SetReceiveProgress(
            [](unsigned long long received, unsigned long long total, void* to) {
                static_cast<decltype(heard)*>(to)->emplace_back(received, total);
            },
            &heard);
        EXPECT_TRUE(Ask(device.UserID(), request, std::string(500'000, 'x'), {2U << 20}).success);
        NET_ORB_SetReceiveProgress(nullptr, nullptr);
        ASSERT_FALSE(heard.empty()) << request;
        EXPECT_EQ(heard.back(), std::pair(size, size)) << request;
        EXPECT_TRUE(std::ranges::is_sorted(heard)) << request;
    }
}

TEST_F(SdkDevice, AWrongPasswordIsTriedOnceAndAStrangerNotAtAll)
{
    Start({});
    info_.password = "wrong";
    EXPECT_EQ(NET_ORB_Login(&info_), -1);
    EXPECT_EQ(NET_ORB_GetLastError(), NET_ORB_PASSWORD_ERROR);
    EXPECT_EQ(rejected_, 2) << "the challenge, and the one answer to it";
    info_.certificateFile = nullptr;
    EXPECT_EQ(NET_ORB_Login(&info_), -1);
    EXPECT_EQ(NET_ORB_GetLastError(), NET_ORB_CERTIFICATE_ERROR);
    EXPECT_EQ(rejected_, 2);
    EXPECT_EQ(model_->handled, 0);
}

TEST_F(SdkDevice, AnswersThatNeverEndOrEndTooSoonAreErrorsInTime)
{
    Start({.faults = {
               {.kind = FaultKind::Drip, .pathPrefix = "/TARN/drip", .interval = 200ms, .bytes = 1},
               {.kind = FaultKind::Truncate, .pathPrefix = "/TARN/cut", .bytes = 3},
               {.kind = FaultKind::Reset, .pathPrefix = "/TARN/reset", .times = 1}}});
    const LoggedIn device(info_);
    EXPECT_EQ(Ask(device.UserID(), "GET /TARN/drip", "", {.receiveTimeout = 1000}).error,
              NET_ORB_NETWORK_RECV_TIMEOUT);
    EXPECT_EQ(Ask(device.UserID(), "GET /TARN/cut").error, NET_ORB_NETWORK_RECV_ERROR);
    EXPECT_EQ(Ask(device.UserID(), "PUT /TARN/reset", "<a/>").error, NET_ORB_NETWORK_RECV_ERROR);
    EXPECT_EQ(Ask(device.UserID(), "GET /TARN/after").answer, "GET /TARN/after ")
        << "the session survives all of it";
}

}  // namespace
