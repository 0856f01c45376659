// The last failure of each thread, and what the error numbers mean.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/LastError.h"

#include <algorithm>
#include <array>
#include <utility>

#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Login.h"

namespace PelNet
{

namespace
{

using Detail = std::array<char, limits::kDetail>;

struct ThreadFailure
{
    Failure failure;
    Detail detail{};
    Detail next{};  ///< of the failure to come
};

thread_local ThreadFailure threadFailure;

constexpr std::pair<unsigned, const char*> kTexts[] = {
    {NET_ORB_NOERROR, "no error"},
    {NET_ORB_PASSWORD_ERROR, "the user name or the password is wrong"},
    {NET_ORB_NOENOUGHPRI, "the user may not do this"},
    {NET_ORB_NOINIT, "the user ID is not logged in"},
    {NET_ORB_CHANNEL_ERROR, "the device has no such channel"},
    {NET_ORB_NETWORK_FAIL_CONNECT, "nothing answers at the address, or it refuses"},
    {NET_ORB_NETWORK_SEND_ERROR, "the connection broke while sending"},
    {NET_ORB_NETWORK_RECV_ERROR, "the connection broke in the middle of the answer"},
    {NET_ORB_NETWORK_RECV_TIMEOUT, "no complete answer came in time"},
    {NET_ORB_NETWORK_ERRORDATA, "the answer does not follow the protocol"},
    {NET_ORB_PARAMETER_ERROR, "an argument or the request line is not acceptable"},
    {NET_ORB_NOSUPPORT, "the device does not support this"},
    {NET_ORB_DEVICE_BUSY, "the device is too busy"},
    {NET_ORB_DEVICE_REFUSED, "the device refused the request"},
    {NET_ORB_ALLOC_RESOURCE_ERROR, "there is not enough memory"},
    {NET_ORB_BUFFER_TOO_SMALL, "the answer does not fit the buffer"},
    {NET_ORB_MAX_USERNUM, "no more devices can be logged in"},
    {NET_ORB_DNS_FAILED, "the host name cannot be resolved"},
    {NET_ORB_CANCELLED, "the session was logged out while the request ran"},
    {NET_ORB_NO_SUCH_PROFILE, "the simulated device has no such profile"},
    {NET_ORB_CALLBACK_FAILED, "the progress callback threw an exception"},
    {NET_ORB_CERTIFICATE_ERROR, "the device's certificate cannot be trusted"},
    {NET_ORB_TLS_FAILED, "no secure connection could be made"},
    {NET_ORB_ANSWER_TOO_LARGE, "the answer is larger than any the SDK accepts"},
    {NET_ORB_AUTH_UNSUPPORTED, "the server offers no login that the SDK may use"},
    {NET_ORB_ABILITY_FAILED, "the device does not know the ability"},
    {NET_ORB_ABILITY_TOO_SMALL, "the ability does not fit the buffer"},
};

}  // namespace

void SetLastFailure(const Failure& failure) noexcept
{
    threadFailure.failure = failure;
    threadFailure.detail = std::exchange(threadFailure.next, Detail{});
}

Failure LastFailure() noexcept
{
    return threadFailure.failure;
}

void SetFailureDetail(std::string_view detail) noexcept
{
    threadFailure.next = {};
    std::copy_n(detail.data(), std::min(detail.size(), threadFailure.next.size() - 1),
                threadFailure.next.begin());
}

const char* LastFailureDetail() noexcept
{
    return threadFailure.detail.data();
}

}  // namespace PelNet

extern "C" unsigned int NET_ORB_GetLastError(void)
{
    return PelNet::LastFailure().error;
}

extern "C" int NET_ORB_GetLastErrorModelCode(int* errModelCode, int* errDevSelfEx)
{
    const PelNet::Failure failure = PelNet::LastFailure();
    if (errModelCode != nullptr) {
        *errModelCode = failure.modelCode;
    }
    if (errDevSelfEx != nullptr) {
        *errDevSelfEx = failure.deviceCode;
    }
    return 1;
}

extern "C" const char* NET_ORB_GetLastErrorDetail(void)
{
    return PelNet::LastFailureDetail();
}

extern "C" const char* NET_ORB_GetErrorText(unsigned int error)
{
    const auto* const found =
        std::ranges::find(PelNet::kTexts, error, &std::pair<unsigned, const char*>::first);
    return found == std::end(PelNet::kTexts) ? "unknown error" : found->second;
}
