// Bytes as Base64 text.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace Tool
{

std::string ToBase64(std::string_view bytes);

}  // namespace Tool
