// What the commands that talk to one device have in common: options, failures, output.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/DeviceCommand.h"

#include <memory>
#include <utility>

#include "PelNetSDK/Login.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/Records.h"
#include "Tool/record/Table.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;

namespace
{

struct DeviceOptions
{
    ConnectionOptions connection;
    bool json = false;
};

Json::Value ReportHead(const std::string& command, const std::string& device, bool answered)
{
    Json::Value value(Json::objectValue);
    value["command"] = command;
    value["device"] = device;
    value["answered"] = answered;
    value["values"] = Json::Value();
    return value;
}

void ShowReport(const Report& report, const std::string& device, const Paint& paint)
{
    const std::size_t width = TerminalWidth(stdout);
    Print(RenderRecord(report.shown ? *report.shown : report.values, device, width, paint));
    if (!report.remark.empty()) {
        Print("\n");
        for (const std::string& piece : Wrap(report.remark, width)) {
            Print(paint(Style::Faint, piece) + "\n");
        }
    }
}

int RunDeviceCommand(const std::string& command, const DeviceOptions& options,
                     const CommonOptions& common, const DeviceAction& action)
{
    const Session session(options.connection);
    Report report;
    try {
        Talk talk(session, command);
        report = action(talk);
    } catch (const DeviceFailure& failure) {
        if (!options.json) {
            throw;
        }
        Json::Value value = ReportHead(command, session.Device(), false);
        AddToJson(value, failure.Why());
        Print(Dump(value));
        return failure.Code();
    }
    if (options.json) {
        Json::Value value = ReportHead(command, session.Device(), true);
        value["values"] = ToJson(report.values);
        Print(Dump(value));
    } else {
        ShowReport(report, session.Device(), common.PaintFor(stdout));
    }
    return report.code;
}

}  // namespace

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
    throw DeviceFailure(what_, std::move(refusal));
}

void Talk::Fail(unsigned int error, const std::string& document) const
{
    unsigned int number = error == 0 ? LastSdkError() : error;
    if (number == NET_ORB_NOERROR) {
        // Nothing was sent: only a channel that cannot be converted ends so.
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
    // Some devices answer a request that they carried out with no status at all.
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

CLI::App& AddDeviceCommand(CLI::App& parent, CommandLine& line, const CommandText& text,
                           DeviceAction action)
{
    const std::string group = parent.get_name() == "capset" ? "" : parent.get_name() + " ";
    const std::string command = group + text.name;
    CLI::App& added = AddCommand(parent, text.name, text.description,
                                 "Example:\n  capset " + command + " " + text.example);
    const auto options = std::make_shared<DeviceOptions>();
    AddConnectionOptions(added, options->connection);
    AddJsonFlag(added, options->json);
    AddCommonOptions(added, line.common);
    added.callback([&line, command, options, action = std::move(action)] {
        line.chosen = [&line, command, options, action] {
            return RunDeviceCommand(command, *options, line.common, action);
        };
    });
    return added;
}

CLI::App& AddCommandGroup(CLI::App& app, const std::string& name, const std::string& description,
                          const std::string& example)
{
    CLI::App& group = AddCommand(app, name, description, "Example:\n  capset " + example);
    group.require_subcommand(1);
    return group;
}

}  // namespace Tool
