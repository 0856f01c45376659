// Reporting to the thread that asked how much of an answer has arrived.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/ReceiveProgress.h"

#include <exception>

#include "PelNetSDK/LastError.h"
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

bool ReportReceived(unsigned long long received, unsigned long long total) noexcept
try {
    if (listener.report != nullptr) {
        listener.report(received, total, listener.context);
    }
    return true;
} catch (const std::exception& exception) {
    SetFailureDetail(exception.what());
    return false;
} catch (...) {
    return false;
}

}  // namespace PelNet

extern "C" void NET_ORB_SetReceiveProgress(NET_ORB_RECEIVE_PROGRESS progress, void* context)
{
    PelNet::listener = {progress, context};
}
