// Requests to the simulated device in this process.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/SimTransport.h"

#include <array>

#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/ReceiveProgress.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

namespace
{

unsigned ErrorOf(TransportAnswer::Taken taken)
{
    return taken == TransportAnswer::Taken::TooLarge ? NET_ORB_ANSWER_TOO_LARGE : NET_ORB_NOERROR;
}

}  // namespace

// A body made on demand is taken block by block, so that it is held once.
unsigned SimTransport::Receive(Device::BodySource& source, TransportAnswer& answer) const
{
    std::array<char, 65536> block;
    answer.announcedSize = source.Size();
    if (answer.IsSuccess() && source.Size() > answer.limit) {
        return NET_ORB_ANSWER_TOO_LARGE;
    }
    while (const size_t count = source.Read(block.data(), block.size())) {
        if (cancelled_) {
            return NET_ORB_CANCELLED;
        }
        if (const auto taken = answer.Take(block.data(), count);
            taken != TransportAnswer::Taken::Whole) {
            return ErrorOf(taken);
        }
        if (!ReportReceived(answer.body.Size(), source.Size())) {
            return NET_ORB_CALLBACK_FAILED;
        }
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
        return Receive(*response.source, answer);
    }
    answer.announcedSize = response.body.size();
    return ErrorOf(answer.Take(std::move(response.body)));
}

}  // namespace PelNet
