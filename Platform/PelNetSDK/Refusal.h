// What a device's refusal means.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "PelNetSDK/Exchange.h"
#include "PelNetSDK/LastError.h"

namespace PelNet
{

/// What was asked. An unknown ability has an error number of its own.
enum class RequestKind
{
    Ability,
    Request
};

/// The members of a status document that give the reason.
struct StatusDocument
{
    std::string subStatusCode;
    int errorCode = 0;   ///< "errorCode": the device's model error code
    int deviceCode = 0;  ///< "MErrDevSelfEx": the device's own extended code
};

/// Reads an XML "ResponseStatus" document or a JSON object with the same members. Nothing if the
/// text is neither, or longer than limits::kStatusDocument. Throws std::bad_alloc.
[[nodiscard]] std::optional<StatusDocument> ReadStatusDocument(const std::string& text);

/// What an HTTP status other than 2xx and its status document amount to.
[[nodiscard]] Failure JudgeRefusal(int httpStatus, RequestKind kind,
                                   const std::optional<StatusDocument>& document);

/// The same for an answer that is a refusal; sets the failure's detail to its hint.
[[nodiscard]] Failure JudgeRefusal(const TransportAnswer& answer, RequestKind kind,
                                   const std::optional<StatusDocument>& document);

}  // namespace PelNet
