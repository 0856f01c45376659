// capset call: sends any request to a device.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "PelNetSDK/Login.h"
#include "Tool/Failure.h"
#include "Tool/command/Commands.h"
#include "Tool/record/Base64.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/session/Refusal.h"
#include "Tool/session/SdkFailure.h"
#include "Tool/terminal/Progress.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

struct CallOptions
{
    ConnectionOptions connection;
    std::string request;
    std::string bodyFile;
    bool json = false;
    bool raw = false;
};

struct Reply
{
    bool answered = false;
    SdkFailure failure;
    std::string body;  ///< of a refusal its status document, or whatever came in its place
};

/// Uninitialised memory: clearing it would only cost time for large answers.
struct Buffer
{
    explicit Buffer(unsigned int bytes) : size(bytes), data(new char[bytes]) {}

    unsigned int size;
    std::unique_ptr<char[]> data;
};

/// Updates of a device's software can be this large.
constexpr std::size_t kLargestBody = 1u << 30;

/// A little more than the largest answer that the SDK accepts.
constexpr unsigned int kLargestAnswer = 1200u << 20;

Reply Send(int userID, std::string line, std::string body, unsigned int timeout)
{
    line += "\r\n";
    tagNET_ORB_XML_CONFIG_INPUT input{};
    input.size = sizeof input;
    input.requestUrl = line.data();
    input.requestUrlLength = static_cast<unsigned int>(line.size());
    input.inBuffer = body.empty() ? nullptr : body.data();
    input.inBufferSize = static_cast<unsigned int>(body.size());
    input.receiveTimeout = timeout;
    std::vector<char> status(65536);
    // For a buffer of 1 MiB the SDK reads packages too.
    for (Buffer buffer(1u << 20);;) {
        tagNET_ORB_XML_CONFIG_OUTPUT output{};
        output.size = sizeof output;
        output.outBuffer = buffer.data.get();
        output.outBufferSize = buffer.size;
        output.statusBuffer = status.data();
        output.statusSize = static_cast<unsigned int>(status.size());
        if (NET_ORB_STDXMLConfig(userID, &input, &output) != 0) {
            const unsigned int size = std::min(output.returnedSize, buffer.size);
            return {true, {}, std::string(buffer.data.get(), size)};
        }
        const unsigned int error = NET_ORB_GetLastError();
        if (error != NET_ORB_BUFFER_TOO_SMALL || buffer.size >= kLargestAnswer) {
            const auto end = std::find(status.begin(), status.end(), '\0');
            return {false, LastFailure(error), std::string(status.begin(), end)};
        }
        // The SDK keeps an answer that did not fit, so nothing is sent twice.
        const unsigned int needed = std::max(output.returnedSize, buffer.size * 2);
        buffer = Buffer(std::min(needed, kLargestAnswer));
    }
}

Json::Value BodyToJson(const std::string& body)
{
    Json::Value value;
    if (body.empty() || ReadJson(body, value)) {
        return value;
    }
    return body;
}

Json::Value ReplyToJson(const CallOptions& options, const std::string& device, const Reply& reply)
{
    Json::Value value(Json::objectValue);
    value["request"] = options.request;
    value["device"] = device;
    value["answered"] = reply.answered;
    if (IsText(reply.body)) {
        value["body"] = BodyToJson(reply.body);
    } else {
        value["bodyBase64"] = ToBase64(reply.body);
    }
    if (!reply.answered) {
        AddToJson(value, {reply.failure, reply.body});
    }
    return value;
}

int Call(const CallOptions& options)
{
    const std::string body =
        options.bodyFile.empty() ? std::string() : ReadInput(options.bodyFile, kLargestBody);
    const Session session(options.connection);
    Reply reply;
    {
        const Progress progress(options.request + " at " + session.Device());
        reply =
            Send(session.UserID(), options.request, body, Milliseconds(options.connection.timeout));
    }
    if (options.json) {
        Print(Dump(ReplyToJson(options, session.Device(), reply)));
    } else if (reply.answered) {
        PrintDocument(options.raw ? reply.body : Pretty(reply.body));
    } else {
        Complain(options.request + " at " + session.Device() + ": " +
                 Told(Refusal{reply.failure, reply.body}));
    }
    return reply.answered ? kAnswered : kFailed;
}

}  // namespace

void AddCallCommand(Command& program, CommonOptions& common)
{
    Command& command = program.Add("call", "Send any request to a device");
    command.Example("capset call sim:dome \"GET /TARN/System/deviceInfo\"");
    command.Example("capset call sim:dome \"PUT /TARN/System/time\" --body time.xml");
    const auto options = std::make_shared<CallOptions>();
    AddConnectionOptions(command, options->connection);
    command
        .Positional("request", options->request,
                    "method and path, such as \"GET /TARN/System/time\"; GET if there is no method")
        .Required();
    command.Option("--body", options->bodyFile, "FILE", "file to send; - for the standard input");
    AddJsonFlag(command, options->json);
    command.Flag("--raw", options->raw, "print the answer as it came, not indented")
        .Group("Output")
        .Excludes("--json");
    AddCommonOptions(command, common);
    command.SetAction([options] { return Call(*options); });
}

}  // namespace Tool
