// capset device: lists the simulated devices and serves one of them.
// SPDX-License-Identifier: Apache-2.0
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>

#include <pthread.h>

#include "Device/DeviceModel.h"
#include "Device/hostile/HostileDocuments.h"
#include "Device/http/DeviceServer.h"
#include "Tool/Failure.h"
#include "Tool/command/Commands.h"
#include "Tool/command/FaultArgument.h"
#include "Tool/command/RequestLog.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/terminal/Grid.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

struct ServeOptions
{
    std::string profile;
    std::string address = "127.0.0.1";
    unsigned int port = 0;
    bool tls = false;
    bool noAuthentication = false;
    std::string certificateFile;
    std::string keyFile;
    std::string writeCertificate;
    std::vector<std::string> faults;
};

std::shared_ptr<Device::DeviceModel> Load(const std::string& profile)
{
    std::string error;
    auto model = Device::DeviceModel::Load(profile, error);
    if (!model) {
        throw Failure(error);
    }
    return model;
}

/// "1", "1..32", "1, 33..64".
std::string ChannelNumbers(const std::map<int, int>& channels)
{
    std::string text;
    for (auto each = channels.begin(); each != channels.end();) {
        const int first = each->first;
        int last = first;
        for (++each; each != channels.end() && each->first == last + 1; ++each) {
            ++last;
        }
        text += (text.empty() ? "" : ", ") + std::to_string(first);
        text += last > first ? ".." + std::to_string(last) : std::string();
    }
    return text.empty() ? "-" : text;
}

Json::Value ProfileToJson(const std::string& name, const Device::DeviceModel& model)
{
    Json::Value value(Json::objectValue);
    value["profile"] = name;
    value["description"] = model.Description();
    value["users"] = Json::Value(Json::arrayValue);
    for (const std::string& user : model.UserNames()) {
        value["users"].append(user);
    }
    value["channels"] = Json::Value(Json::arrayValue);
    for (const auto& [sdk, protocol] : model.Channels()) {
        value["channels"].append(sdk);
    }
    return value;
}

int ListProfiles(const CommonOptions& common, bool json)
{
    Grid grid({"profile", "users", "channels", "description"});
    Json::Value list(Json::arrayValue);
    for (const std::string& name : Device::DeviceModel::ProfileNames()) {
        const auto model = Load(name);
        const std::vector<std::string> users = model->UserNames();
        grid.Add({{Harmless(name)},
                  {Harmless(Listed(users))},
                  {ChannelNumbers(model->Channels())},
                  {Harmless(model->Description())}});
        list.append(ProfileToJson(name, *model));
    }
    Print(json ? Dump(list) : grid.Render(0, TerminalWidth(stdout), common.PaintFor(stdout)));
    return kAnswered;
}

int ListHostileCases(const CommonOptions& common, bool json)
{
    Grid grid({"profile", "what it answers"});
    Json::Value list(Json::arrayValue);
    for (const Device::HostileCase& each : Device::HostileCases()) {
        const std::string name = "hostile:" + std::string(each.name);
        grid.Add({{name}, {std::string(each.description)}});
        Json::Value item(Json::objectValue);
        item["profile"] = name;
        item["description"] = std::string(each.description);
        list.append(std::move(item));
    }
    Print(json ? Dump(list) : grid.Render(0, TerminalWidth(stdout), common.PaintFor(stdout)));
    return kAnswered;
}

Device::ServerOptions ToServerOptions(const ServeOptions& options)
{
    Device::ServerOptions server;
    server.address = options.address;
    server.port = static_cast<std::uint16_t>(options.port);
    server.authentication = !options.noAuthentication;
    server.tls = options.tls || !options.certificateFile.empty();
    if (!options.certificateFile.empty()) {
        server.certificatePem = ReadInput(options.certificateFile);
        server.keyPem = ReadInput(options.keyFile);
    }
    for (const std::string& fault : options.faults) {
        server.faults.push_back(ParseFault(fault));
    }
    if (!server.tls && !options.writeCertificate.empty()) {
        throw Failure("without --tls there is no certificate to write", kUsage);
    }
    return server;
}

void WriteFile(const std::string& file, const std::string& text)
{
    std::FILE* const output = std::fopen(file.c_str(), "wb");
    bool good =
        output != nullptr && std::fwrite(text.data(), 1, text.size(), output) == text.size();
    good = output != nullptr && std::fclose(output) == 0 && good;
    if (!good) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): the server's threads call no strerror
        throw Failure("cannot write " + file + ": " + std::strerror(errno));
    }
}

