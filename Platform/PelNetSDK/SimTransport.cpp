// Requests to the simulated device in this process.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/SimTransport.h"

#include <array>

#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/ReceiveProgress.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

// A body made on demand is taken block by block, so that it is held once.
unsigned SimTransport::Receive(Device::BodySource& source, AnswerBody& body) const
{
    std::array<char, 65536> block;
    body.Clear();
    if (source.Size() > body.Limit()) {
        return NET_ORB_ANSWER_TOO_LARGE;
    }
    while (const size_t count = source.Read(block.data(), block.size())) {
        if (cancelled_) {
            return NET_ORB_CANCELLED;
        }
        if (!body.Append(block.data(), count)) {
            return NET_ORB_ANSWER_TOO_LARGE;
        }
        TellReceived(body.Size(), source.Size());
    }
    return NET_ORB_NOERROR;
}

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
    if (response.source) {
        return Receive(*response.source, answer.body);
    }
    return answer.body.Adopt(std::move(response.body)) ? NET_ORB_NOERROR : NET_ORB_ANSWER_TOO_LARGE;
}

}  // namespace PelNet
