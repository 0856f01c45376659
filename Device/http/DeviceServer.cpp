// The server: libmicrohttpd with a thread for each connection.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/DeviceServer.h"

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <mutex>
#include <new>
#include <utility>

#include "Device/http/Certificate.h"
#include "Device/http/DigestAuthentication.h"
#include "Device/http/ServerExchange.h"
#include "Device/message/StatusDocument.h"

namespace Device
{
namespace
{

using ResponsePtr = std::unique_ptr<MHD_Response, decltype(&MHD_destroy_response)>;

// An address to bind to; its length is 0 when the text is not numeric.
struct Address
{
    Address(const std::string& text, std::uint16_t port)
    {
        auto* v4 = reinterpret_cast<sockaddr_in*>(&storage);
        auto* v6 = reinterpret_cast<sockaddr_in6*>(&storage);
        if (inet_pton(AF_INET, text.c_str(), &v4->sin_addr) == 1) {
            v4->sin_family = AF_INET;
            v4->sin_port = htons(port);
            length = sizeof *v4;
        } else if (inet_pton(AF_INET6, text.c_str(), &v6->sin6_addr) == 1) {
            v6->sin6_family = AF_INET6;
            v6->sin6_port = htons(port);
            length = sizeof *v6;
        }
    }

    [[nodiscard]] bool IsV6() const { return storage.ss_family == AF_INET6; }

    sockaddr_storage storage{};
    socklen_t length = 0;
};

void Silent(void*, const char*, va_list) {}

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

// Resets the connection: the client sees an error instead of an orderly end.
MHD_Result ResetConnection(MHD_Connection* connection)
{
    if (const int socket = SocketOf(connection); socket >= 0) {
        const linger atOnce{1, 0};
        setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        // Dissolving the association sends the reset now; the library's own orderly shutdown,
        // which would come first, then finds nothing to shut down.
        sockaddr nowhere{};
        nowhere.sa_family = AF_UNSPEC;
        static_cast<void>(connect(socket, &nowhere, sizeof nowhere));
    }
    return MHD_NO;
}

class HttpServer : public DeviceServer
{
public:
    HttpServer(std::shared_ptr<DeviceModel> model, ServerOptions options)
        : model_(std::move(model)),
          options_(std::move(options)),
          digest_(options_.realm, options_.nonceLifetime)
    {
    }

    ~HttpServer() override { StopDaemon(); }
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    bool Listen(std::string& error);

    [[nodiscard]] std::uint16_t Port() const override { return port_; }
    [[nodiscard]] std::string Url() const override;
    [[nodiscard]] std::string CertificatePem() const override
    {
        return options_.tls ? options_.certificatePem : std::string();
    }

    bool SetFaults(std::vector<Fault> faults, std::string& error) override;
    [[nodiscard]] std::vector<std::uint64_t> FaultCounts() const override
    {
        return faults_.Counts();
    }
    void Stop() override { StopDaemon(); }

private:
    static void* Begin(void*, const char* uri, MHD_Connection*);
    static MHD_Result Take(void* self, MHD_Connection* connection, const char*, const char* method,
                           const char*, const char* data, size_t* size, void** exchange);
    static void End(void* self, MHD_Connection*, void** exchange, MHD_RequestTerminationCode);

    bool PrepareCertificate(std::string& error);
    bool StartDaemon(const Address& address);
    void StopDaemon();
    void Authenticate(MHD_Connection* connection, Exchange& exchange);
    MHD_Result Receive(Exchange& exchange, const char* data, size_t* size) const;
    MHD_Result Answer(MHD_Connection* connection, Exchange& exchange);
    Response Decide(FaultPlan& plan, Exchange& exchange);
    MHD_Result Send(MHD_Connection* connection, Exchange& exchange, Response response,
                    FaultPlan plan);

