// A device made of socket pairs.
// SPDX-License-Identifier: Apache-2.0
#include "fuzz/SocketDevice.h"

#include <array>
#include <memory>
#include <utility>

#include <sys/socket.h>
#include <unistd.h>

#include "PelNetSDK/HttpTransport.h"
#include "PelNetSDK/Login.h"
#include "PelNetSDK/Session.h"

namespace Fuzz
{
namespace
{

void SendAll(int socket, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t sent = send(socket, text.data(), text.size(), MSG_NOSIGNAL);
        if (sent <= 0) {
            break;  // the client hung up
        }
        text.remove_prefix(static_cast<std::size_t>(sent));
    }
    shutdown(socket, SHUT_WR);
}

}  // namespace

SocketDevice::SocketDevice(std::vector<std::string_view> answers) : answers_(std::move(answers))
{
    PelNet::HttpSettings settings;
    settings.base = "http://127.0.0.1";
    settings.user = "user";
    settings.password = PelNet::Secret(kPassword);
    settings.openSocket = [this] { return Open(); };
    userID_ = PelNet::SessionTable::Instance().Add(std::make_shared<PelNet::Session>(
        std::make_unique<PelNet::HttpTransport>(std::move(settings))));
}

SocketDevice::~SocketDevice()
{
    NET_ORB_Logout(userID_);
    for (const int socket : sockets_) {
        shutdown(socket, SHUT_RDWR);
    }
    senders_.clear();
    for (const int socket : sockets_) {
        close(socket);
    }
}

int SocketDevice::Open()
{
    constexpr std::size_t kFitsBuffer = 32 * 1024;
    std::array<int, 2> pair{};
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()) != 0) {
        return -1;
    }
    const std::string_view answer =
        sockets_.size() < answers_.size() ? answers_[sockets_.size()] : std::string_view();
    sockets_.push_back(pair[1]);
    if (answer.size() <= kFitsBuffer) {
        SendAll(pair[1], answer);
    } else {
        senders_.emplace_back([socket = pair[1], answer] { SendAll(socket, answer); });
    }
    return pair[0];
}

std::string SocketDevice::Received() const
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

}  // namespace Fuzz
