// The JSON operations: a request line, a body, a record.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/JsonOperation.h"

#include <algorithm>
#include <memory>

namespace CapabilitySet::query
{
namespace
{

constexpr std::size_t kLineBuffer = 128;
constexpr std::size_t kBodyBuffer = 8192;
constexpr unsigned int kPackageTimeout = 120000;
constexpr Growth kPackageGrowth{1048576, 1048576, 1048576000, false, false};

/// Where the letter of a conversion stands in `text`, which begins with '%': behind flags, width,
/// precision and length.
std::size_t ConversionLetter(std::string_view text)
{
    std::size_t at = 1;
    for (const std::string_view part : {"-+ #0'", "0123456789*$", ".", "0123456789*", "hljztLqI"}) {
        at = std::min(text.find_first_not_of(part, at), text.size());
    }
    return at;
}

/// A formatted copy and its NUL in a zeroed buffer of at least `size` bytes.
std::string Buffered(std::string_view text, std::size_t size)
{
    std::string buffer = FormattedCopy(text);
    buffer.resize(std::max(buffer.size() + 1, size));
    return buffer;
}

}  // namespace

std::string FormattedCopy(std::string_view text)
{
    text = text.substr(0, text.find('\0'));
    std::string copy;
    copy.reserve(text.size());
    while (!text.empty()) {
        const std::size_t percent = std::min(text.find('%'), text.size());
        copy.append(text.substr(0, percent));
        text.remove_prefix(percent);
        if (text.empty()) {
            break;
        }
        constexpr std::string_view kLetters = "diouxXeEfFgGaAcCsSpn";
        const std::size_t letter = ConversionLetter(text);
        const char kind = letter < text.size() ? text[letter] : '\0';
        if (kind == '%') {
            copy.push_back('%');
        }
        const bool converts = kind == '%' || kLetters.find(kind) != std::string_view::npos;
        text.remove_prefix(converts ? letter + 1 : 1);
    }
    return copy;
}

TransparentRequest JsonRequest(int userID, std::string_view line, std::string body,
                               const JsonOptions& options)
{
    if (options.bodyForm == BodyForm::Padded) {
        body = Buffered(body, kBodyBuffer);
    }
    return TransparentRequest(userID, Buffered(line, kLineBuffer), std::move(body),
                              options.timeout);
}

bool MakeLine(int userID, LineParts parts, std::string& line)
{
    for (const LinePart& part : parts) {
        if (const auto* literal = std::get_if<const char*>(&part)) {
            line += *literal;
        } else if (const auto* number = std::get_if<int>(&part)) {
            line += std::to_string(*number);
        } else if (const auto* text = std::get_if<const std::string*>(&part)) {
            line += **text;
        } else {
            const int channel =
                NET_ORB_SDKChannelToTARN(userID, std::get<SdkChannel>(part).number, 1);
            if (channel == -1) {
                return false;
            }
            line += std::to_string(channel);
        }
    }
    return true;
}

Operation JsonOperation(const log::Place& place, const JsonOptions& options, const Growth& growth)
{
    return {.place = place,
            .name = "",
            .growth = growth,
            .limit = LimitReport::Silent,
            .failure = options.failure,
            .failureTag = options.failureTag};
}

bool DownloadPackage(tagNET_ORB_XML_CONFIG_OUTPUT& output, unsigned int& err, int userID,
                     const log::Place& place, LineParts parts, const std::string& body)
{
    return Guarded(err, [&] {
        err = 0;
        std::string line;
        if (!MakeLine(userID, parts, line)) {
            return false;
        }
        const JsonOptions options{.timeout = kPackageTimeout};
        TransparentRequest request = JsonRequest(userID, line, body, options);
        ReceiveBuffer answer(kPackageGrowth.limit);
        if (!Ask(JsonOperation(place, options, kPackageGrowth), request, answer, err)) {
            return false;
        }
        const unsigned int size = request.ReturnedSize();
        auto package = std::make_unique_for_overwrite<char[]>(size);
        answer.MoveTo(package.get(), size);
        output.outBuffer = package.release();
        output.returnedSize = size;
        return true;
    });
}

}  // namespace CapabilitySet::query
