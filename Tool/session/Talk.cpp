// A conversation with a device.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Talk.h"

#include <utility>

#include "PelNetSDK/Login.h"
#include "Tool/record/Document.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

Talk::Talk(const Session& session, std::string command)
    : session_(session), what_(std::move(command) + " at " + session.Device()), progress_(what_)
{
    const auto receive = [](unsigned long long received, unsigned long long total, void* talk) {
        static_cast<Talk*>(talk)->progress_.Receive(received, total);
    };
    NET_ORB_SetReceiveProgress(receive, this);
}

Talk::~Talk()
{
    NET_ORB_SetReceiveProgress(nullptr, nullptr);
}

void Talk::Say(const std::string& step, int percent)
{
    progress_.Say(step, percent);
}

void Talk::Fail(Refusal refusal) const
{
    if (refusal.failure.error == NET_ORB_CHANNEL_ERROR && !channelOption_.empty()) {
        refusal.hint = "; choose one with " + channelOption_;
    }
    throw DeviceFailure(what_, std::move(refusal));
}

void Talk::Fail(unsigned int error, const std::string& document) const
{
    unsigned int number = error == 0 ? NET_ORB_GetLastError() : error;
    if (number == NET_ORB_NOERROR) {
        // Nothing was sent: the channel could not be converted.
        number = NET_ORB_CHANNEL_ERROR;
    }
    Fail({LastFailure(number), document});
}

void Talk::CheckStatus() const
{
    std::string code;
    std::string word;
    for (const auto& [name, text] : ReadStatus(answer_)) {
        code = name == "statusCode" ? text : code;
        word = name == "subStatusCode" ? text : word;
    }
    // Some devices send no status for a request that they carried out.
    constexpr const char* kCarriedOut = "1";
    const bool isDone = code.empty() ? word.empty() || word == "ok" : code == kCarriedOut;
    const bool isDocument = Trimmed(answer_).empty() || IsDocument(answer_);
    if (!isDone || !isDocument) {
        const unsigned int error = isDocument ? NET_ORB_DEVICE_REFUSED : NET_ORB_NETWORK_ERRORDATA;
        Fail({{error, NET_ORB_GetErrorText(error), {}}, answer_});
    }
}

std::string Talk::Send(const std::string& request, const std::string& body)
{
    std::string answer;
    Do([&](unsigned int& /*error*/) {
        std::string status;
        return CapabilitySet::ParseXmlHelper::SDKInterfaceManager::instance().TransparentRequset(
            UserID(), request + "\r\n", body, answer, status, 0, false);
    });
    return answer;
}

int Talk::ProtocolChannel(int channel) const
{
    constexpr int kToProtocol = 1;
    const int number = NET_ORB_SDKChannelToTARN(UserID(), channel, kToProtocol);
    if (number < 0) {
        Fail(0, {});
    }
    return number;
}

}  // namespace Tool
