// Watches a file with inotify and a port by listening.
// SPDX-License-Identifier: Apache-2.0
#include "support/OutsideWatch.h"

#include <arpa/inet.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <unistd.h>

#include <fstream>

#include <gtest/gtest.h>

namespace TestSupport
{
namespace
{

sockaddr_in Loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

}  // namespace

OutsideWatch& OutsideWatch::Instance()
{
    static OutsideWatch watch;
    return watch;
}

OutsideWatch::OutsideWatch()
    : file_(folder_.File("outside")),
      notify_(inotify_init1(IN_NONBLOCK)),
      listener_(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0))
{
    std::ofstream(file_) << "secret";
    EXPECT_GE(inotify_add_watch(notify_, file_.c_str(), IN_OPEN), 0);
    sockaddr_in address = Loopback(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(listener_, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(listen(listener_, 16), 0);
    EXPECT_EQ(getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size), 0);
    port_ = ntohs(address.sin_port);
}

OutsideWatch::~OutsideWatch()
{
    close(notify_);
    close(listener_);
}

std::string OutsideWatch::Address() const
{
    return "http://127.0.0.1:" + std::to_string(port_) + "/a";
}

void OutsideWatch::Arm()
{
    std::ifstream{file_};
    const int client = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = Loopback(port_);
    EXPECT_EQ(connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(client);
    EXPECT_EQ(Seen(), "file socket ");
}

std::string OutsideWatch::Seen()
{
    std::string seen;
    char events[4096];
    while (read(notify_, events, sizeof events) > 0) {
        seen = "file ";
    }
    bool isConnected = false;
    for (int client = 0; (client = accept(listener_, nullptr, nullptr)) >= 0;) {
        close(client);
        isConnected = true;
    }
    return seen + (isConnected ? "socket " : "");
}

}  // namespace TestSupport
