// Requests over one libcurl handle.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/HttpConnection.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>
#include <string_view>

#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/HttpFault.h"
#include "PelNetSDK/LastError.h"
#include "PelNetSDK/Limits.h"
#include "PelNetSDK/ReceiveProgress.h"
#include "PelNetSDK/Statistics.h"

namespace PelNet
{

namespace
{

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
    // An "Expect: 100-continue" costs an interim answer, and some devices never send it.
    AddHeader(headers, "Expect:");
    // Without it a server may compress. Documents are small and devices near, and a compressed
    // answer could expand a thousandfold.
    AddHeader(headers, "Accept-Encoding: identity");
    AddHeader(headers, ContentTypeHeader(request));
    return headers;
}

/// libcurl takes no more.
long Milliseconds(std::chrono::milliseconds time)
{
    return static_cast<long>(
        std::min<std::chrono::milliseconds::rep>(time.count(), std::numeric_limits<int>::max()));
}

}  // namespace

template <class Value>
void HttpConnection::Set(CURLoption option, Value value)
{
    switch (curl_easy_setopt(handle_.get(), option, value)) {
        case CURLE_OUT_OF_MEMORY:
            throw std::bad_alloc();
        case CURLE_BAD_FUNCTION_ARGUMENT:
            throw std::invalid_argument("a setting that libcurl refuses");
        default:  // an option that this libcurl was built without
            break;
    }
}

HttpConnection::HttpConnection(const HttpSettings& settings, const std::atomic<bool>& cancelled)
    : base_(settings.base),
      openSocket_(settings.openSocket),
      cancelled_(cancelled),
      hasCredentials_(!settings.user.empty() || !settings.password.Empty()),
      isSecure_(settings.secure),
      basicAllowed_((settings.secure && !settings.trustAnyCertificate) || settings.allowBasic),
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
    Set(CURLOPT_PROXY, "");  // never reach a device through the environment's proxy
    Set(CURLOPT_NOSIGNAL, 1L);
    Set(CURLOPT_QUICK_EXIT, 1L);  // do not wait for a resolver beyond the time-out
    Set(CURLOPT_FOLLOWLOCATION, 0L);
    Set(CURLOPT_PATH_AS_IS, 1L);
    Set(CURLOPT_MAXCONNECTS, 1L);
    Set(CURLOPT_TCP_KEEPALIVE, 1L);
    Set(CURLOPT_BUFFERSIZE, 64L * 1024);
    Set(CURLOPT_CONNECTTIMEOUT_MS, Milliseconds(settings.connectTimeout));
    Set(CURLOPT_SSL_VERIFYPEER, settings.trustAnyCertificate ? 0L : 1L);
    Set(CURLOPT_SSL_VERIFYHOST, settings.trustAnyCertificate ? 0L : 2L);
    if (!settings.certificateFile.empty()) {
        Set(CURLOPT_CAINFO, settings.certificateFile.c_str());
        Set(CURLOPT_CAPATH, static_cast<char*>(nullptr));  // trust this file alone
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
    // Send nothing before a challenge. Told to use digest at once, libcurl would first send a
    // change with an empty body, and a device that needs no password would carry that out.
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
    if (error == NET_ORB_NOERROR && answer.status == 401 && TakeChallenge(answer)) {
        answer.Clear();
        error = Perform(request, answer, deadline);
    }
    answer.passwordChecked = KnowsChallenge() && answer.status != 401;
    if (answer.hint.empty()) {
        answer.hint = HintOf(answer);
    }
    return error;
}

/// What a person should know of a refusal that says nothing in the protocol's own words.
std::string HttpConnection::HintOf(const TransportAnswer& answer) const
{
    if (answer.status >= 300 && answer.status < 400 && !head_.Location().empty()) {
        return "the server redirects to " + head_.Location() + "; use its address";
    }
    if (answer.status == 400) {
        constexpr std::size_t kTitle = 512;  // web servers explain it in the title of a page
        const std::string page = answer.body.Head(kTitle);
        if (page.find("No required SSL certificate") != std::string::npos) {
            return "the server requires a client certificate, and the SDK has none to send";
        }
        if (page.find("plain HTTP request was sent to HTTPS port") != std::string::npos) {
            return "the server expects https://";
        }
    }
    return {};
}

