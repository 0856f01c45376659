// The server's life: starting, connections, stopping.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/HttpServer.h"

#include <utility>

#include "Device/http/Certificate.h"

namespace Device
{
namespace
{

// Connections that were replaced are still being closed when the new ones arrive.
constexpr unsigned kSpareConnections = 64;

void Silent(void*, const char*, va_list) {}

}  // namespace

HttpServer::HttpServer(std::shared_ptr<DeviceModel> model, ServerOptions options)
    : model_(std::move(model)),
      options_(std::move(options)),
      digest_(options_.realm, options_.nonceLifetime),
      guard_({options_.maxConnections, options_.headerTimeout, options_.bodyTimeout,
              options_.idleTimeout})
{
}

bool HttpServer::Listen(std::string& error)
{
    ListenSocket socket;
    if (!SetFaults(options_.faults, error) || !PrepareCertificate(error) ||
        !socket.Open(options_.address, options_.port, error)) {
        return false;
    }
    port_ = socket.Port();
    if (!StartDaemon(socket.Socket())) {
        error = options_.tls ? "cannot start TLS: the certificate or the key is not usable"
                             : "cannot start the server: not enough memory or threads";
        return false;
    }
    socket.Release();
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
        error = "a certificate needs its key, and a key its certificate";
        return false;
    }
    if (!options_.certificatePem.empty()) {
        return CheckCertificate({options_.certificatePem, options_.keyPem}, error);
    }
    Certificate made = MakeSelfSignedCertificate(options_.address);
    options_.certificatePem = std::move(made.certificatePem);
    options_.keyPem = std::move(made.keyPem);
    if (options_.certificatePem.empty()) {
        error = "cannot make a certificate";
        return false;
    }
    return true;
}

bool HttpServer::StartDaemon(int socket)
{
    // The logger comes first, or the library prints messages about the options after it.
    std::vector<MHD_OptionItem> options = {
        {MHD_OPTION_LISTEN_SOCKET, socket, nullptr},
        {MHD_OPTION_CONNECTION_LIMIT,
         static_cast<intptr_t>(options_.maxConnections + kSpareConnections), nullptr},
        {MHD_OPTION_CONNECTION_TIMEOUT, static_cast<intptr_t>(options_.idleTimeout.count()),
         nullptr},
        {MHD_OPTION_NOTIFY_CONNECTION, reinterpret_cast<intptr_t>(&Notify), this},
        {MHD_OPTION_URI_LOG_CALLBACK, reinterpret_cast<intptr_t>(&Begin), this},
        {MHD_OPTION_NOTIFY_COMPLETED, reinterpret_cast<intptr_t>(&End), this},
    };
    unsigned int flags =
        MHD_USE_THREAD_PER_CONNECTION | MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL;
    std::string versions = "NORMAL:-VERS-ALL:+VERS-TLS1.3:+VERS-TLS1.2";
    if (options_.tls) {
        flags |= MHD_USE_TLS;
        options.push_back({MHD_OPTION_HTTPS_MEM_CERT, 0, options_.certificatePem.data()});
        options.push_back({MHD_OPTION_HTTPS_MEM_KEY, 0, options_.keyPem.data()});
        options.push_back({MHD_OPTION_HTTPS_PRIORITIES, 0, versions.data()});
    }
    options.push_back({MHD_OPTION_END, 0, nullptr});
    daemon_ = MHD_start_daemon(flags, 0, nullptr, nullptr, &Take, this, MHD_OPTION_EXTERNAL_LOGGER,
                               &Silent, nullptr, MHD_OPTION_ARRAY, options.data(), MHD_OPTION_END);
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

}  // namespace Device
