// Requests over one libcurl handle.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/HttpConnection.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/LastError.h"
#include "PelNetSDK/ReceiveProgress.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

namespace
{

// Far beyond any device's; a server that sends headers for ever is none.
constexpr std::size_t kMostHeaderBytes = std::size_t{256} * 1024;

// The request itself and its repeat after a nonce that grew stale.
constexpr int kMostSent = 2;

using HeaderList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

void AddHeader(HeaderList& list, const char* header)
{
    curl_slist* const longer = curl_slist_append(list.get(), header);
    if (longer == nullptr) {
        throw std::bad_alloc();
    }
    static_cast<void>(list.release());
    list.reset(longer);
}

const char* ContentTypeHeader(const TransportRequest& request)
{
    const std::size_t begin = request.body.find_first_not_of(" \t\r\n");
    const char first = begin == std::string_view::npos ? '\0' : request.body[begin];
    if (first == '<') {
        return "Content-Type: application/xml; charset=UTF-8";
    }
    if (first == '{' || first == '[' ||
        request.line.target.find("format=json") != std::string::npos) {
        return "Content-Type: application/json; charset=UTF-8";
    }
    // Without it libcurl would call the body a web form.
    return request.body.empty() ? "Content-Type:" : "Content-Type: application/octet-stream";
}

HeaderList HeadersOf(const TransportRequest& request)
{
    HeaderList headers(nullptr, &curl_slist_free_all);
    // An "Expect: 100-continue" costs an interim answer, and some devices never give it.
    AddHeader(headers, "Expect:");
    AddHeader(headers, ContentTypeHeader(request));
    return headers;
}

}  // namespace

template <class Value>
void HttpConnection::Set(CURLoption option, Value value)
{
    if (curl_easy_setopt(handle_.get(), option, value) == CURLE_OUT_OF_MEMORY) {
        throw std::bad_alloc();
    }
}

HttpConnection::HttpConnection(const HttpSettings& settings, const std::atomic<bool>& cancelled)
    : base_(settings.base),
      openSocket_(settings.openSocket),
      cancelled_(cancelled),
      hasCredentials_(!settings.user.empty() || !settings.password.Empty()),
      basicAllowed_(settings.secure || settings.allowBasic),
      handle_(curl_easy_init())
{
    if (!handle_) {
        throw std::bad_alloc();
    }
    SetTransport(settings);
    SetSocket();
    SetCredentials(settings);
    SetCallbacks();
}

void HttpConnection::SetTransport(const HttpSettings& settings)
{
    Set(CURLOPT_PROTOCOLS_STR, "http,https");
    Set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    Set(CURLOPT_PROXY, "");  // a device is never behind the proxy of the environment
    Set(CURLOPT_NOSIGNAL, 1L);
    Set(CURLOPT_FOLLOWLOCATION, 0L);
    Set(CURLOPT_PATH_AS_IS, 1L);
    Set(CURLOPT_MAXCONNECTS, 1L);
    Set(CURLOPT_TCP_KEEPALIVE, 1L);
    Set(CURLOPT_BUFFERSIZE, 64L * 1024);
    Set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(AnswerBody::kDefaultLimit));
    Set(CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(settings.connectTimeout.count()));
    Set(CURLOPT_SSL_VERIFYPEER, settings.trustAnyCertificate ? 0L : 1L);
    Set(CURLOPT_SSL_VERIFYHOST, settings.trustAnyCertificate ? 0L : 2L);
    if (!settings.certificateFile.empty()) {
        Set(CURLOPT_CAINFO, settings.certificateFile.c_str());
        Set(CURLOPT_CAPATH, static_cast<char*>(nullptr));  // the file alone is trusted
    }
}

void HttpConnection::SetSocket()
{
    if (!openSocket_) {
        return;
    }
    const curl_opensocket_callback open = [](void* self, curlsocktype, curl_sockaddr*) {
        return static_cast<curl_socket_t>(static_cast<HttpConnection*>(self)->openSocket_());
    };
    const curl_sockopt_callback isConnected = [](void*, curl_socket_t, curlsocktype) {
        return static_cast<int>(CURL_SOCKOPT_ALREADY_CONNECTED);
    };
    Set(CURLOPT_OPENSOCKETFUNCTION, open);
    Set(CURLOPT_OPENSOCKETDATA, this);
    Set(CURLOPT_SOCKOPTFUNCTION, isConnected);
}