/// Chooses how to answer the device's first challenge. False if there is no answer to it.
bool HttpConnection::TakeChallenge(TransportAnswer& answer)
{
    if (KnowsChallenge()) {
        return false;
    }
    if (!hasCredentials_) {
        answer.hint = "the device requires a user name and a password, and none was given";
        return false;
    }
    answer.hint = WhyNoLogin();
    if (!answer.hint.empty()) {
        answer.loginError = NET_ORB_AUTH_UNSUPPORTED;
        return false;
    }
    scheme_ =
        static_cast<long>(head_.Offered().Offers("Digest") ? CURLAUTH_DIGEST : CURLAUTH_BASIC);
    Set(CURLOPT_HTTPAUTH, scheme_);
    return true;
}

/// Why the server's challenge cannot be answered; empty if it can.
std::string HttpConnection::WhyNoLogin() const
{
    const Challenges& offered = head_.Offered();
    const std::string names = offered.Names();
    if (names.empty()) {
        return "the server requires a password, but offers no way to send one";
    }
    if (offered.Offers("Digest")) {
        return offered.DigestFault();
    }
    if (!offered.Offers("Basic")) {
        return "the server offers only " + names +
               ", but the SDK only knows Digest, and Basic over TLS";
    }
    if (basicAllowed_) {
        return {};
    }
    return "the server offers only " + names +
           (isSecure_ ? ", and Basic is not sent while the certificate is not checked"
                      : (names == "Basic" ? ", which is not sent without TLS"
                                          : ", and Basic is not sent without TLS"));
}

unsigned HttpConnection::Perform(const TransportRequest& request, TransportAnswer& answer,
                                 Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) {
        return NET_ORB_NETWORK_RECV_TIMEOUT;
    }
    const HeaderList headers = HeadersOf(request);
    Set(CURLOPT_HTTPHEADER, headers.get());
    Set(CURLOPT_TIMEOUT_MS, Milliseconds(left));
    SetRequest(request);

    answer_ = &answer;
    answer.status = 0;
    stopped_ = kNotStopped;
    whyStopped_ = nullptr;
    isComplete_ = false;
    repeatable_ = request.IsGet();
    unanswered_ = false;
    requestsSent_ = 0;
    head_.Clear();
    detail_.front() = '\0';
    const CURLcode code = curl_easy_perform(handle_.get());
    answer_ = nullptr;

    long opened = 0;
    curl_easy_getinfo(handle_.get(), CURLINFO_NUM_CONNECTS, &opened);
    counters.connections += static_cast<unsigned long long>(std::max(opened, 0L));
    answer.status = Status();
    if (head_.IsEncoded()) {  // of a refusal: its text cannot be read
        answer.body.Clear();
    }
    // What they point at ends with this call.
    Set(CURLOPT_POSTFIELDS, "");
    Set(CURLOPT_HTTPHEADER, static_cast<curl_slist*>(nullptr));
    return Judge(code);
}

void HttpConnection::SetRequest(const TransportRequest& request)
{
    Set(CURLOPT_URL, (base_ + request.line.target).c_str());
    if (request.IsGet() && request.body.empty()) {
        Set(CURLOPT_HTTPGET, 1L);
    } else {
        Set(CURLOPT_POST, 1L);
        Set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
        Set(CURLOPT_POSTFIELDS, request.body.empty() ? "" : request.body.data());
    }
    Set(CURLOPT_CUSTOMREQUEST, request.line.method.c_str());
}

