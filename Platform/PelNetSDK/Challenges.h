// How a server that answers 401 lets a client log in.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace PelNet
{

/// The login methods in the WWW-Authenticate headers of one answer. Scheme names, keys and
/// algorithms are case-insensitive.
class Challenges
{
public:
    /// Adds the value of one header, which may hold several challenges. Throws std::bad_alloc.
    void Add(std::string_view value);
    void Clear() noexcept { challenges_.clear(); }

    [[nodiscard]] bool Offers(std::string_view scheme) const;
    /// Why libcurl cannot answer the first digest challenge (it ignores further ones); empty if it
    /// can. There must be one.
    [[nodiscard]] std::string DigestFault() const;
    /// The schemes, as a person would list them: "Basic", "NTLM and Negotiate"; empty without any.
    [[nodiscard]] std::string Names() const;

private:
    struct Challenge
    {
        std::string scheme;
        std::string algorithm = {};
        std::string qop = {};
        bool hasNonce = false;
    };

    [[nodiscard]] const Challenge* Find(std::string_view scheme) const;

    std::vector<Challenge> challenges_;
};

}  // namespace PelNet
