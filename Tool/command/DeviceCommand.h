// What the commands that talk to one device have in common: options, failures, output.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <type_traits>

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "Tool/command/Arguments.h"
#include "Tool/session/AnswerTap.h"
#include "Tool/session/Refusal.h"
#include "Tool/terminal/Progress.h"

namespace Tool
{

/// A device while a command talks to it.
class Talk
{
public:
    /// `command` as it was typed: "alarm arm".
    Talk(const Session& session, std::string command);
    ~Talk();
    Talk(const Talk&) = delete;
    Talk& operator=(const Talk&) = delete;

    [[nodiscard]] int UserID() const { return session_.UserID(); }
    /// The device's address without the user.
    [[nodiscard]] const std::string& Device() const { return session_.Device(); }

    /// What the line of progress tells from now on, behind the command and the device, and how many
    /// percent of it are done, if one knows. It tells by itself how much of a long answer has come.
    void Say(const std::string& step, int percent = -1);

    /// Runs an operation of the library, `operation(error)`, and throws a DeviceFailure with what
    /// the device said when it fails. It returns bool with an error number in its argument, which
    /// it may leave at 0, or an InterfaceRet.
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

    /// What the device answered to the last operation, members that its record has none for among
    /// it.
    [[nodiscard]] const std::string& Answer() const { return answer_; }

    /// Throws a DeviceFailure when the last answer is a status document that says that the device
    /// did not carry the request out, or is no answer to a command at all.
    void CheckStatus() const;

    /// Ends the command with what the device said.
    [[noreturn]] void Fail(Refusal refusal) const;

    /// Sends a request that no operation of the library stands for, "GET /TARN/...", and returns
    /// the answer.
    std::string Send(const std::string& request, const std::string& body = {});

    /// The protocol's number of a channel; throws when the device has no such channel.
    [[nodiscard]] int ProtocolChannel(int channel) const;

private:
    /// With 0 for the number that the SDK reported.
    [[noreturn]] void Fail(unsigned int error, const std::string& document) const;

    const Session& session_;
    const std::string what_;  ///< the command and the device
    Progress progress_;
    std::string answer_;
};

/// What a command has to show.
struct Report
{
    CapabilitySet::RecordNode values;  ///< "values" of --json; its name is the table's title
    std::optional<CapabilitySet::RecordNode> shown = {};  ///< the table, where it is another tree
    std::string remark = {};                              ///< a line below the table
    ExitCode code = kAnswered;
};

using DeviceAction = std::function<Report(Talk&)>;

/// What a command's help says.
struct CommandText
{
    const char* name;
    const char* description;
    const char* example;  ///< without "capset" and the command's own name
};

/// Adds a subcommand that logs in to a device, runs the action and shows its report, as a table or
/// with --json as docs/capset.md describes it. Options of the command's own are added to the
/// result.
CLI::App& AddDeviceCommand(CLI::App& parent, CommandLine& line, const CommandText& text,
                           DeviceAction action);

/// A group of subcommands, one of which must be given.
CLI::App& AddCommandGroup(CLI::App& app, const std::string& name, const std::string& description,
                          const std::string& example);

}  // namespace Tool