void HttpConnection::SetCredentials(const HttpSettings& settings)
{
    // Nothing is sent before a challenge. Asked for digest at once, libcurl would send a change
    // with an empty body first, and a device that asks for no password would carry that out.
    Set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_NONE));
    if (hasCredentials_) {
        Set(CURLOPT_USERNAME, settings.user.c_str());
        Set(CURLOPT_PASSWORD, settings.password.Text());
    }
}

void HttpConnection::SetCallbacks()
{
    Set(CURLOPT_ERRORBUFFER, detail_.data());
    Set(CURLOPT_WRITEFUNCTION, &HttpConnection::OnBody);
    Set(CURLOPT_WRITEDATA, this);
    Set(CURLOPT_HEADERFUNCTION, &HttpConnection::OnHeader);
    Set(CURLOPT_HEADERDATA, this);
    Set(CURLOPT_PREREQFUNCTION, &HttpConnection::OnRequest);
    Set(CURLOPT_PREREQDATA, this);
    Set(CURLOPT_NOPROGRESS, 0L);
    Set(CURLOPT_XFERINFOFUNCTION, &HttpConnection::OnProgress);
    Set(CURLOPT_XFERINFODATA, this);
}

unsigned HttpConnection::Exchange(const TransportRequest& request, TransportAnswer& answer,
                                  Clock::time_point deadline)
{
    unsigned error = Perform(request, answer, deadline);
    if (error == NET_ORB_NOERROR && answer.status == 401 && TakeChallenge()) {
        answer.body.Clear();
        error = Perform(request, answer, deadline);
    }
    answer.passwordChecked = KnowsChallenge() && answer.status != 401;
    return error;
}

/// Chooses how to answer the device's first challenge; false when there is no answer to it.
bool HttpConnection::TakeChallenge()
{
    long offered = CURLAUTH_NONE;
    curl_easy_getinfo(handle_.get(), CURLINFO_HTTPAUTH_AVAIL, &offered);
    const bool digest = (offered & static_cast<long>(CURLAUTH_DIGEST)) != 0;
    const bool basic = (offered & static_cast<long>(CURLAUTH_BASIC)) != 0 && basicAllowed_;
    if (!hasCredentials_ || KnowsChallenge() || !(digest || basic)) {
        return false;
    }
    scheme_ = static_cast<long>(digest ? CURLAUTH_DIGEST : CURLAUTH_BASIC);
    Set(CURLOPT_HTTPAUTH, scheme_);
    return true;
}

unsigned HttpConnection::Perform(const TransportRequest& request, TransportAnswer& answer,
                                 Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) {
        return NET_ORB_NETWORK_RECV_TIMEOUT;
    }
    const bool isGet = request.line.method == "GET";
    const HeaderList headers = HeadersOf(request);
    Set(CURLOPT_URL, (base_ + request.line.target).c_str());
    Set(CURLOPT_HTTPHEADER, headers.get());
    Set(CURLOPT_TIMEOUT_MS, static_cast<long>(left.count()));
    if (isGet && request.body.empty()) {
        Set(CURLOPT_HTTPGET, 1L);
    } else {
        Set(CURLOPT_POST, 1L);
        Set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
        Set(CURLOPT_POSTFIELDS, request.body.empty() ? "" : request.body.data());
    }
    Set(CURLOPT_CUSTOMREQUEST, request.line.method.c_str());

    answer_ = &answer;
    stopped_ = kNotStopped;
    repeatable_ = isGet;
    unanswered_ = false;
    requestsSent_ = 0;
    headerBytes_ = 0;
    detail_.front() = '\0';
    const CURLcode code = curl_easy_perform(handle_.get());
    answer_ = nullptr;

    long opened = 0;
    curl_easy_getinfo(handle_.get(), CURLINFO_NUM_CONNECTS, &opened);
    counters.connections += static_cast<unsigned long long>(std::max(opened, 0L));
    long status = 0;
    curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
    answer.status = static_cast<int>(status);
    // What they point at ends with this call.
    Set(CURLOPT_POSTFIELDS, "");
    Set(CURLOPT_HTTPHEADER, static_cast<curl_slist*>(nullptr));
    return Judge(code);
}

