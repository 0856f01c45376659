// Reaching a device: address, password, session.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Connection.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "PelNetSDK/Login.h"
#include "Tool/Failure.h"
#include "Tool/session/AnswerTap.h"
#include "Tool/session/SdkFailure.h"
#include "Tool/terminal/Password.h"
#include "Tool/terminal/Progress.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

constexpr const char* kForms = "write sim:PROFILE, http://HOST[:PORT] or https://HOST[:PORT]";

[[noreturn]] void Refuse(const std::string& why)
{
    throw Failure(why, kUsage);
}

std::string DecodePercent(std::string_view text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const char* const digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            out += static_cast<char>(byte);
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

void CheckPort(std::string_view port)
{
    unsigned int number = 0;
    const auto result = std::from_chars(port.data(), port.data() + port.size(), number);
    if (result.ec != std::errc() || result.ptr != port.data() + port.size() || number == 0 ||
        number > 65535) {
        Refuse("\"" + std::string(port) + "\" is not a port: ports are numbers from 1 to 65535");
    }
}

/// "host", "host:port", "[v6]", "[v6]:port".
void CheckHost(std::string_view host)
{
    std::string_view rest;
    if (host.starts_with('[')) {
        const std::size_t end = host.find(']');
        if (end == std::string_view::npos || end == 1) {
            Refuse("write an IPv6 address in brackets: https://[::1]:8443");
        }
        rest = host.substr(end + 1);
    } else {
        if (std::ranges::count(host, ':') > 1) {
            Refuse("write an IPv6 address in brackets: https://[" + std::string(host) + "]");
        }
        rest = host.substr(std::min(host.find(':'), host.size()));
        host.remove_suffix(rest.size());
    }
    if (host.empty()) {
        Refuse(std::string("the address names no host: ") + kForms);
    }
    if (!rest.empty()) {
        if (rest.front() != ':') {
            Refuse("only a port may follow the brackets: https://[::1]:8443");
        }
        CheckPort(rest.substr(1));
    }
}

Address ParseNetworkAddress(std::string_view scheme, std::string_view rest)
{
    Address address;
    const std::size_t authority = std::min(rest.find_first_of("/?#"), rest.size());
    if (const std::size_t at = rest.substr(0, authority).rfind('@'); at != std::string_view::npos) {
        const std::string_view user = rest.substr(0, at);
        if (user.find(':') != std::string_view::npos) {
            Refuse(
                "a password in the address can be read in the list of processes and in the "
                "shell's history: leave it out, and give it in CAPSET_PASSWORD or at the prompt");
        }
        address.user = DecodePercent(user);
        rest.remove_prefix(at + 1);
    }
    std::string_view host = rest.substr(0, rest.find_first_of("/?#"));
    const std::string_view path = rest.substr(host.size());
    if (!path.empty() && path != "/") {
        Refuse(
            "the address of a device ends after host and port; to send a request of your own, "
            "use \"capset call\"");
    }
    CheckHost(host);
    address.address = std::string(scheme) + std::string(host);
    return address;
}

const char* OrNull(const std::string& text)
{
    return text.empty() ? nullptr : text.c_str();
}

std::string LoginFailure(const Address& address, const std::string& user)
{
    const SdkFailure failure = LastFailure(NET_ORB_GetLastError());
    const bool anonymous = failure.error == NET_ORB_PASSWORD_ERROR && user.empty();
    return "cannot log in to " + address.address + ": " + Told(failure) +
           (anonymous ? "; name a user with --user" : Hint(failure));
}

}  // namespace

Address ParseAddress(const std::string& text)
{
    if (text.starts_with("sim:") && text.size() > 4) {
        return {text, {}};
    }
    for (const std::string_view scheme : {"http://", "https://"}) {
        if (SameIgnoringCase(std::string_view(text).substr(0, scheme.size()), scheme)) {
            return ParseNetworkAddress(scheme, std::string_view(text).substr(scheme.size()));
        }
    }
    // A text with "@" may contain a password, which is not repeated.
    if (text.find('@') != std::string::npos) {
        Refuse(std::string("this is not the address of a device: ") + kForms);
    }
    const bool isName = !text.empty() && text.find_first_of("/ ") == std::string::npos;
    Refuse("\"" + text + "\" is not the address of a device: " +
           (isName ? "did you mean http://" + text + " or sim:" + text + "?" : kForms));
}

unsigned int Milliseconds(std::chrono::duration<double> time)
{
    return static_cast<unsigned int>(std::lround(time.count() * 1000));
}

Session::Session(const ConnectionOptions& options)
{
    const Address address = ParseAddress(options.device);
    device_ = address.address;
    if (!options.user.empty() && !address.user.empty() && options.user != address.user) {
        Refuse("the address and --user name different users");
    }
    const std::string& user = options.user.empty() ? address.user : options.user;
    std::optional<Password> password;
    if (!user.empty()) {
        password.emplace(user, device_);
    }
    tagNET_ORB_LOGIN_INFO info{};
    info.address = device_.c_str();
    info.userName = OrNull(user);
    info.password = password ? password->Text() : nullptr;
    info.certificateFile = OrNull(options.ca);
    info.connectTimeout = Milliseconds(options.connectTimeout);
    info.receiveTimeout = Milliseconds(options.timeout);
    info.trustAnyCertificate = options.insecure ? 1 : 0;
    {
        const Progress progress("logging in to " + device_);
        userID_ = NET_ORB_Login(&info);
    }
    if (userID_ < 0) {
        throw Failure(LoginFailure(address, user));
    }
    NameDeviceInLog(device_);
}

Session::~Session()
{
    NET_ORB_Logout(userID_);
}

}  // namespace Tool