    const std::shared_ptr<DeviceModel> model_;
    ServerOptions options_;
    DigestAuthentication digest_;
    FaultPlanner faults_;
    StopSignal stop_;
    std::uint16_t port_ = 0;
    std::mutex logMutex_;
    std::mutex stopMutex_;
    MHD_Daemon* daemon_ = nullptr;
};

bool HttpServer::Listen(std::string& error)
{
    const Address address(options_.address, options_.port);
    if (address.length == 0) {
        error = "\"" + options_.address + "\" is no numeric address";
        return false;
    }
    if (!SetFaults(options_.faults, error) || !PrepareCertificate(error)) {
        return false;
    }
    if (!StartDaemon(address)) {
        error = "cannot listen on " + options_.address + " port " + std::to_string(options_.port) +
                (options_.tls ? ", or the certificate and key do not fit" : "");
        return false;
    }
    const MHD_DaemonInfo* info = MHD_get_daemon_info(daemon_, MHD_DAEMON_INFO_BIND_PORT);
    port_ = info != nullptr ? info->port : options_.port;
    return true;
}

bool HttpServer::PrepareCertificate(std::string& error)
{
    if (!options_.tls) {
        return true;
    }
    if (MHD_is_feature_supported(MHD_FEATURE_TLS) != MHD_YES) {
        error = "this libmicrohttpd was built without TLS";
        return false;
    }
    if (options_.certificatePem.empty() != options_.keyPem.empty()) {
        error = "a certificate and its key belong together";
        return false;
    }
    if (options_.certificatePem.empty()) {
        Certificate made = MakeSelfSignedCertificate(options_.address);
        options_.certificatePem = std::move(made.certificatePem);
        options_.keyPem = std::move(made.keyPem);
    }
    if (options_.certificatePem.empty()) {
        error = "no certificate could be made";
        return false;
    }
    return true;
}

bool HttpServer::StartDaemon(const Address& address)
{
    unsigned int flags =
        MHD_USE_THREAD_PER_CONNECTION | MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL;
    if (address.IsV6()) {
        flags |= MHD_USE_IPv6;
    }
    if (options_.tls) {
        flags |= MHD_USE_TLS;
    }
    const std::vector<MHD_OptionItem> tls = {
        {MHD_OPTION_HTTPS_MEM_CERT, 0, options_.certificatePem.data()},
        {MHD_OPTION_HTTPS_MEM_KEY, 0, options_.keyPem.data()},
        {MHD_OPTION_END, 0, nullptr},
    };
    const MHD_OptionItem none[] = {{MHD_OPTION_END, 0, nullptr}};
    // The logger comes first: it must not print about the options after it.
    daemon_ = MHD_start_daemon(
        flags, 0, nullptr, nullptr, &Take, this, MHD_OPTION_EXTERNAL_LOGGER, &Silent, nullptr,
        MHD_OPTION_SOCK_ADDR, reinterpret_cast<const sockaddr*>(&address.storage),
        MHD_OPTION_LISTENING_ADDRESS_REUSE, 0u, MHD_OPTION_CONNECTION_LIMIT,
        options_.maxConnections, MHD_OPTION_CONNECTION_TIMEOUT,
        static_cast<unsigned int>(options_.idleTimeout.count()), MHD_OPTION_URI_LOG_CALLBACK,
        &Begin, this, MHD_OPTION_NOTIFY_COMPLETED, &End, this, MHD_OPTION_ARRAY,
        options_.tls ? tls.data() : none, MHD_OPTION_END);
    return daemon_ != nullptr;
}

void HttpServer::StopDaemon()
{
    stop_.Stop();
    const std::lock_guard lock(stopMutex_);
    if (daemon_ != nullptr) {
        MHD_stop_daemon(std::exchange(daemon_, nullptr));
    }
}

std::string HttpServer::Url() const
{
    const bool v6 = options_.address.find(':') != std::string::npos;
    return std::string(options_.tls ? "https://" : "http://") + (v6 ? "[" : "") + options_.address +
           (v6 ? "]:" : ":") + std::to_string(port_);
}

bool HttpServer::SetFaults(std::vector<Fault> faults, std::string& error)
{
    for (const Fault& fault : faults) {
        if (std::string wrong = CheckFault(fault); !wrong.empty()) {
            error = std::move(wrong);
            return false;
        }
    }
    faults_.Set(std::move(faults));
    return true;
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
    // An exception must not reach the C library; out of memory, the connection is closed.
    try {
        if (!exchange->begun) {
            exchange->begun = true;
            exchange->method = method;
            server.Authenticate(connection, *exchange);
            return MHD_YES;
        }
        return *size > 0 ? server.Receive(*exchange, data, size)
                         : server.Answer(connection, *exchange);
    } catch (const std::exception&) {
        return MHD_NO;
    }
}

void HttpServer::Authenticate(MHD_Connection* connection, Exchange& exchange)
{
    if (!options_.authentication) {
        exchange.authorized = true;
        return;
    }
    const char* header =
        MHD_lookup_connection_value(connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_AUTHORIZATION);
    const auto verdict =
        digest_.Check(header == nullptr ? "" : header, exchange.method, exchange.uri,
                      [this](std::string_view user) { return model_->PasswordOf(user); });
    exchange.authorized = verdict == DigestAuthentication::Verdict::Good;
    exchange.stale = verdict == DigestAuthentication::Verdict::Stale;
}

MHD_Result HttpServer::Receive(Exchange& exchange, const char* data, size_t* size) const
{
    exchange.received += *size;
    exchange.tooLarge = exchange.received > options_.maxBody;
    if (exchange.received > std::uint64_t{2} * options_.maxBody) {
        return MHD_NO;
    }
    // The rest of a refused body is read and dropped: a client that is still sending would not
    // see an answer.
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
    return model_->Handle({exchange.method, DecodeTarget(exchange.uri), exchange.body});
}

MHD_Result HttpServer::Send(MHD_Connection* connection, Exchange& exchange, Response response,
                            FaultPlan plan)
{
    constexpr size_t kBlock = 32768;
    exchange.body = {};
    exchange.status = response.status;
    const std::string contentType = response.contentType;
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
    if (exchange.status == 401) {
        for (const std::string& challenge : digest_.Challenges(exchange.stale)) {
            MHD_add_response_header(answer.get(), MHD_HTTP_HEADER_WWW_AUTHENTICATE,
                                    challenge.c_str());
        }
    }
    return MHD_queue_response(connection, static_cast<unsigned int>(exchange.status), answer.get());
}

void HttpServer::End(void* self, MHD_Connection*, void** exchangePointer,
                     MHD_RequestTerminationCode)
{
    const std::unique_ptr<Exchange> exchange(static_cast<Exchange*>(*exchangePointer));
    *exchangePointer = nullptr;
    auto& server = *static_cast<HttpServer*>(self);
    if (!exchange || !server.options_.log) {
        return;
    }
    const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - exchange->start);
    const std::lock_guard lock(server.logMutex_);
    server.options_.log({exchange->method, exchange->uri, exchange->status,
                         exchange->answer ? exchange->answer->Sent() : 0, duration});
}

}  // namespace

std::unique_ptr<DeviceServer> DeviceServer::Start(std::shared_ptr<DeviceModel> model,
                                                  ServerOptions options, std::string& error)
{
    auto server = std::make_unique<HttpServer>(std::move(model), std::move(options));
    if (!server->Listen(error)) {
        return nullptr;
    }
    return server;
}

}  // namespace Device
