// The JSON operations: a request line, a body, a record.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/JsonOperation.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace CapabilitySet::query
{
namespace
{

constexpr std::size_t kLineBuffer = 128;
constexpr std::size_t kBodyBuffer = 8192;

/// Finds the letter of the conversion that `text` starts with: it follows flags, width, precision
/// and length.
std::size_t ConversionLetter(std::string_view text)
{
    std::size_t at = 1;
    for (const std::string_view part : {"-+ #0'", "0123456789*$", ".", "0123456789*", "hljztLqI"}) {
        at = std::min(text.find_first_not_of(part, at), text.size());
    }
    return at;
}

/// A formatted copy, NUL included, in a zeroed buffer of at least `size` bytes.
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

std::optional<TransparentRequest> JsonRequest(int userID, LineParts parts, std::string body,
                                              const Policy& policy)
{
    std::string line;
    if (!MakeLine(userID, parts, line)) {
        return std::nullopt;
    }
    if (policy.bodyForm == BodyForm::Padded) {
        body = Buffered(body, kBodyBuffer);
    }
    return std::optional<TransparentRequest>(std::in_place, userID, Buffered(line, kLineBuffer),
                                             std::move(body), policy.timeout);
}

void HandOver(ReceiveBuffer& answer, unsigned int size, tagNET_ORB_XML_CONFIG_OUTPUT& output)
{
    auto package = std::make_unique_for_overwrite<char[]>(size);
    answer.MoveTo(package.get(), size);
    output.outBuffer = package.release();
    output.returnedSize = size;
}

}  // namespace CapabilitySet::query
