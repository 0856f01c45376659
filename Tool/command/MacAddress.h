// MAC addresses as people write them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tool
{

/// A MAC address, or its beginning of at least the three bytes that tell whose block it is from.
class MacAddress
{
public:
    /// Reads an address of six or eight bytes or the first three to five of one, in any case: bytes
    /// of two digits, or of one or two between ":" or "-"; groups of four or six digits; with ":",
    /// "-", "." or blanks between them, always the same, or nothing. Blanks around it do not count.
    static std::optional<MacAddress> Read(std::string_view text);

    /// The first three bytes as six lower-case digits.
    [[nodiscard]] std::string Prefix() const;
    /// All bytes in lower case with colons between.
    [[nodiscard]] std::string Text() const;

    /// Whether the address was chosen by whoever runs the network or by the device itself; the
    /// registry of makers knows nothing of it.
    [[nodiscard]] bool IsLocallyAdministered() const;
    /// Whether it is that of a group and not of one device.
    [[nodiscard]] bool IsMulticast() const;
    [[nodiscard]] bool IsBroadcast() const;

private:
    explicit MacAddress(std::string digits) : digits_(std::move(digits)) {}
    [[nodiscard]] unsigned int FirstByte() const;

    std::string digits_;
};

}  // namespace Tool
