// The server's side of HTTP digest authentication, with SHA-256 and MD5.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace Device
{

/// Challenges clients and checks their answers. Each challenge has a random, signed nonce, so
/// unanswered challenges take no memory. Each request counter is accepted once per nonce. Any
/// thread may use it.
class DigestAuthentication
{
public:
    enum class Verdict
    {
        Good,
        Stale,  ///< the password is right, but the nonce is too old or the counter was used
        Bad,
    };

    /// The password of a user, or null.
    using PasswordOf = std::function<const std::string*(std::string_view user)>;

    DigestAuthentication(std::string realm, std::chrono::milliseconds nonceLifetime);

    /// The WWW-Authenticate headers of one refusal, best algorithm first.
    std::vector<std::string> Challenges(bool stale);

    /// Checks an Authorization header against the request it came with; `uri` is the target exactly
    /// as in the request line.
    Verdict Check(std::string_view authorization, std::string_view method, std::string_view uri,
                  const PasswordOf& passwordOf);

private:
    using Clock = std::chrono::steady_clock;

    struct Use
    {
        std::uint32_t highest = 0;
        std::uint64_t seen = 0;  ///< bit n: the counter `highest - n` was used
    };

    [[nodiscard]] std::string MakeNonce() const;
    [[nodiscard]] std::string Sign(std::string_view payload) const;
    bool TakeNumber(const std::string& nonce, std::uint32_t number);

    const std::string realm_;
    const std::chrono::milliseconds lifetime_;
    const Clock::time_point start_ = Clock::now();
    std::array<unsigned char, 32> key_{};

    std::mutex mutex_;
    std::map<std::string, Use, std::less<>> used_;  ///< by nonce, which begins with its age
    std::string forgotten_;                         ///< this nonce and older ones count as too old
};

}  // namespace Device