unsigned HttpConnection::Judge(CURLcode code)
{
    if (code == CURLE_OK) {
        return NET_ORB_NOERROR;
    }
    SetFailureDetail(detail_.data());
    if (stopped_ != kNotStopped) {
        return stopped_;
    }
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST:
            return NET_ORB_DNS_FAILED;
        case CURLE_COULDNT_CONNECT:
            return NET_ORB_NETWORK_FAIL_CONNECT;
        case CURLE_OPERATION_TIMEDOUT:
            return requestsSent_ == 0 ? NET_ORB_NETWORK_FAIL_CONNECT : NET_ORB_NETWORK_RECV_TIMEOUT;
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
        case CURLE_FILESIZE_EXCEEDED:
            return NET_ORB_ANSWER_TOO_LARGE;
        case CURLE_UNSUPPORTED_PROTOCOL:
        case CURLE_WEIRD_SERVER_REPLY:
        case CURLE_BAD_CONTENT_ENCODING:
            return NET_ORB_NETWORK_ERRORDATA;
        case CURLE_OUT_OF_MEMORY:
            return NET_ORB_ALLOC_RESOURCE_ERROR;
        default:
            return NET_ORB_NETWORK_RECV_ERROR;
    }
}

std::size_t HttpConnection::OnBody(const char* bytes, std::size_t /*one*/, std::size_t count,
                                   void* self)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    try {
        if (connection.answer_->body.Append(bytes, count)) {
            return count;
        }
        connection.stopped_ = NET_ORB_ANSWER_TOO_LARGE;
    } catch (const std::bad_alloc&) {
        connection.stopped_ = NET_ORB_ALLOC_RESOURCE_ERROR;
    }
    return CURL_WRITEFUNC_ERROR;
}

std::size_t HttpConnection::OnHeader(const char* bytes, std::size_t /*one*/, std::size_t count,
                                     void* self)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    const std::string_view header(bytes, count);
    // Interim answers ("HTTP/1.1 100 Continue") do not count.
    if (header.starts_with("HTTP/") && !header.substr(header.find(' ') + 1).starts_with('1')) {
        ++counters.exchanges;
        connection.unanswered_ = false;
    }
    connection.headerBytes_ += count;
    if (connection.headerBytes_ > kMostHeaderBytes) {
        connection.stopped_ = NET_ORB_NETWORK_ERRORDATA;
        return CURL_WRITEFUNC_ERROR;
    }
    return count;
}

int HttpConnection::OnProgress(void* self, curl_off_t total, curl_off_t now, curl_off_t /*upTotal*/,
                               curl_off_t /*upNow*/)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    if (connection.cancelled_) {
        connection.stopped_ = NET_ORB_CANCELLED;
        return 1;
    }
    TellReceived(static_cast<unsigned long long>(now), static_cast<unsigned long long>(total));
    return 0;
}

/// Before each sending of the request.
int HttpConnection::OnRequest(void* self, char* /*peer*/, char* /*local*/, int /*peerPort*/,
                              int /*localPort*/)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    if (connection.unanswered_ && !connection.repeatable_) {
        // The kept connection broke under a change: whether it was carried out is unknown, and
        // libcurl would send it again.
        connection.stopped_ = NET_ORB_NETWORK_RECV_ERROR;
    } else if (connection.requestsSent_ >= kMostSent) {
        // A device that calls every nonce stale would be asked for ever.
        connection.stopped_ =
            connection.unanswered_ ? NET_ORB_NETWORK_RECV_ERROR : NET_ORB_PASSWORD_ERROR;
    }
    if (connection.stopped_ != kNotStopped) {
        return CURL_PREREQFUNC_ABORT;
    }
    connection.unanswered_ = true;
    ++connection.requestsSent_;
    return CURL_PREREQFUNC_OK;
}

}  // namespace PelNet
