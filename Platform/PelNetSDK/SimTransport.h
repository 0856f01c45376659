// The simulated device in this process, reached without sockets.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "Device/DeviceModel.h"
#include "PelNetSDK/Transport.h"

namespace PelNet
{

class SimTransport : public Transport
{
public:
    explicit SimTransport(std::shared_ptr<Device::DeviceModel> device) : device_(std::move(device))
    {
    }

    unsigned Exchange(const TransportRequest& request, TransportAnswer& answer) override;
    void Cancel() noexcept override { cancelled_ = true; }

private:
    unsigned Receive(Device::BodySource& source, TransportAnswer& answer) const;

    const std::shared_ptr<Device::DeviceModel> device_;
    std::atomic<bool> cancelled_{false};
};

}  // namespace PelNet
