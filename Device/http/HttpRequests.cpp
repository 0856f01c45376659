// Handling a request: headers, body, answer.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/HttpServer.h"

#include <strings.h>
#include <sys/socket.h>

#include <charconv>
#include <cstring>
#include <new>

#include "Device/document/Text.h"
#include "Device/message/StatusDocument.h"

namespace Device
{
namespace
{

using ResponsePtr = std::unique_ptr<MHD_Response, decltype(&MHD_destroy_response)>;

ssize_t ReadAnswer(void* data, std::uint64_t position, char* buffer, size_t size)
{
    const std::int64_t count = static_cast<AnswerBody*>(data)->Read(position, buffer, size);
    return count < 0 ? static_cast<ssize_t>(MHD_CONTENT_READER_END_WITH_ERROR)
                     : static_cast<ssize_t>(count);
}

int SocketOf(MHD_Connection* connection)
{
    const MHD_ConnectionInfo* info =
        MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
    return info == nullptr ? -1 : info->connect_fd;
}

ConnectionGuard::Connection* GuardedOf(MHD_Connection* connection)
{
    const MHD_ConnectionInfo* info =
        MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT);
    return static_cast<ConnectionGuard::Connection*>(info->socket_context);
}

std::string_view HeaderOf(MHD_Connection* connection, const char* name)
{
    const char* value = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, name);
    return value == nullptr ? std::string_view() : value;
}

// The client sends the body only after "100 Continue".
bool WaitsForContinue(MHD_Connection* connection)
{
    return strcasecmp(std::string(HeaderOf(connection, MHD_HTTP_HEADER_EXPECT)).c_str(),
                      "100-continue") == 0;
}

std::uint64_t AnnouncedBody(MHD_Connection* connection)
{
    const std::string_view text = HeaderOf(connection, MHD_HTTP_HEADER_CONTENT_LENGTH);
    std::uint64_t size = 0;
    std::from_chars(text.data(), text.data() + text.size(), size);
    return size;
}

// Resets the connection, so that the client sees an error instead of an orderly end.
MHD_Result ResetConnection(MHD_Connection* connection)
{
    if (const int socket = SocketOf(connection); socket >= 0) {
        const linger atOnce{1, 0};
        setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        // Dissolving the association sends the reset now. Otherwise the library's orderly shutdown
        // would come first.
        sockaddr nowhere{};
        nowhere.sa_family = AF_UNSPEC;
        static_cast<void>(connect(socket, &nowhere, sizeof nowhere));
    }
    return MHD_NO;
}

// HEAD is GET without the body.
std::string AllowHeader(std::set<std::string> allowed)
{
    if (allowed.contains("GET")) {
        allowed.insert("HEAD");
    }
    std::string text;
    for (const std::string& method : allowed) {
        text += (text.empty() ? "" : ", ") + method;
    }
    return text;
}

}  // namespace

void HttpServer::Notify(void* self, MHD_Connection* connection, void** context,
                        MHD_ConnectionNotificationCode code)
{
    ConnectionGuard& guard = static_cast<HttpServer*>(self)->guard_;
    if (code == MHD_CONNECTION_NOTIFY_STARTED) {
        *context = guard.Opened(SocketOf(connection));
    } else {
        guard.Closed(static_cast<ConnectionGuard::Connection*>(*context));
    }
}

void* HttpServer::Begin(void*, const char* uri, MHD_Connection*)
{
    return new (std::nothrow) Exchange(uri);
}

MHD_Result HttpServer::Take(void* self, MHD_Connection* connection, const char*, const char* method,
                            const char*, const char* data, size_t* size, void** exchangePointer)
{
    auto& server = *static_cast<HttpServer*>(self);
    auto* exchange = static_cast<Exchange*>(*exchangePointer);
    if (exchange == nullptr) {
        return MHD_NO;
    }
    // Exceptions must not reach the C library. The connection is closed instead.
    try {
        if (!exchange->begun) {
            exchange->begun = true;
            exchange->method = method;
            return server.TakeHeaders(connection, *exchange);
        }
        return *size > 0 ? server.TakeBody(*exchange, data, size)
                         : server.Answer(connection, *exchange);
    } catch (const std::exception&) {
        return MHD_NO;
    }
}

MHD_Result HttpServer::TakeHeaders(MHD_Connection* connection, Exchange& exchange)
{
    guard_.StartBody(GuardedOf(connection));
    Authenticate(connection, exchange);
    if (!WaitsForContinue(connection)) {
        return MHD_YES;
    }
    exchange.tooLarge = AnnouncedBody(connection) > options_.maxBody;
    return exchange.authorized && !exchange.tooLarge ? MHD_YES : Answer(connection, exchange);
}

void HttpServer::Authenticate(MHD_Connection* connection, Exchange& exchange)
{
    if (!options_.authentication) {
        exchange.authorized = true;
        return;
    }
    const auto verdict = digest_.Check(
        HeaderOf(connection, MHD_HTTP_HEADER_AUTHORIZATION), exchange.method, exchange.uri,
        [this](std::string_view user) { return model_->PasswordOf(user); });
    exchange.authorized = verdict == DigestAuthentication::Verdict::Good;
    exchange.stale = verdict == DigestAuthentication::Verdict::Stale;
}

