// Reading the challenges of a server.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Challenges.h"

#include <algorithm>
#include <array>

#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Text.h"

namespace PelNet
{

namespace
{

constexpr std::string_view kBlanks = " \t";

/// Takes elements off the front of a header's value.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

    void Skip(std::string_view characters)
    {
        rest_.remove_prefix(std::min(rest_.find_first_not_of(characters), rest_.size()));
    }

    std::string_view Until(std::string_view ends)
    {
        const std::string_view taken = rest_.substr(0, rest_.find_first_of(ends));
        rest_.remove_prefix(taken.size());
        return taken;
    }

    bool Has(char c)
    {
        const bool is = rest_.starts_with(c);
        rest_.remove_prefix(is ? 1 : 0);
        return is;
    }

    /// A token, or a quoted text without its quotes and escapes.
    std::string Value()
    {
        if (!Has('"')) {
            return std::string(Until(" \t,"));
        }
        std::string value;
        while (!AtEnd() && !Has('"')) {
            Has('\\');
            value += rest_.substr(0, 1);
            rest_.remove_prefix(std::min<std::size_t>(1, rest_.size()));
        }
        return value;
    }

private:
    std::string_view rest_;
};

bool IsListed(std::string_view list, std::string_view wanted)
{
    for (Scanner scanner(list); !scanner.AtEnd(); scanner.Skip(" \t,")) {
        if (SameIgnoringCase(scanner.Until(" \t,"), wanted)) {
            return true;
        }
    }
    return false;
}

}  // namespace

void Challenges::Add(std::string_view value)
{
    Scanner scanner(value);
    bool followsScheme = false;
    for (scanner.Skip(kBlanks); !scanner.AtEnd(); scanner.Skip(kBlanks)) {
        if (scanner.Has(',')) {
            followsScheme = false;
            continue;
        }
        const std::string name(scanner.Until(" \t,="));
        scanner.Skip(kBlanks);
        if (!scanner.Has('=')) {
            // "NTLM TlRMTVNT": what follows a scheme is its data.
            if (!followsScheme) {
                challenges_.push_back({.scheme = name});
            }
            followsScheme = !followsScheme;
            continue;
        }
        followsScheme = false;
        scanner.Skip(kBlanks);
        const std::string text = scanner.Value();
        if (challenges_.empty()) {
            continue;
        }
        Challenge& challenge = challenges_.back();
        if (SameIgnoringCase(name, "algorithm")) {
            challenge.algorithm = text;
        } else if (SameIgnoringCase(name, "qop")) {
            challenge.qop = text;
        } else if (SameIgnoringCase(name, "nonce")) {
            challenge.hasNonce = true;
        }
    }
}

const Challenges::Challenge* Challenges::Find(std::string_view scheme) const
{
    const auto found = std::ranges::find_if(challenges_, [scheme](const Challenge& challenge) {
        return SameIgnoringCase(challenge.scheme, scheme);
    });
    return found == challenges_.end() ? nullptr : &*found;
}

bool Challenges::Offers(std::string_view scheme) const
{
    return Find(scheme) != nullptr;
}

std::string Challenges::DigestFault() const
{
    constexpr std::array<std::string_view, 5> kAlgorithms = {"", "MD5", "MD5-sess", "SHA-256",
                                                             "SHA-256-sess"};
    const Challenge& digest = *Find("Digest");
    const bool isKnown = std::ranges::any_of(kAlgorithms, [&digest](std::string_view known) {
        return SameIgnoringCase(digest.algorithm, known);
    });
    if (!isKnown) {
        return "the server offers Digest with " + Printable(digest.algorithm) +
               ", but the SDK only knows MD5 and SHA-256";
    }
    if (!digest.qop.empty() && !IsListed(digest.qop, "auth")) {
        return "the server offers Digest with the protection " + Printable(digest.qop) +
               ", but the SDK only knows auth";
    }
    const bool isSession = digest.algorithm.size() > 5 && digest.algorithm.ends_with("sess");
    if (!digest.hasNonce || (isSession && digest.qop.empty())) {
        return "the server's Digest challenge is incomplete";
    }
    return {};
}

std::string Challenges::Names() const
{
    std::vector<std::string> names;
    for (const Challenge& challenge : challenges_) {
        std::string name = Printable(challenge.scheme);
        if (names.size() < limits::kNamedSchemes && std::ranges::find(names, name) == names.end()) {
            names.push_back(std::move(name));
        }
    }
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += i == 0 ? "" : i + 1 == names.size() ? " and " : ", ";
        text += names[i];
    }
    return text;
}

}  // namespace PelNet
