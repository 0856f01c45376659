// Challenges, and the checking of their answers.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/DigestAuthentication.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <charconv>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <utility>

#include "Device/Limits.h"

namespace Device
{
namespace
{

constexpr size_t kTimeDigits = 16;
constexpr size_t kRandomBytes = 16;
constexpr size_t kPayloadDigits = kTimeDigits + 2 * kRandomBytes;

using Fields = std::map<std::string, std::string, std::less<>>;  // names in lower case

std::string Hex(const unsigned char* bytes, size_t count)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string out;
    for (size_t i = 0; i < count; ++i) {
        out += kDigits[bytes[i] >> 4];
        out += kDigits[bytes[i] & 15];
    }
    return out;
}

std::string Hash(const EVP_MD* algorithm, const std::string& text)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (EVP_Digest(text.data(), text.size(), digest, &size, algorithm, nullptr) != 1) {
        throw std::runtime_error("this OpenSSL refuses the hash");
    }
    return Hex(digest, size);
}

bool SameText(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && CRYPTO_memcmp(a.data(), b.data(), a.size()) == 0;
}

std::string TimeText(std::chrono::milliseconds time)
{
    char digits[kTimeDigits + 1];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(time.count()));
    return digits;
}

std::string LowerCase(std::string_view text)
{
    std::string out(text);
    for (char& c : out) {
        c = static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    }
    return out;
}

// Takes a quoted string or a word from the front.
std::string TakeValue(std::string_view& rest)
{
    std::string value;
    if (!rest.starts_with('"')) {
        const size_t end = std::min(rest.find_first_of(", \t"), rest.size());
        value = rest.substr(0, end);
        rest.remove_prefix(end);
        return value;
    }
    size_t at = 1;
    for (; at < rest.size() && rest[at] != '"'; ++at) {
        at += rest[at] == '\\' && at + 1 < rest.size() ? 1 : 0;
        value += rest[at];
    }
    rest.remove_prefix(std::min(at + 1, rest.size()));
    return value;
}

// The fields of a Digest header; none if it has another scheme or repeats a field.
Fields ParseHeader(std::string_view header)
{
    constexpr std::string_view kScheme = "digest ";
    Fields fields;
    if (LowerCase(header.substr(0, kScheme.size())) != kScheme) {
        return fields;
    }
    header.remove_prefix(kScheme.size());
    while (true) {
        header.remove_prefix(std::min(header.find_first_not_of(", \t"), header.size()));
        const size_t equals = header.find('=');
        if (equals == std::string_view::npos) {
            return fields;
        }
        std::string name = LowerCase(header.substr(0, equals));
        header.remove_prefix(equals + 1);
        if (!fields.emplace(std::move(name), TakeValue(header)).second) {
            return {};
        }
    }
}

const std::string& Get(const Fields& fields, std::string_view name)
{
    static const std::string none;
    const auto found = fields.find(name);
    return found == fields.end() ? none : found->second;
}

const EVP_MD* Algorithm(const std::string& name)
{
    const std::string lower = LowerCase(name);
    return lower == "sha-256"                ? EVP_sha256()
           : lower == "md5" || lower.empty() ? EVP_md5()
                                             : nullptr;
}

std::optional<std::uint32_t> ReadCount(const std::string& text)
{
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, 16);
    if (text.size() != 8 || error != std::errc() || stop != end || number == 0) {
        return std::nullopt;
    }
    return number;
}

}  // namespace

DigestAuthentication::DigestAuthentication(std::string realm,
                                           std::chrono::milliseconds nonceLifetime)
    : realm_(std::move(realm)), lifetime_(nonceLifetime)
{
    if (RAND_bytes(key_.data(), static_cast<int>(key_.size())) != 1) {
        throw std::runtime_error("there is no source of random numbers");
    }
}

