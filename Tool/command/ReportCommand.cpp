// Commands that log in to a device, do something there, and show a report.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/ReportCommand.h"

#include <memory>
#include <utility>

#include "Tool/record/JsonOutput.h"
#include "Tool/record/Secrets.h"
#include "Tool/record/Table.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

struct DeviceOptions
{
    ConnectionOptions connection;
    RecordOutput output;
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
        if (!options.output.json) {
            throw;
        }
        Json::Value value = ReportHead(command, session.Device(), false);
        AddToJson(value, failure.Why());
        Print(Dump(value));
        return failure.Code();
    }
    if (!options.output.showSecrets) {
        HideSecrets(report.values);
        if (report.shown) {
            HideSecrets(*report.shown);
        }
    }
    if (options.output.json) {
        Json::Value value = ReportHead(command, session.Device(), true);
        value["values"] = ToJson(report.values);
        Print(Dump(value));
    } else {
        ShowReport(report, session.Device(), common.PaintFor(stdout));
    }
    return report.code;
}

}  // namespace

Command& AddReportCommand(Command& group, CommonOptions& common, const CommandText& text,
                          DeviceAction action)
{
    Command& command = group.Add(text.name, text.summary);
    command.Example(command.FullName() + " " + text.example);
    const auto options = std::make_shared<DeviceOptions>();
    AddConnectionOptions(command, options->connection);
    AddOutputOptions(command, options->output);
    AddCommonOptions(command, common);
    const std::string words = command.FullName().substr(command.FullName().find(' ') + 1);
    command.SetAction([&common, words, options, action = std::move(action)] {
        return RunDeviceCommand(words, *options, common, action);
    });
    return command;
}

}  // namespace Tool
