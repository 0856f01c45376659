// Wraps calls of the SDK's C interface for tests.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "PelNetSDK/Login.h"

namespace TestSupport
{

/// The result of a request.
struct Outcome
{
    bool success = false;
    unsigned error = 0;  ///< 0 on success
    int modelCode = 0;
    int deviceCode = 0;
    unsigned returnedSize = 0;
    std::string answer;  ///< the buffer's first returnedSize bytes on success
    std::string status;  ///< the status buffer up to its first NUL
};

inline Outcome FailureOf(Outcome outcome)
{
    if (!outcome.success) {
        outcome.error = NET_ORB_GetLastError();
        NET_ORB_GetLastErrorModelCode(&outcome.modelCode, &outcome.deviceCode);
    }
    return outcome;
}

struct Sizes
{
    unsigned answer = 4096;
    unsigned status = 512;
    unsigned receiveTimeout = 0;
};

inline Outcome Ask(int userID, std::string line, std::string body = "", Sizes sizes = {})
{
    std::string buffer(sizes.answer, '\x7f');
    std::string status(sizes.status, '\x7f');
    tagNET_ORB_XML_CONFIG_INPUT input{};
    input.size = sizeof input;
    input.requestUrl = line.data();
    input.requestUrlLength = static_cast<unsigned>(line.size());
    input.inBuffer = body.empty() ? nullptr : body.data();
    input.inBufferSize = static_cast<unsigned>(body.size());
    input.receiveTimeout = sizes.receiveTimeout;
    tagNET_ORB_XML_CONFIG_OUTPUT output{};
    output.size = sizeof output;
    output.outBuffer = buffer.empty() ? nullptr : buffer.data();
    output.outBufferSize = sizes.answer;
    output.statusBuffer = status.empty() ? nullptr : status.data();
    output.statusSize = sizes.status;
    Outcome outcome;
    outcome.success = NET_ORB_STDXMLConfig(userID, &input, &output) != 0;
    outcome.returnedSize = output.returnedSize;
    outcome.status = status.substr(0, status.find('\0'));
    if (outcome.success && !buffer.empty()) {
        outcome.answer = buffer.substr(0, output.returnedSize);
    }
    return FailureOf(std::move(outcome));
}

inline Outcome AskDeviceAbility(int userID, unsigned code, std::string body, unsigned size)
{
    std::string buffer(size, '\0');
    Outcome outcome;
    outcome.success =
        NET_ORB_GetDeviceAbility(userID, code, body.empty() ? nullptr : body.data(),
                                 static_cast<unsigned>(body.size()), buffer.data(), size) != 0;
    outcome.answer = buffer.substr(0, buffer.find('\0'));
    return FailureOf(std::move(outcome));
}

inline Outcome AskStandardAbility(int userID, unsigned code, int channel, unsigned size)
{
    std::string buffer(size, '\0');
    tagNET_ORB_STD_ABILITY ability{};
    ability.conditionBuffer = &channel;
    ability.conditionSize = sizeof channel;
    ability.outBuffer = buffer.data();
    ability.outSize = size;
    Outcome outcome;
    outcome.success = NET_ORB_GetSTDAbility(userID, code, &ability) != 0;
    outcome.returnedSize = ability.returnedSize;
    outcome.answer = buffer.substr(0, buffer.find('\0'));
    return FailureOf(std::move(outcome));
}

inline tagNET_ORB_STATISTICS Statistics()
{
    tagNET_ORB_STATISTICS statistics{};
    NET_ORB_GetStatistics(&statistics);
    return statistics;
}

/// Logged in during its lifetime.
class LoggedIn
{
public:
    explicit LoggedIn(const tagNET_ORB_LOGIN_INFO& info) : userID_(NET_ORB_Login(&info))
    {
        if (userID_ < 0) {
            throw std::runtime_error(std::string("cannot log in to ") + info.address + ": " +
                                     NET_ORB_GetErrorText(NET_ORB_GetLastError()) + " (" +
                                     NET_ORB_GetLastErrorDetail() + ")");
        }
    }
    ~LoggedIn() { NET_ORB_Logout(userID_); }
    LoggedIn(const LoggedIn&) = delete;
    LoggedIn& operator=(const LoggedIn&) = delete;

    [[nodiscard]] int UserID() const { return userID_; }

private:
    int userID_;
};

}  // namespace TestSupport