std::vector<std::string> DigestAuthentication::Challenges(bool stale)
{
    const std::string tail = R"(", qop="auth", nonce=")" + MakeNonce() + "\", algorithm=";
    const std::string end = stale ? ", stale=true" : "";
    return {"Digest realm=\"" + realm_ + tail + "SHA-256" + end,
            "Digest realm=\"" + realm_ + tail + "MD5" + end};
}

DigestAuthentication::Verdict DigestAuthentication::Check(std::string_view authorization,
                                                          std::string_view method,
                                                          std::string_view uri,
                                                          const PasswordOf& passwordOf)
{
    const Fields fields = ParseHeader(authorization);
    const EVP_MD* algorithm = Algorithm(Get(fields, "algorithm"));
    const std::optional<std::uint32_t> count = ReadCount(Get(fields, "nc"));
    const std::string& nonce = Get(fields, "nonce");
    const std::string& user = Get(fields, "username");
    if (algorithm == nullptr || !count || Get(fields, "realm") != realm_ ||
        Get(fields, "uri") != uri || Get(fields, "qop") != "auth" ||
        Get(fields, "cnonce").empty()) {
        return Verdict::Bad;
    }
    const std::string* password = passwordOf(user);
    // Unknown users take as long as wrong passwords.
    const std::string identity = Hash(
        algorithm, user + ":" + realm_ + ":" + (password != nullptr ? *password : std::string()));
    const std::string request = Hash(algorithm, std::string(method) + ":" + std::string(uri));
    const std::string wanted =
        Hash(algorithm, identity + ":" + nonce + ":" + Get(fields, "nc") + ":" +
                            Get(fields, "cnonce") + ":auth:" + request);
    if (!SameText(wanted, Get(fields, "response")) || password == nullptr) {
        return Verdict::Bad;
    }
    return TakeNumber(nonce, *count) ? Verdict::Good : Verdict::Stale;
}

std::string DigestAuthentication::MakeNonce() const
{
    unsigned char random[kRandomBytes];
    if (RAND_bytes(random, sizeof random) != 1) {
        throw std::runtime_error("there is no source of random numbers");
    }
    const auto age = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start_);
    const std::string payload = TimeText(age) + Hex(random, sizeof random);
    return payload + Sign(payload);
}

std::string DigestAuthentication::Sign(std::string_view payload) const
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (HMAC(EVP_sha256(), key_.data(), static_cast<int>(key_.size()),
             reinterpret_cast<const unsigned char*>(payload.data()), payload.size(), digest,
             &size) == nullptr) {
        throw std::runtime_error("this OpenSSL refuses the hash");
    }
    return Hex(digest, 16);
}

bool DigestAuthentication::TakeNumber(const std::string& nonce, std::uint32_t number)
{
    const std::string_view payload = std::string_view(nonce).substr(0, kPayloadDigits);
    if (nonce.size() <= kPayloadDigits ||
        !SameText(std::string_view(nonce).substr(kPayloadDigits), Sign(payload))) {
        return false;
    }
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start_);
    // The text sorts like the time.
    const std::string oldest = TimeText(std::max(now - lifetime_, std::chrono::milliseconds(0)));
    const std::lock_guard lock(mutex_);
    used_.erase(used_.begin(), used_.lower_bound(oldest));
    if (nonce < oldest || nonce <= forgotten_) {
        return false;
    }
    Use& use = used_[nonce];
    bool fresh = true;
    if (number > use.highest) {
        const std::uint32_t ahead = number - use.highest;
        use.seen = (ahead < 64 ? use.seen << ahead : 0) | 1;
        use.highest = number;
    } else {
        const std::uint32_t behind = use.highest - number;
        fresh = behind < 64 && (use.seen >> behind & 1) == 0;
        use.seen |= behind < 64 ? std::uint64_t{1} << behind : 0;
    }
    if (used_.size() > kMostUsedNonces) {
        forgotten_ = used_.begin()->first;
        used_.erase(used_.begin());
    }
    return fresh;
}

}  // namespace Device