std::string Introduction(const Device::DeviceModel& model, const Device::DeviceServer& server,
                         const ServeOptions& options, const Paint& paint)
{
    Grid grid({"", ""});
    grid.Add({{"address", Style::Faint}, {server.Url()}});
    if (options.noAuthentication) {
        grid.Add({{"users", Style::Faint}, {"anybody, without a password"}});
    } else {
        for (const std::string& user : model.UserNames()) {
            grid.Add({{"user", Style::Faint},
                      {Harmless(user) + ", password " + Harmless(*model.PasswordOf(user))}});
        }
    }
    if (!options.writeCertificate.empty()) {
        grid.Add({{"certificate", Style::Faint}, {Harmless(options.writeCertificate)}});
    }
    for (const std::string& fault : options.faults) {
        grid.Add({{"fault", Style::Faint}, {Harmless(fault)}});
    }
    return paint(Style::Title, Harmless(model.Name())) + "  " +
           paint(Style::Faint, Harmless(model.Description())) + "\n" +
           grid.Render(2, TerminalWidth(stdout), paint) + "\n";
}

/// How many requests each fault changed.
std::string FaultReport(const Device::DeviceServer& server, const ServeOptions& options,
                        const Paint& paint)
{
    const std::vector<std::uint64_t> counts = server.FaultCounts();
    Grid grid({"fault", "requests changed"});
    for (std::size_t i = 0; i < counts.size(); ++i) {
        grid.Add({{Harmless(options.faults[i])}, {std::to_string(counts[i])}});
    }
    return counts.empty() ? std::string() : "\n" + grid.Render(0, TerminalWidth(stdout), paint);
}

int Serve(const ServeOptions& options, const CommonOptions& common)
{
    Device::ServerOptions serverOptions = ToServerOptions(options);
    const auto model = Load(options.profile);
    RequestLog log(common.PaintFor(stdout));
    serverOptions.log = [&log](const Device::ServedRequest& request) { log.Write(request); };

    // Blocked before threads are started, so that only sigwait below receives them.
    sigset_t ends{};
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);

    std::string error;
    const auto server = Device::DeviceServer::Start(model, std::move(serverOptions), error);
    if (!server) {
        throw Failure("cannot serve " + options.profile + ": " + error);
    }
    if (!options.writeCertificate.empty()) {
        WriteFile(options.writeCertificate, server->CertificatePem());
    }
    log.Begin(Introduction(*model, *server, options, common.PaintFor(stdout)));
    int signal = 0;
    sigwait(&ends, &signal);
    server->Stop();
    Print(FaultReport(*server, options, common.PaintFor(stdout)));
    return kAnswered;
}

void AddServeOptions(Command& command, ServeOptions& options)
{
    command.Positional("profile", options.profile, "name of a profile, or a profile's folder")
        .Required();
    command.Option("--address", options.address, "ADDRESS",
                   "numeric address to listen on, {} by default");
    command.Option("--port", options.port, "N", "port to listen on, any free one by default")
        .Between(0, 65535);
    command.Flag("--tls", options.tls, "HTTPS, with a self-signed certificate unless --cert");
    command.Option("--cert", options.certificateFile, "FILE", "PEM file of the certificate")
        .ExistingFile()
        .Needs("--key");
    command.Option("--key", options.keyFile, "FILE", "PEM file of its key")
        .ExistingFile()
        .Needs("--cert");
    command.Option("--write-certificate", options.writeCertificate, "FILE",
                   "save the certificate there, for clients that should trust it");
    command.Flag("--no-auth", options.noAuthentication, "let everybody in");
    command.Option("--fault", options.faults, "FAULT",
                   "misbehave: KIND[=VALUE][*TIMES][@PATH], where KIND is delay, drip, truncate, "
                   "stall, reset, storm, stale, 5xx, oversize or refuse; can be repeated");
}

void AddListCommand(Command& device, CommonOptions& common)
{
    struct ListOptions
    {
        bool json = false;
        bool hostile = false;
    };
    Command& command = device.Add("list", "List the simulated devices");
    command.Example("capset device list");
    const auto options = std::make_shared<ListOptions>();
    command.Flag("--hostile", options->hostile, "the cases of the hostile device instead");
    AddJsonFlag(command, options->json);
    AddCommonOptions(command, common);
    command.SetAction([&common, options] {
        return options->hostile ? ListHostileCases(common, options->json)
                                : ListProfiles(common, options->json);
    });
}

}  // namespace

void AddDeviceCommands(Command& program, CommonOptions& common)
{
    Command& device = program.Add("device", "Simulated devices: list them, serve one");
    device.Example("capset device serve dome --port 8080");
    AddListCommand(device, common);
    Command& command = device.Add("serve", "Serve a simulated device over HTTP until interrupted");
    command.Example("capset device serve dome --port 8080");
    command.Example("capset device serve recorder --tls --write-certificate device.pem");
    command.Example("capset device serve dome --fault delay=2s --fault reset*3@/TARN/System");
    const auto options = std::make_shared<ServeOptions>();
    AddServeOptions(command, *options);
    AddCommonOptions(command, common);
    command.SetAction([&common, options] { return Serve(*options, common); });
}

}  // namespace Tool