MHD_Result HttpServer::TakeBody(Exchange& exchange, const char* data, size_t* size) const
{
    exchange.received += *size;
    exchange.tooLarge = exchange.received > options_.maxBody;
    if (exchange.received > kMostDropped) {
        return MHD_NO;
    }
    if (exchange.tooLarge || !exchange.authorized) {
        exchange.body = {};
    } else {
        exchange.body.append(data, *size);
    }
    *size = 0;
    return MHD_YES;
}

MHD_Result HttpServer::Answer(MHD_Connection* connection, Exchange& exchange)
{
    guard_.StartAnswer(GuardedOf(connection));
    FaultPlan plan = faults_.Plan(DecodeTarget(exchange.uri), exchange.authorized);
    if (plan.delay.count() > 0) {
        plan.Strike(FaultKind::Delay);
        if (!stop_.Wait(plan.delay)) {
            return MHD_NO;
        }
    }
    if (plan.reset) {
        plan.Strike(FaultKind::Reset);
        return ResetConnection(connection);
    }
    Response response = Decide(plan, exchange);
    return Send(connection, exchange, std::move(response), std::move(plan));
}

Response HttpServer::Decide(FaultPlan& plan, Exchange& exchange)
{
    if (plan.unauthorized || plan.staleNonce || !exchange.authorized) {
        plan.Strike(plan.unauthorized ? FaultKind::Unauthorized : FaultKind::StaleNonce);
        exchange.stale = exchange.stale || (plan.staleNonce && !plan.unauthorized);
        return MakeStatus(Outcome::kUnauthorized, exchange.uri);
    }
    if (exchange.tooLarge) {
        return MakeStatus(Outcome::kTooLarge, exchange.uri);
    }
    if (plan.serverError) {
        plan.Strike(FaultKind::ServerError);
        return {*plan.serverError, "text/html",
                "<html><body><h1>" + std::to_string(*plan.serverError) +
                    " Server Error</h1></body></html>\n"};
    }
    if (plan.refusal) {
        plan.Strike(FaultKind::Refuse);
        return MakeStatus(*FindOutcome(*plan.refusal), exchange.uri);
    }
    return AskModel(exchange);
}

Response HttpServer::AskModel(Exchange& exchange)
{
    const std::string method = exchange.method == "HEAD" ? "GET" : exchange.method;
    std::unique_lock lock(largeBodyMutex_, std::defer_lock);
    if (exchange.body.size() > kLargeBody) {
        lock.lock();
    }
    return model_->Handle({method, DecodeTarget(exchange.uri), std::move(exchange.body)});
}

MHD_Result HttpServer::Send(MHD_Connection* connection, Exchange& exchange, Response response,
                            FaultPlan plan)
{
    constexpr size_t kBlock = 32768;
    exchange.body = {};
    exchange.status = response.status;
    const std::string contentType = response.contentType;
    const std::string allow = AllowHeader(response.allowed);
    exchange.answer = std::make_unique<AnswerBody>(std::move(response), std::move(plan), stop_,
                                                   SocketOf(connection));
    const ResponsePtr answer(
        MHD_create_response_from_callback(exchange.answer->AnnouncedSize(), kBlock, &ReadAnswer,
                                          exchange.answer.get(), nullptr),
        &MHD_destroy_response);
    if (!answer) {
        return MHD_NO;
    }
    if (!contentType.empty()) {
        MHD_add_response_header(answer.get(), MHD_HTTP_HEADER_CONTENT_TYPE, contentType.c_str());
    }
    if (!allow.empty()) {
        MHD_add_response_header(answer.get(), MHD_HTTP_HEADER_ALLOW, allow.c_str());
    }
    if (exchange.status == 401) {
        for (const std::string& challenge : digest_.Challenges(exchange.stale)) {
            MHD_add_response_header(answer.get(), MHD_HTTP_HEADER_WWW_AUTHENTICATE,
                                    challenge.c_str());
        }
    }
    return MHD_queue_response(connection, static_cast<unsigned int>(exchange.status), answer.get());
}

void HttpServer::End(void* self, MHD_Connection* connection, void** exchangePointer,
                     MHD_RequestTerminationCode)
{
    const std::unique_ptr<Exchange> exchange(static_cast<Exchange*>(*exchangePointer));
    *exchangePointer = nullptr;
    auto& server = *static_cast<HttpServer*>(self);
    server.guard_.EndAnswer(GuardedOf(connection));
    if (!exchange || !server.options_.log) {
        return;
    }
    const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - exchange->start);
    const std::lock_guard lock(server.logMutex_);
    server.options_.log({exchange->method, exchange->uri, exchange->status,
                         exchange->answer ? exchange->answer->Sent() : 0, duration});
}

}  // namespace Device
