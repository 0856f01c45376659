// Simulated devices under test: requests to a model, and logins for the library.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/json.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "Device/http/DeviceServer.h"
#include "support/SdkCalls.h"

namespace TestSupport
{

inline std::shared_ptr<Device::DeviceModel> LoadDevice(const std::string& profile)
{
    std::string error;
    auto model = Device::DeviceModel::Load(profile, error);
    return model ? model : throw std::runtime_error(error);
}

/// The request target of a path below /TARN/, asking for JSON.
inline std::string Target(const std::string& path)
{
    return "/TARN/" + path + (path.find('?') == std::string::npos ? "?" : "&") + "format=json";
}

struct Step
{
    const char* method;
    std::string path;  ///< below /TARN/, without "format=json"
    std::string body;
    int status;
    const char* answer;  ///< a part of it
};

inline void Play(Device::DeviceModel& model, const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        const auto response = model.Handle({step.method, Target(step.path), step.body});
        EXPECT_EQ(response.status, step.status) << step.method << " " << step.path;
        EXPECT_THAT(response.body, testing::HasSubstr(step.answer))
            << step.method << " " << step.path;
    }
}

inline Json::Value AskJson(Device::DeviceModel& model, const std::string& method,
                           const std::string& path, const std::string& body = "")
{
    Json::Value root;
    Json::Reader().parse(model.Handle({method, Target(path), body}).body, root);
    return root;
}

/// How a client reaches a simulated device.
enum class Road
{
    InProcess,
    Http  ///< over the loopback, with a password
};

/// A device of a profile and a login to it.
class Asked
{
public:
    Asked(Road road, const std::string& profile, unsigned receiveTimeout = 0)
        : address_("sim:" + profile)
    {
        info_.receiveTimeout = receiveTimeout;
        if (road == Road::Http) {
            Serve(profile);
        }
        info_.address = address_.c_str();
        info_.userName = password_.empty() ? nullptr : "admin";
        info_.password = password_.empty() ? nullptr : password_.c_str();
        login_ = std::make_unique<LoggedIn>(info_);
    }
    Asked(const Asked&) = delete;
    Asked& operator=(const Asked&) = delete;
    operator int() const { return login_->UserID(); }

    /// For another login to it; in process each login has its own device.
    [[nodiscard]] const tagNET_ORB_LOGIN_INFO& Info() const { return info_; }

    void SetFaults(std::vector<Device::Fault> faults)
    {
        std::string error;
        if (!server_->SetFaults(std::move(faults), error)) {
            throw std::runtime_error(error);
        }
    }
    [[nodiscard]] std::vector<std::uint64_t> FaultCounts() const { return server_->FaultCounts(); }
    /// Stops serving; returns the requests so far, including those of the login.
    std::vector<Device::ServedRequest> EndServing()
    {
        server_->Stop();
        return served_;
    }

private:
    void Serve(const std::string& profile)
    {
        const auto model = LoadDevice(profile);
        std::string error;
        server_ = Device::DeviceServer::Start(
            model, {.log = [this](const auto& request) { served_.push_back(request); }}, error);
        if (!server_) {
            throw std::runtime_error(error);
        }
        address_ = server_->Url();
        password_ = *model->PasswordOf("admin");
    }

    std::string address_;
    std::string password_;
    tagNET_ORB_LOGIN_INFO info_{};
    std::vector<Device::ServedRequest> served_;  // written by the server's threads until it ends
    std::unique_ptr<Device::DeviceServer> server_;
    std::unique_ptr<LoggedIn> login_;
};

/// Tests that apply however a client reaches a device.
class OnEveryRoad : public testing::TestWithParam<Road>
{
protected:
    static Asked Login(const std::string& profile) { return Asked(GetParam(), profile); }
};

inline std::string NameOfRoad(const testing::TestParamInfo<Road>& road)
{
    return road.param == Road::Http ? "Http" : "InProcess";
}

#define ON_EVERY_ROAD(suite)                                                                 \
    class suite : public TestSupport::OnEveryRoad                                            \
    {                                                                                        \
    };                                                                                       \
    INSTANTIATE_TEST_SUITE_P(                                                                \
        Over, suite, testing::Values(TestSupport::Road::InProcess, TestSupport::Road::Http), \
        TestSupport::NameOfRoad)

}  // namespace TestSupport
