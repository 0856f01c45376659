// Fuzzes the SDK with what a device sends over its connections.
// SPDX-License-Identifier: Apache-2.0
#include <vector>

#include "PelNetSDK/Login.h"
#include "PelNetSDK/PelNetSDK.h"
#include "fuzz/Check.h"
#include "fuzz/Chunks.h"
#include "fuzz/SocketDevice.h"
#include "fuzz/Targets.h"

namespace Fuzz
{
namespace
{

constexpr const char* kPasswordAsBasic = "dXNlcjpuZXZlciBpbiB0aGUgY2xlYXI=";

/// One call with buffers of exactly these sizes, so that the sanitizer sees a byte beyond them.
struct Call
{
    Call(int userID, const char* line, const char* body, unsigned size, unsigned statusSize)
        : answer(size, '\1'), status(statusSize, '\1')
    {
        std::string request = line;
        std::string input = body;
        tagNET_ORB_XML_CONFIG_INPUT in{};
        in.size = sizeof in;
        in.requestUrl = request.data();
        in.requestUrlLength = static_cast<unsigned>(request.size());
        if (!input.empty()) {
            in.inBuffer = input.data();
            in.inBufferSize = static_cast<unsigned>(input.size());
        }
        tagNET_ORB_XML_CONFIG_OUTPUT out{};
        out.size = sizeof out;
        out.outBuffer = answer.data();
        out.outBufferSize = size;
        out.statusBuffer = statusSize == 0 ? nullptr : status.data();
        out.statusSize = statusSize;
        done = NET_ORB_STDXMLConfig(userID, &in, &out) != 0;
        error = done ? NET_ORB_NOERROR : NET_ORB_GetLastError();
        returned = out.returnedSize;
    }

    std::vector<char> answer;
    std::vector<char> status;
    bool done = false;
    unsigned error = 0;
    unsigned returned = 0;
};

void CheckCall(const Call& call)
{
    Require(call.done == (call.error == NET_ORB_NOERROR), "a failure has a number");
    Require(std::string("unknown error") != NET_ORB_GetErrorText(call.error), "that has a text");
    const std::size_t size = call.answer.size();
    if (call.done) {
        Require(call.returned <= size, "an answer fits");
        const bool ends = call.returned == size || call.answer[call.returned] == '\0';
        Require(ends, "a text ends where there is room");
        for (std::size_t at = call.returned + 1; at < size; ++at) {
            Require(call.answer[at] == '\1', "the rest of a buffer is left alone");
        }
    }
    Require((call.error == NET_ORB_BUFFER_TOO_SMALL) == (!call.done && call.returned > size),
            "what does not fit tells its size");
}

/// The same request with a large enough buffer is served from memory.
void CheckRepeat(const Call& first, int userID, const char* line, const char* body,
                 const SocketDevice& device)
{
    const std::size_t connections = device.Connections();
    const Call second(userID, line, body, first.returned, 0);
    CheckCall(second);
    Require(second.done && second.returned == first.returned, "what was kept is given");
    Require(device.Connections() == connections, "without asking the device");
}

}  // namespace

void HttpAnswer(const std::string& text)
{
    std::string_view rest = text;
    const unsigned form = TakeByte(rest);
    const bool changes = (form & 1U) != 0;
    const char* const line = changes ? "PUT /TARN/a" : "GET /TARN/a?format=json";
    const char* const body = changes ? "<a/>" : "";
    const unsigned size = (form >> 1U) % 16 * 16 + 1;
    const unsigned statusSize = (form & 0x80U) != 0 ? 64 : 0;
    constexpr std::size_t kMostChunks = 4;
    const SocketDevice device(SplitChunks(rest, kMostChunks));
    for (int round = 0; round < 2; ++round) {
        const Call call(device.UserID(), line, body, size, statusSize);
        CheckCall(call);
        if (call.error == NET_ORB_BUFFER_TOO_SMALL) {
            CheckRepeat(call, device.UserID(), line, body, device);
        }
    }
    const std::string received = device.Received();
    Require(received.find(SocketDevice::kPassword) == std::string::npos &&
                received.find(kPasswordAsBasic) == std::string::npos,
            "no password is sent in the clear");
    constexpr std::size_t kMostConnections = 12;
    Require(device.Connections() <= kMostConnections, "the SDK gives up");
}

}  // namespace Fuzz
