// Serves a simulated device over HTTP.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Device/DeviceModel.h"
#include "Device/Limits.h"
#include "Device/http/ServerFaults.h"

namespace Device
{

/// One request that was answered, for a log.
struct ServedRequest
{
    std::string method;
    std::string target;                     ///< as in the request line
    int status = 0;                         ///< 0: the connection ended without an answer
    std::uint64_t bytes = 0;                ///< sent of the answer's body
    std::chrono::microseconds duration{0};  ///< from the request line to the last byte
};

struct ServerOptions
{
    std::string address = "127.0.0.1";  ///< numeric IPv4 or IPv6 address to listen on
    std::uint16_t port = 0;             ///< 0: any free port
    bool authentication = true;         ///< ask for the password of one of the device's users
    std::string realm = "device";
    std::chrono::milliseconds nonceLifetime{300'000};
    bool tls = false;                 ///< TLS 1.2 and 1.3
    std::string certificatePem = {};  ///< with `keyPem`; if both are empty, makes a self-signed one
    std::string keyPem = {};
    /// Connections at once. A new one replaces the one that has waited longest for a request; while
    /// all are busy with requests, it is closed.
    unsigned int maxConnections = kMostConnections;
    std::size_t maxBody = kMostBody;                           ///< larger bodies are refused
    std::chrono::milliseconds headerTimeout = kHeaderTimeout;  ///< for a first request's headers
    std::chrono::milliseconds bodyTimeout = kBodyTimeout;
    std::chrono::seconds idleTimeout = kIdleTimeout;  ///< between requests and between packets
    std::vector<Fault> faults = {};
    /// Called after each request, from the server's threads, one call at a time.
    std::function<void(const ServedRequest&)> log = {};
};

/// Serves a device until it is stopped or destroyed. All members may be called from any thread.
class DeviceServer
{
public:
    /// Starts serving. On failure returns null and sets `error` to a message: why it cannot listen
    /// on the address, what is wrong with the certificate, or which fault makes no sense.
    static std::unique_ptr<DeviceServer> Start(std::shared_ptr<DeviceModel> model,
                                               ServerOptions options, std::string& error);

    virtual ~DeviceServer() = default;
    DeviceServer(const DeviceServer&) = delete;
    DeviceServer& operator=(const DeviceServer&) = delete;

    /// The port it listens on.
    [[nodiscard]] virtual std::uint16_t Port() const = 0;
    /// "http://127.0.0.1:8080", without a trailing slash.
    [[nodiscard]] virtual std::string Url() const = 0;
    /// The server's certificate, for clients to trust; empty without TLS.
    [[nodiscard]] virtual std::string CertificatePem() const = 0;

    /// Replaces the faults and resets their counts. Returns false, sets `error` to a message and
    /// keeps the old faults if one makes no sense.
    virtual bool SetFaults(std::vector<Fault> faults, std::string& error) = 0;

    /// How often each fault struck since the faults were set, in their order. If several faults hit
    /// one request, only those that the client noticed count.
    [[nodiscard]] virtual std::vector<std::uint64_t> FaultCounts() const = 0;

    /// Ends all connections, even in the middle of an answer, and waits for the server's threads.
    /// Takes less than a second unless the model or the log takes longer.
    virtual void Stop() = 0;

protected:
    DeviceServer() = default;
};

}  // namespace Device
