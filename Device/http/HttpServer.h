// The HTTP server behind DeviceServer: libmicrohttpd with a thread for each connection.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <microhttpd.h>

#include <mutex>

#include "Device/http/ConnectionGuard.h"
#include "Device/http/DeviceServer.h"
#include "Device/http/DigestAuthentication.h"
#include "Device/http/ListenSocket.h"
#include "Device/http/ServerExchange.h"

namespace Device
{

class HttpServer : public DeviceServer
{
public:
    HttpServer(std::shared_ptr<DeviceModel> model, ServerOptions options);
    ~HttpServer() override { StopDaemon(); }
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    bool Listen(std::string& error);

    [[nodiscard]] std::uint16_t Port() const override { return port_; }
    [[nodiscard]] std::string Url() const override;
    [[nodiscard]] std::string CertificatePem() const override
    {
        return options_.tls ? options_.certificatePem : std::string();
    }
    bool SetFaults(std::vector<Fault> faults, std::string& error) override;
    [[nodiscard]] std::vector<std::uint64_t> FaultCounts() const override
    {
        return faults_.Counts();
    }
    void Stop() override { StopDaemon(); }

private:
    // Callbacks of libmicrohttpd.
    static void Notify(void* self, MHD_Connection* connection, void** context,
                       MHD_ConnectionNotificationCode code);
    static void* Begin(void* self, const char* uri, MHD_Connection* connection);
    static MHD_Result Take(void* self, MHD_Connection* connection, const char* url,
                           const char* method, const char* version, const char* data, size_t* size,
                           void** exchange);
    static void End(void* self, MHD_Connection* connection, void** exchange,
                    MHD_RequestTerminationCode code);

    bool PrepareCertificate(std::string& error);
    bool StartDaemon(int socket);
    void StopDaemon();

    // The stages of a request.
    MHD_Result TakeHeaders(MHD_Connection* connection, Exchange& exchange);
    void Authenticate(MHD_Connection* connection, Exchange& exchange);
    MHD_Result TakeBody(Exchange& exchange, const char* data, size_t* size) const;
    MHD_Result Answer(MHD_Connection* connection, Exchange& exchange);
    Response Decide(FaultPlan& plan, Exchange& exchange);
    Response AskModel(Exchange& exchange);
    MHD_Result Send(MHD_Connection* connection, Exchange& exchange, Response response,
                    FaultPlan plan);

    const std::shared_ptr<DeviceModel> model_;
    ServerOptions options_;
    DigestAuthentication digest_;
    FaultPlanner faults_;
    StopSignal stop_;
    ConnectionGuard guard_;
    std::uint16_t port_ = 0;
    std::mutex largeBodyMutex_;
    std::mutex logMutex_;
    std::mutex stopMutex_;
    MHD_Daemon* daemon_ = nullptr;
};

}  // namespace Device
