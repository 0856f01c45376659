// What a device means when it refuses a request.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "PelNetSDK/LastError.h"

namespace PelNet
{

/// A status document takes some hundred bytes; the bound keeps hostile ones cheap to read.
inline constexpr std::size_t kLongestStatusDocument = std::size_t{16} * 1024;

/// What was asked; an unknown ability has an error number of its own.
enum class RequestKind
{
    Ability,
    Request
};

/// The members of a status document that say why.
struct StatusDocument
{
    std::string subStatusCode;
    int errorCode = 0;   ///< "errorCode": the device's model error code
    int deviceCode = 0;  ///< "MErrDevSelfEx": the device's own extended code
};

/// Reads an XML "ResponseStatus" document or a JSON object with the same members; nothing when
/// the text is neither, or longer than any status document. Throws std::bad_alloc.
[[nodiscard]] std::optional<StatusDocument> ReadStatusDocument(const std::string& text);

/// The failure that an HTTP status other than 2xx and its status document amount to.
[[nodiscard]] Failure JudgeRefusal(int httpStatus, RequestKind kind,
                                   const std::optional<StatusDocument>& document);

}  // namespace PelNet
