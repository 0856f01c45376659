// Fuzzes the SDK with what a device sends over its connections.
// SPDX-License-Identifier: Apache-2.0
#include <array>
#include <memory>

#include <sys/socket.h>
#include <unistd.h>

#include "PelNetSDK/HttpTransport.h"
#include "PelNetSDK/Session.h"
#include "fuzz/Check.h"
#include "fuzz/Chunks.h"
#include "fuzz/Targets.h"

namespace Fuzz
{
namespace
{

constexpr const char* kPassword = "never in the clear";
constexpr const char* kPasswordAsBasic = "dXNlcjpuZXZlciBpbiB0aGUgY2xlYXI=";

/// A device in this process: each connection is a socket pair that sends one chunk and closes.
class Device
{
public:
    explicit Device(std::vector<std::string_view> chunks) : chunks_(std::move(chunks)) {}
    ~Device()
    {
        for (const int socket : sockets_) {
            close(socket);
        }
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    int Open()
    {
        std::array<int, 2> pair{};
        if (socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()) != 0) {
            return -1;
        }
        if (sockets_.size() < chunks_.size()) {
            const std::string_view chunk = chunks_[sockets_.size()];
            // What does not fit becomes a broken connection.
            static_cast<void>(
                send(pair[1], chunk.data(), chunk.size(), MSG_DONTWAIT | MSG_NOSIGNAL));
        }
        shutdown(pair[1], SHUT_WR);
        sockets_.push_back(pair[1]);
        return pair[0];
    }

    [[nodiscard]] std::size_t Connections() const { return sockets_.size(); }

    /// Everything that was sent to the device.
    [[nodiscard]] std::string Received() const
    {
        std::string all;
        std::array<char, 4096> piece{};
        for (const int socket : sockets_) {
            for (ssize_t count = 0;
                 (count = recv(socket, piece.data(), piece.size(), MSG_DONTWAIT)) > 0;) {
                all.append(piece.data(), static_cast<std::size_t>(count));
            }
        }
        return all;
    }

private:
    std::vector<std::string_view> chunks_;
    std::vector<int> sockets_;
};

/// A login to the device, logged out by the destructor.
class Login
{
public:
    explicit Login(Device& device)
    {
        PelNet::HttpSettings settings;
        settings.base = "http://127.0.0.1";
        settings.user = "user";
        settings.password = PelNet::Secret(kPassword);
        settings.openSocket = [&device] { return device.Open(); };
        userID_ = PelNet::SessionTable::Instance().Add(std::make_shared<PelNet::Session>(
            std::make_unique<PelNet::HttpTransport>(std::move(settings))));
    }
    ~Login() { NET_ORB_Logout(userID_); }
    Login(const Login&) = delete;
    Login& operator=(const Login&) = delete;

    [[nodiscard]] int UserID() const { return userID_; }

private:
    int userID_ = -1;
};

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
                 const Device& device)
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
    Device device(SplitChunks(rest, kMostChunks));
    const Login login(device);
    for (int round = 0; round < 2; ++round) {
        const Call call(login.UserID(), line, body, size, statusSize);
        CheckCall(call);
        if (call.error == NET_ORB_BUFFER_TOO_SMALL) {
            CheckRepeat(call, login.UserID(), line, body, device);
        }
    }
    const std::string received = device.Received();
    Require(received.find(kPassword) == std::string::npos &&
                received.find(kPasswordAsBasic) == std::string::npos,
            "no password is sent in the clear");
    constexpr std::size_t kMostConnections = 12;
    Require(device.Connections() <= kMostConnections, "a device is not asked for ever");
}

}  // namespace Fuzz
