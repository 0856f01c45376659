// An HTTP server over a simulated device, for any client on the network.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Device/DeviceModel.h"
#include "Device/http/ServerFaults.h"

namespace Device
{

/// One answered request, for a log.
struct ServedRequest
{
    std::string method;
    std::string target;                     ///< as it stood in the request line
    int status = 0;                         ///< 0: the connection ended without an answer
    std::uint64_t bytes = 0;                ///< of the answer's body, as far as they were sent
    std::chrono::microseconds duration{0};  ///< from the request line to the last byte
};

struct ServerOptions
{
    std::string address = "127.0.0.1";  ///< a numeric IPv4 or IPv6 address to listen on
    std::uint16_t port = 0;             ///< 0: any that is free
    bool authentication = true;         ///< digest authentication of the device's users
    std::string realm = "device";
    std::chrono::milliseconds nonceLifetime{300'000};
    bool tls = false;
    std::string certificatePem = {};  ///< with `keyPem`; both empty: self-signed, made on the spot
    std::string keyPem = {};
    unsigned int maxConnections = 256;     ///< further ones wait
    unsigned int maxBody = 64u << 20;      ///< bytes; a request with more is refused with 413
    std::chrono::seconds idleTimeout{60};  ///< after which a silent connection is closed
    std::vector<Fault> faults = {};
    /// Called after each request, from the server's threads, one call at a time.
    std::function<void(const ServedRequest&)> log = {};
};

/// Serves a device until it is stopped or destroyed. All members may be called from any thread.
class DeviceServer
{
public:
    /// Starts serving. Returns null and a sentence in `error` when the address cannot be listened
    /// on, the certificate is not usable or a fault makes no sense.
    static std::unique_ptr<DeviceServer> Start(std::shared_ptr<DeviceModel> model,
                                               ServerOptions options, std::string& error);

    virtual ~DeviceServer() = default;
    DeviceServer(const DeviceServer&) = delete;
    DeviceServer& operator=(const DeviceServer&) = delete;

    /// The port it listens on.
    [[nodiscard]] virtual std::uint16_t Port() const = 0;
    /// "http://127.0.0.1:8080", without a trailing slash.
    [[nodiscard]] virtual std::string Url() const = 0;
    /// The server's certificate for a client that is to trust it; empty without TLS.
    [[nodiscard]] virtual std::string CertificatePem() const = 0;

    /// Replaces the faults and starts counting their requests anew. False and a sentence when one
    /// makes no sense; the former faults then stay.
    virtual bool SetFaults(std::vector<Fault> faults, std::string& error) = 0;

    /// How often each of the faults struck since they were set, in their order. Where faults get in
    /// each other's way, only those count that the client noticed.
    [[nodiscard]] virtual std::vector<std::uint64_t> FaultCounts() const = 0;

    /// Ends all connections, answers in progress included, and returns when no thread is left;
    /// within a second unless the model or the log takes longer.
    virtual void Stop() = 0;

protected:
    DeviceServer() = default;
};

}  // namespace Device
