// Starts the server.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/DeviceServer.h"

#include "Device/http/HttpServer.h"

namespace Device
{

std::unique_ptr<DeviceServer> DeviceServer::Start(std::shared_ptr<DeviceModel> model,
                                                  ServerOptions options, std::string& error)
{
    auto server = std::make_unique<HttpServer>(std::move(model), std::move(options));
    if (!server->Listen(error)) {
        return nullptr;
    }
    return server;
}

}  // namespace Device
