// Failed SDK calls in words.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/SdkFailure.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "PelNetSDK/Login.h"

namespace Tool
{

namespace
{

bool Mentions(const SdkFailure& failure, std::initializer_list<std::string_view> words)
{
    for (const std::string_view word : words) {
        if (failure.detail.find(word) != std::string::npos) {
            return true;
        }
    }
    return false;
}

/// Trusting a certificate helps only if nothing else is wrong with it.
std::string CertificateHint(const SdkFailure& failure)
{
    if (Mentions(failure, {"expired"})) {
        return "; renew the device's certificate, and check its clock and this computer's";
    }
    if (Mentions(failure, {"not yet valid"})) {
        return "; check the device's clock and this computer's";
    }
    if (Mentions(failure, {"does not match", "no alternative certificate subject"})) {
        return "; use the host name that the certificate was issued for";
    }
    if (Mentions(failure, {"setting certificate"})) {
        return "; --ca takes a PEM file of certificates";
    }
    return "; if the device signed its certificate itself, save the certificate and trust it with "
           "--ca FILE";
}

}  // namespace

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

Json::Value ErrorToJson(const SdkFailure& failure)
{
    Json::Value error(Json::objectValue);
    error["number"] = failure.error;
    error["text"] =
        failure.text + (failure.detail.empty() ? std::string() : " (" + failure.detail + ")");
    return error;
}

std::string Hint(const SdkFailure& failure)
{
    switch (failure.error) {
        case NET_ORB_PASSWORD_ERROR:
            return Mentions(failure, {"none was given"})
                       ? ""
                       : "; the password was tried once, so that the device does not lock the user "
                         "out";
        case NET_ORB_CERTIFICATE_ERROR:
            return CertificateHint(failure);
        case NET_ORB_NETWORK_RECV_TIMEOUT:
            return "; wait longer with --timeout SECONDS";
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
        case NET_ORB_AUTH_UNSUPPORTED:
            return true;
        default:
            return false;
    }
}

}  // namespace Tool
