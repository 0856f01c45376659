// A conversation with a device: operations, their failures, and progress on the terminal.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <type_traits>

#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "Tool/session/AnswerTap.h"
#include "Tool/session/Connection.h"
#include "Tool/session/Refusal.h"
#include "Tool/terminal/Progress.h"

namespace Tool
{

/// A device while a command talks to it.
class Talk
{
public:
    /// `command` as the user typed it: "alarm arm".
    Talk(const Session& session, std::string command);
    ~Talk();
    Talk(const Talk&) = delete;
    Talk& operator=(const Talk&) = delete;

    [[nodiscard]] int UserID() const { return session_.UserID(); }
    /// The device's address without the user.
    [[nodiscard]] const std::string& Device() const { return session_.Device(); }

    /// Shows a step on the progress line, and how many percent of it are done, if known. How much
    /// of a long answer has arrived is shown without this.
    void Say(const std::string& step, int percent = -1);

    /// Names the option with which another channel is chosen, "--channel N", for failures that say
    /// that there is no such channel.
    void SetChannelOption(std::string option) { channelOption_ = std::move(option); }

    /// Runs an operation of the library, `operation(error)`. If it fails, throws a DeviceFailure
    /// with what the device answered. The operation returns an InterfaceRet, or a bool with an
    /// error number in its argument, which it may leave at 0.
    template <class Operation>
    void Do(Operation&& operation)
    {
        const AnswerTap tap;
        unsigned int error = 0;
        const auto result = operation(error);
        if constexpr (std::is_same_v<decltype(result), const bool>) {
            if (!result) {
                Fail(error, tap.Refusal());
            }
        } else if (!result.success) {
            // A refusal's code is the client's own, if any.
            constexpr int kRefused = 3;
            Fail(result.errorType == kRefused ? 0 : static_cast<unsigned int>(result.errorCode),
                 tap.Refusal());
        }
        answer_ = tap.Documents().empty() ? std::string() : tap.Documents().back();
    }

    /// The document that answered the last operation, including members that its record does not
    /// read.
    [[nodiscard]] const std::string& Answer() const { return answer_; }

    /// Throws a DeviceFailure if the last answer is a status document that reports a failure, or
    /// no answer to a command at all.
    void CheckStatus() const;

    /// Ends the command with a DeviceFailure.
    [[noreturn]] void Fail(Refusal refusal) const;

    /// Sends a request for which the library has no operation, "GET /TARN/...", and returns the
    /// answer.
    std::string Send(const std::string& request, const std::string& body = {});

    /// The protocol's number of a channel. Throws if the device has no such channel.
    [[nodiscard]] int ProtocolChannel(int channel) const;

private:
    /// 0 stands for the number that the SDK reported.
    [[noreturn]] void Fail(unsigned int error, const std::string& document) const;

    const Session& session_;
    const std::string what_;  ///< the command and the device
    Progress progress_;
    std::string answer_;
    std::string channelOption_;
};

}  // namespace Tool
