// Logging devices in and out.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Login.h"

#include <string>
#include <string_view>

#include "PelNetSDK/Ask.h"
#include "PelNetSDK/HttpTransport.h"
#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Session.h"
#include "PelNetSDK/SimTransport.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

namespace
{

constexpr std::string_view kSimulated = "sim:";

std::string_view View(const char* text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

/// Null on failure, with the last error set.
std::unique_ptr<Transport> OpenSimulated(const tagNET_ORB_LOGIN_INFO& info)
{
    std::string error;
    const std::string profile(View(info.address).substr(kSimulated.size()));
    auto device = Device::DeviceModel::Load(profile, error);
    if (!device) {
        SetFailureDetail(error);
        Fail(NET_ORB_NO_SUCH_PROFILE);
        return nullptr;
    }
    // Without credentials no password is checked: "sim:dome" simply works.
    const bool named = info.userName != nullptr || info.password != nullptr;
    if (named && !device->CheckPassword(View(info.userName), View(info.password))) {
        Fail(NET_ORB_PASSWORD_ERROR);
        return nullptr;
    }
    ++counters.connections;
    return std::make_unique<SimTransport>(std::move(device));
}

/// What the answer to the first request says about the login.
Failure JudgeProof(const TransportAnswer& answer)
{
    const std::string text = answer.body.Head(limits::kStatusDocument + 1);
    const auto document = ReadStatusDocument(text);
    if (!answer.IsSuccess()) {
        const Failure failure = JudgeRefusal(answer, RequestKind::Request, document);
        // Devices that number their channels differently, or not at all, refuse only the question.
        const bool harmless = answer.status < 500 && (failure.error == NET_ORB_NOSUPPORT ||
                                                      failure.error == NET_ORB_CHANNEL_ERROR ||
                                                      failure.error == NET_ORB_DEVICE_REFUSED);
        if (!harmless) {
            return failure;
        }
    }
    // Any web server answers everything. A device asks for the password, gives the channel's number
    // or sends a status document.
    const bool number = answer.IsSuccess() && !text.empty() &&
                        text.find_first_not_of("0123456789 \r\n") == std::string::npos;
    return {
        answer.passwordChecked || document || number ? NET_ORB_NOERROR : NET_ORB_NETWORK_ERRORDATA,
        0, 0};
}

/// Asks the cheapest question there is: a device must answer and accept the password.
std::unique_ptr<Transport> OpenHttp(const tagNET_ORB_LOGIN_INFO& info)
{
    std::optional<HttpSettings> settings = ReadHttpSettings(info);
    if (!settings) {
        Fail(NET_ORB_PARAMETER_ERROR);
        return nullptr;
    }
    auto transport = std::make_unique<HttpTransport>(std::move(*settings));
    TransportAnswer answer(limits::kStatusDocument);
    const unsigned error =
        transport->Exchange({{"GET", "/TARN/SDK/channels/1?mode=1"}, {}, 0}, answer);
    const Failure failure = error == NET_ORB_NOERROR            ? JudgeProof(answer)
                            : error == NET_ORB_ANSWER_TOO_LARGE ? Failure{NET_ORB_NETWORK_ERRORDATA}
                                                                : Failure{error};
    if (failure.error != NET_ORB_NOERROR) {
        SetLastFailure(failure);
        return nullptr;
    }
    return transport;
}

int LogIn(const tagNET_ORB_LOGIN_INFO& info)
{
    SessionTable& table = SessionTable::Instance();
    // Checked first, to spare the device a pointless login.
    if (table.Full()) {
        return Fail(NET_ORB_MAX_USERNUM) - 1;
    }
    const bool simulated = View(info.address).starts_with(kSimulated);
    std::unique_ptr<Transport> transport = simulated ? OpenSimulated(info) : OpenHttp(info);
    if (!transport) {
        return -1;
    }
    const int id = table.Add(std::make_shared<Session>(std::move(transport)));
    return id >= 0 ? id : Fail(NET_ORB_MAX_USERNUM) - 1;
}

}  // namespace

}  // namespace PelNet

extern "C" int NET_ORB_Login(const tagNET_ORB_LOGIN_INFO* info)
{
    using namespace PelNet;
    return Guarded(
        [&] {
            return info == nullptr || info->address == nullptr ? Fail(NET_ORB_PARAMETER_ERROR) - 1
                                                               : LogIn(*info);
        },
        -1);
}

extern "C" int NET_ORB_Logout(int userID)
{
    using namespace PelNet;
    return Guarded([&] {
        const std::shared_ptr<Session> session = SessionTable::Instance().Remove(userID);
        if (!session) {
            return Fail(NET_ORB_NOINIT);
        }
        session->Close();
        return 1;
    });
}

extern "C" int NET_ORB_GetStatistics(tagNET_ORB_STATISTICS* statistics)
{
    using namespace PelNet;
    if (statistics == nullptr) {
        return Fail(NET_ORB_PARAMETER_ERROR);
    }
    *statistics = {counters.exchanges, counters.connections, counters.fromMemory};
    return 1;
}
