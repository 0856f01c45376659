// Judging libcurl's failures.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/HttpFault.h"

#include <memory>

#include "PelNetSDK/ErrorNumbers.h"

namespace PelNet
{

namespace
{

unsigned ErrorOfTimeout(CURL* handle, bool wasSent)
{
    curl_off_t lookup = 0;
    curl_easy_getinfo(handle, CURLINFO_NAMELOOKUP_TIME_T, &lookup);
    return wasSent       ? NET_ORB_NETWORK_RECV_TIMEOUT
           : lookup == 0 ? NET_ORB_DNS_FAILED
                         : NET_ORB_NETWORK_FAIL_CONNECT;
}

/// libcurl reports a header line without an end, which fills a buffer of its own, as a failed
/// allocation. It is one only if the same memory cannot be had now.
bool IsMemoryShort(CURL* handle)
{
    constexpr int kLongestLine = 100 * 1024;
    const std::string text(kLongestLine, 'x');
    const std::unique_ptr<char, decltype(&curl_free)> copy(
        curl_easy_unescape(handle, text.data(), kLongestLine, nullptr), &curl_free);
    return copy == nullptr;
}

unsigned ErrorOf(CURL* handle, CURLcode code, bool wasSent)
{
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST:
            return NET_ORB_DNS_FAILED;
        case CURLE_COULDNT_CONNECT:
            return NET_ORB_NETWORK_FAIL_CONNECT;
        case CURLE_OPERATION_TIMEDOUT:
            return ErrorOfTimeout(handle, wasSent);
        case CURLE_PEER_FAILED_VERIFICATION:
        case CURLE_SSL_CACERT_BADFILE:
        case CURLE_SSL_ISSUER_ERROR:
            return NET_ORB_CERTIFICATE_ERROR;
        case CURLE_SSL_CONNECT_ERROR:
        case CURLE_SSL_CIPHER:
        case CURLE_SSL_CERTPROBLEM:
        case CURLE_USE_SSL_FAILED:
            return NET_ORB_TLS_FAILED;
        case CURLE_SEND_ERROR:
        case CURLE_SEND_FAIL_REWIND:
            return NET_ORB_NETWORK_SEND_ERROR;
        case CURLE_UNSUPPORTED_PROTOCOL:
        case CURLE_WEIRD_SERVER_REPLY:
        case CURLE_BAD_CONTENT_ENCODING:
            return NET_ORB_NETWORK_ERRORDATA;
        case CURLE_OUT_OF_MEMORY:
            return wasSent && !IsMemoryShort(handle) ? NET_ORB_NETWORK_ERRORDATA
                                                     : NET_ORB_ALLOC_RESOURCE_ERROR;
        default:
            return NET_ORB_NETWORK_RECV_ERROR;
    }
}

bool Mentions(std::string_view text, std::string_view words)
{
    return text.find(words) != std::string_view::npos;
}

}  // namespace

HttpFault JudgeTransfer(CURL* handle, CURLcode code, std::string_view text, bool wasSent)
{
    HttpFault fault{ErrorOf(handle, code, wasSent), std::string(text)};
    if (code == CURLE_OUT_OF_MEMORY && fault.error == NET_ORB_NETWORK_ERRORDATA) {
        fault.detail = "the server sends a header line without an end";
    } else if (Mentions(text, "in chunked-encoding")) {
        fault = {NET_ORB_NETWORK_ERRORDATA, "the server's chunks are malformed"};
    } else if (Mentions(text, "alert certificate required")) {
        fault = {NET_ORB_TLS_FAILED,
                 "the server requires a client certificate, and the SDK has none to send"};
    } else if (Mentions(text, "alert handshake failure")) {
        fault.detail += "; the server may require a client certificate, and the SDK has none";
    }
    return fault;
}

}  // namespace PelNet
