// Text that a server sent, compared and made fit to show.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace PelNet
{

/// Compares ASCII text.
[[nodiscard]] bool SameIgnoringCase(std::string_view a, std::string_view b);

/// The text for a message: at most 80 characters, each that is not printable ASCII as a '?'.
[[nodiscard]] std::string Printable(std::string_view text);

}  // namespace PelNet
