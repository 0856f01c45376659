// The JSON operations: a request line, a body, a record.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestLine.h"

namespace CapabilitySet::query
{

/// JSON operations grow on 43 alone, return every other number unchanged, and do not report a
/// reached limit.
inline constexpr Policy kJson{.growth = {16384, 16384, 16384000, false, false},
                              .limit = LimitReport::Silent};

/// What formatting a text by itself leaves: the text up to its first NUL, "%%" as "%", and nothing
/// of any other conversion; a "%" that starts no conversion is dropped. Devices and clients rely on
/// texts being sent this way.
std::string FormattedCopy(std::string_view text);

/// The request for a line, which is sent as a formatted copy in a zeroed buffer of 128 bytes or of
/// its length plus one. Nothing if the SDK cannot convert a channel in the line.
std::optional<TransparentRequest> JsonRequest(int userID, LineParts parts, std::string body,
                                              const Policy& policy);

/// The record of an operation whose answer is ignored.
struct NoAnswer
{
    void Parse(const std::string& /*text*/) {}
};

struct NoBody
{
    std::string operator()() const { return {}; }
};

/// A whole operation: sends the line with the body that `makeBody` returns, and parses the answer
/// into `out`. A channel that cannot be converted is a silent failure.
template <class Out, class MakeBody = NoBody>
bool AskJson(Out& out, unsigned int& err, int userID, const log::Place& place, LineParts parts,
             MakeBody&& makeBody = {}, const Policy& policy = kJson)
{
    return Query(out, err, {place, policy},
                 [&] { return JsonRequest(userID, parts, makeBody(), policy); });
}

inline constexpr Policy kPackage{.growth = {1048576, 1048576, 1048576000, false, false},
                                 .limit = LimitReport::Silent,
                                 .timeout = 120000};

/// Copies an answer into an array that the client releases with delete[].
void HandOver(ReceiveBuffer& answer, unsigned int size, tagNET_ORB_XML_CONFIG_OUTPUT& output);

/// Downloads a data package, which is not parsed but handed over. On failure `output` is not
/// touched.
template <class MakeBody = NoBody>
bool DownloadPackage(tagNET_ORB_XML_CONFIG_OUTPUT& output, unsigned int& err, int userID,
                     const log::Place& place, LineParts parts, MakeBody&& makeBody = {})
{
    return Guarded(err, [&] {
        err = 0;
        return Exchange(
            {place, kPackage}, err,
            [&] { return JsonRequest(userID, parts, makeBody(), kPackage); },
            [&](ReceiveBuffer& answer, const TransparentRequest& request) {
                HandOver(answer, request.ReturnedSize(), output);
                return true;
            });
    });
}

}  // namespace CapabilitySet::query
