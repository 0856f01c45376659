// Reporting to the thread that asked how much of an answer has arrived.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/ReceiveProgress.h"

#include "PelNetSDK/Login.h"

namespace PelNet
{

namespace
{

struct Listener
{
    NET_ORB_RECEIVE_PROGRESS report = nullptr;
    void* context = nullptr;
};

thread_local Listener listener;

}  // namespace

void ReportReceived(unsigned long long received, unsigned long long total)
{
    if (listener.report != nullptr) {
        listener.report(received, total, listener.context);
    }
}

}  // namespace PelNet

extern "C" void NET_ORB_SetReceiveProgress(NET_ORB_RECEIVE_PROGRESS progress, void* context)
{
    PelNet::listener = {progress, context};
}
