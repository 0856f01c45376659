// The JSON operations: a request line, a body, a record.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/query/QueryFrame.h"

namespace CapabilitySet::query
{

/// A channel by the SDK's number, which a request line holds by the protocol's.
struct SdkChannel
{
    int number;
};

/// A piece of a request line; numbers are written in decimal, texts as they are.
using LinePart = std::variant<const char*, int, const std::string*, SdkChannel>;
using LineParts = std::initializer_list<LinePart>;

/// How the body of a request is handed to the SDK.
enum class BodyForm
{
    AsItStands,
    /// The alarm host's: a formatted copy in a buffer of 8,192 zeroed bytes, all of which are
    /// sent; a longer one in a buffer of its own length and one, sent whole.
    Padded
};

/// What a JSON operation differs in beside its line, body and record.
struct JsonOptions
{
    unsigned int timeout = 0;  ///< milliseconds for the answer, 0: the SDK's default
    BodyForm bodyForm = BodyForm::AsItStands;
    FailureReport failure = FailureReport::Full;
    const char* failureTag = "";
};

/// What formatting a text by itself leaves of it: up to its first NUL, "%%" as "%", and nothing of
/// any other conversion; of a "%" that begins none only the sign is lost. Devices and clients rely
/// on texts being sent so.
std::string FormattedCopy(std::string_view text);

/// A request whose line is a formatted copy in a zeroed buffer of 128 bytes, or of its length and
/// one.
TransparentRequest JsonRequest(int userID, std::string_view line, std::string body,
                               const JsonOptions& options);

/// The text of a request line. False when it names a channel that the SDK cannot convert.
bool MakeLine(int userID, LineParts parts, std::string& line);

/// The operation as the frame knows it.
Operation JsonOperation(const log::Place& place, const JsonOptions& options, const Growth& growth);

/// An operation whose answer is not read.
struct NoAnswer
{
    void Parse(const std::string& /*text*/) {}
};

struct NoBody
{
    std::string operator()() const { return {}; }
};

/// A whole operation: resets `out` and `err`, sends the line with the body that `makeBody` gives
/// (behind the guard, since making one takes memory), and parses the answer into `out`. A channel
/// that cannot be converted is a silent failure.
template <class Out, class MakeBody = NoBody>
bool AskJson(Out& out, unsigned int& err, int userID, const log::Place& place, LineParts parts,
             MakeBody&& makeBody = {}, const JsonOptions& options = {})
{
    constexpr bool kResets = !requires { requires Out::kAppendsAnswers; };
    const bool filled = Guarded(err, [&] {
        const json::OperationScope scope;
        if constexpr (kResets) {
            out = Out();
        }
        err = 0;
        std::string line;
        if (!MakeLine(userID, parts, line)) {
            return false;
        }
        TransparentRequest request = JsonRequest(userID, line, makeBody(), options);
        const Operation operation = JsonOperation(place, options, kJsonGrowth);
        ReceiveBuffer answer(operation.growth.limit);
        if (!Ask(operation, request, answer, err)) {
            return false;
        }
        out.Parse(std::string(answer.Text()));
        return true;
    });
    if constexpr (kResets) {
        if (!filled) {
            out = Out();
        }
    }
    return filled;
}

/// A data package: the answer is not parsed but handed over in an array of its own that the caller
/// releases with delete[]. On failure `output` is not touched.
bool DownloadPackage(tagNET_ORB_XML_CONFIG_OUTPUT& output, unsigned int& err, int userID,
                     const log::Place& place, LineParts parts, const std::string& body);

/// The same with a body that is made behind the guard.
template <class MakeBody>
bool DownloadPackage(tagNET_ORB_XML_CONFIG_OUTPUT& output, unsigned int& err, int userID,
                     const log::Place& place, LineParts parts, MakeBody&& makeBody)
    requires requires { makeBody(); }
{
    return Guarded(err, [&] {
        const json::OperationScope scope;
        return DownloadPackage(output, err, userID, place, parts, makeBody());
    });
}

}  // namespace CapabilitySet::query
