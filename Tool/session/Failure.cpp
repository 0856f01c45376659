// What went wrong, as one sentence with the number and a hint.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Failure.h"

#include <array>
#include <cstdio>

#include "PelNetSDK/Login.h"

namespace Tool
{

SdkFailure LastFailure(unsigned int error)
{
    SdkFailure failure{error, NET_ORB_GetErrorText(error), NET_ORB_GetLastErrorDetail()};
    int model = 0;
    int device = 0;
    if (failure.detail.empty() && NET_ORB_GetLastErrorModelCode(&model, &device) != 0 &&
        model > 0) {
        std::array<char, 16> digits{};
        std::snprintf(digits.data(), digits.size(), "0x%x", static_cast<unsigned int>(model));
        failure.detail = "the device's own code is ";
        failure.detail += digits.data();
    }
    return failure;
}

std::string Told(const SdkFailure& failure)
{
    return "error " + std::to_string(failure.error) + ": " + failure.text +
           (failure.detail.empty() ? "" : " (" + failure.detail + ")");
}

std::string Hint(unsigned int error)
{
    switch (error) {
        case NET_ORB_PASSWORD_ERROR:
            return "; the password was tried once, so that the device does not lock the user";
        case NET_ORB_CERTIFICATE_ERROR:
            return "; trust it with --ca FILE, or give up checking with --insecure";
        case NET_ORB_NETWORK_RECV_TIMEOUT:
            return "; wait longer with --timeout SECONDS";
        case NET_ORB_CHANNEL_ERROR:
            return "; choose one with --channel N";
        default:
            return {};
    }
}

bool MeansUnsupported(unsigned int error)
{
    return error == NET_ORB_NOSUPPORT || error == NET_ORB_ABILITY_FAILED;
}

bool MeansUnreachable(unsigned int error)
{
    switch (error) {
        case NET_ORB_PASSWORD_ERROR:
        case NET_ORB_NOINIT:
        case NET_ORB_NETWORK_FAIL_CONNECT:
        case NET_ORB_DNS_FAILED:
        case NET_ORB_CANCELLED:
        case NET_ORB_CERTIFICATE_ERROR:
        case NET_ORB_TLS_FAILED:
            return true;
        default:
            return false;
    }
}

}  // namespace Tool
