// MAC addresses in the forms that people use.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tool
{

/// A MAC address, or at least its first three bytes, which belong to a maker.
class MacAddress
{
public:
    /// Reads an address of six or eight bytes, or the first three to five bytes of one, in upper or
    /// lower case. Groups of two, four or six digits are separated by ":", "-", "." or a blank,
    /// always the same, or by nothing; between ":" or "-" a byte may have one digit. Blanks around
    /// the address are ignored.
    static std::optional<MacAddress> Read(std::string_view text);

    /// The first three bytes as six lower-case digits.
    [[nodiscard]] std::string Prefix() const;
    /// All bytes in lower case, separated by colons.
    [[nodiscard]] std::string Text() const;

    /// True if the network's operator or the device itself chose the address. It then belongs to
    /// no maker.
    [[nodiscard]] bool IsLocallyAdministered() const;
    /// True for the address of a group.
    [[nodiscard]] bool IsMulticast() const;
    [[nodiscard]] bool IsBroadcast() const;

private:
    explicit MacAddress(std::string digits) : digits_(std::move(digits)) {}
    [[nodiscard]] unsigned int FirstByte() const;

    std::string digits_;
};

}  // namespace Tool
