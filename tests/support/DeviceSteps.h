// Simulated devices under test: requests handed to a model, and logins for the library to ask.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/json.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "Device/DeviceModel.h"
#include "support/SdkCalls.h"

namespace TestSupport
{

inline std::shared_ptr<Device::DeviceModel> LoadDevice(const std::string& profile)
{
    std::string error;
    auto model = Device::DeviceModel::Load(profile, error);
    return model ? model : throw std::runtime_error(error);
}

/// The path below /TARN/ as a target that asks for JSON.
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

/// A device of this process that the library asks.
class Asked
{
public:
    explicit Asked(const char* address) : login_(Info(address)) {}
    operator int() const { return login_.UserID(); }

private:
    static tagNET_ORB_LOGIN_INFO Info(const char* address)
    {
        tagNET_ORB_LOGIN_INFO info{};
        info.address = address;
        return info;
    }

    LoggedIn login_;
};

}  // namespace TestSupport
