// Requests to the simulated device in this process.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/SimTransport.h"

#include "PelNetSDK/Login.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

unsigned SimTransport::Exchange(const TransportRequest& request, TransportAnswer& answer)
{
    if (cancelled_) {
        return NET_ORB_CANCELLED;
    }
    Device::Response response = device_->Handle(
        {request.line.method, DecodePath(request.line.target), std::string(request.body)});
    ++counters.exchanges;
    if (cancelled_) {
        return NET_ORB_CANCELLED;
    }
    answer.status = response.status;
    return answer.body.Adopt(std::move(response.body)) ? NET_ORB_NOERROR : NET_ORB_ANSWER_TOO_LARGE;
}

}  // namespace PelNet
