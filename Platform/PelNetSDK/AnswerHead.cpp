// Reading the head of an HTTP answer line by line.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/AnswerHead.h"

#include <charconv>

#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Text.h"

namespace PelNet
{

namespace
{

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(kBlanks);
    return begin == std::string_view::npos
               ? std::string_view()
               : text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

int StatusIn(std::string_view line)
{
    int status = 0;
    const std::string_view code = line.substr(line.find(' ') + 1);
    std::from_chars(code.data(), code.data() + code.size(), status);
    return status;
}

}  // namespace

void AnswerHead::Clear() noexcept
{
    bytes_ = 0;
    status_ = 0;
    encoding_.clear();
    location_.clear();
    challenges_.Clear();
    fault_.clear();
}

bool AnswerHead::IsFinalStatus(std::string_view line)
{
    return line.starts_with("HTTP/") && StatusIn(line) >= 200;
}

bool AnswerHead::Take(std::string_view line)
{
    bytes_ += line.size();
    if (bytes_ > limits::kHeaders) {
        fault_ =
            "the server sends more than " + std::to_string(limits::kHeaders) + " bytes of headers";
        return false;
    }
    if (line.starts_with("HTTP/")) {
        const std::size_t bytes = bytes_;
        Clear();
        bytes_ = bytes;
        status_ = StatusIn(line);
        return true;
    }
    const std::size_t colon = line.find(':');
    return colon == std::string_view::npos ||
           TakeField(line.substr(0, colon), Trimmed(line.substr(colon + 1)));
}

bool AnswerHead::TakeField(std::string_view name, std::string_view value)
{
    if (SameIgnoringCase(name, "WWW-Authenticate")) {
        challenges_.Add(value);
    } else if (SameIgnoringCase(name, "Location")) {
        location_ = Printable(value);
    } else if (SameIgnoringCase(name, "Content-Encoding")) {
        if (!value.empty() && !SameIgnoringCase(value, "identity")) {
            encoding_ = Printable(value);
        }
    } else if (SameIgnoringCase(name, "Transfer-Encoding")) {
        // libcurl would undo any chain of compressions, each of which can expand a thousandfold.
        if (!SameIgnoringCase(value, "chunked") && !SameIgnoringCase(value, "identity")) {
            encoding_ = Printable(value);
            fault_ = "the server compresses its answer (" + encoding_ + ") without being asked to";
            return false;
        }
    }
    if (IsEncoded() && status_ >= 200 && status_ < 300) {
        fault_ = "the server compresses its answer (" + encoding_ + ") without being asked to";
        return false;
    }
    return true;
}

}  // namespace PelNet
