// HTTP digest authentication as a server does it, with SHA-256 and MD5.
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

/// Challenges clients and checks their answers. A nonce is random for each challenge and signed, so
/// challenges that nobody answers cost no memory; each number a client counts with a nonce is taken
/// once. Any thread may use it.
class DigestAuthentication
{
public:
    enum class Verdict
    {
        Good,
        Stale,  ///< the password is right, but the nonce is too old or its number was used
        Bad,
    };

    /// The password of a user, or null.
    using PasswordOf = std::function<const std::string*(std::string_view user)>;

    DigestAuthentication(std::string realm, std::chrono::milliseconds nonceLifetime);

    /// Values of the WWW-Authenticate headers of one refusal, best algorithm first.
    std::vector<std::string> Challenges(bool stale);

    /// Checks the value of an Authorization header against the request it came with; `uri` as it
    /// stood in the request line.
    Verdict Check(std::string_view authorization, std::string_view method, std::string_view uri,
                  const PasswordOf& passwordOf);

private:
    using Clock = std::chrono::steady_clock;

    struct Use
    {
        std::uint32_t highest = 0;
        std::uint64_t seen = 0;  ///< bit n: the number `highest - n` was used
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
    std::string forgotten_;                         ///< nonces up to this one count as too old
};

}  // namespace Device