unsigned HttpConnection::Judge(CURLcode code)
{
    if (code == CURLE_OK || isComplete_) {
        return NET_ORB_NOERROR;
    }
    if (stopped_ != kNotStopped) {
        if (whyStopped_ != nullptr) {
            SetFailureDetail(whyStopped_);
        }
        return stopped_;
    }
    const HttpFault fault = JudgeTransfer(handle_.get(), code, detail_.data(), requestsSent_ > 0);
    SetFailureDetail(fault.detail);
    return fault.error;
}

int HttpConnection::Status() const
{
    long status = 0;
    curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
    return static_cast<int>(status);
}

bool HttpConnection::TakeBody(const char* bytes, std::size_t count)
{
    answer_->status = Status();
    curl_off_t size = -1;
    curl_easy_getinfo(handle_.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &size);
    answer_->announcedSize = static_cast<std::uint64_t>(std::max<curl_off_t>(size, 0));
    if (answer_->IsSuccess() && answer_->announcedSize > answer_->limit) {
        stopped_ = NET_ORB_ANSWER_TOO_LARGE;
        return false;
    }
    switch (answer_->Take(bytes, count)) {
        case TransportAnswer::Taken::Whole:
            return true;
        case TransportAnswer::Taken::AsRefusal:
            isComplete_ = true;
            return false;
        case TransportAnswer::Taken::TooLarge:
            stopped_ = NET_ORB_ANSWER_TOO_LARGE;
            return false;
    }
    return false;
}

std::size_t HttpConnection::OnBody(const char* bytes, std::size_t /*one*/, std::size_t count,
                                   void* self)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    try {
        return connection.TakeBody(bytes, count) ? count : CURL_WRITEFUNC_ERROR;
    } catch (const std::bad_alloc&) {
        connection.stopped_ = NET_ORB_ALLOC_RESOURCE_ERROR;
        return CURL_WRITEFUNC_ERROR;
    }
}

bool HttpConnection::TakeHeader(std::string_view line)
{
    if (AnswerHead::IsFinalStatus(line)) {
        ++counters.exchanges;
        unanswered_ = false;
    }
    if (head_.Take(line)) {
        return true;
    }
    stopped_ = NET_ORB_NETWORK_ERRORDATA;
    whyStopped_ = head_.Fault().c_str();
    return false;
}

std::size_t HttpConnection::OnHeader(const char* bytes, std::size_t /*one*/, std::size_t count,
                                     void* self)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    try {
        return connection.TakeHeader({bytes, count}) ? count : CURL_WRITEFUNC_ERROR;
    } catch (const std::bad_alloc&) {
        connection.stopped_ = NET_ORB_ALLOC_RESOURCE_ERROR;
        return CURL_WRITEFUNC_ERROR;
    }
}

int HttpConnection::OnProgress(void* self, curl_off_t total, curl_off_t now, curl_off_t /*upTotal*/,
                               curl_off_t /*upNow*/)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    if (connection.cancelled_) {
        connection.stopped_ = NET_ORB_CANCELLED;
        return 1;
    }
    if (!ReportReceived(static_cast<unsigned long long>(now),
                        static_cast<unsigned long long>(total))) {
        connection.stopped_ = NET_ORB_CALLBACK_FAILED;
        return 1;
    }
    return 0;
}

/// Before the request is sent, each time.
int HttpConnection::OnRequest(void* self, char* /*peer*/, char* /*local*/, int /*peerPort*/,
                              int /*localPort*/)
{
    auto& connection = *static_cast<HttpConnection*>(self);
    if (connection.unanswered_ && !connection.repeatable_) {
        // The kept connection broke during a change. Whether the device carried it out is unknown,
        // and libcurl would send it again.
        connection.stopped_ = NET_ORB_NETWORK_RECV_ERROR;
        connection.whyStopped_ = "the connection broke before an answer came";
    } else if (connection.requestsSent_ >= limits::kSends) {
        // A device that calls every nonce stale would be asked forever.
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
