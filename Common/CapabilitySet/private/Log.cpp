// Writes log lines, formatting them only if their level is enabled.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/Log.h"

#include <cstdarg>
#include <cstdint>
#include <string_view>
#include <utility>

#include "CapabilitySet/Limits.h"
#include "Keel/StringUtil.h"

namespace CapabilitySet::log
{
namespace
{

constexpr std::uint32_t kNoCharacter = 0xFFFFFFFF;

using Keel::details::CLog;
using Keel::details::LogLevel;
using Write = void (CLog::*)(const std::string&, const std::string&,
                             const log4cxx::spi::LocationInfo&);

/// The Unicode character at the start of a text and its bytes; invalid UTF-8 gives one byte and its
/// value as a C1 control character or a number beyond Unicode.
std::pair<std::uint32_t, std::size_t> Character(std::string_view text)
{
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const unsigned int lead = byte(0);
    const std::size_t size = lead < 0x80U                    ? 1
                             : lead >= 0xC2U && lead < 0xE0U ? 2
                             : lead >= 0xE0U && lead < 0xF0U ? 3
                             : lead >= 0xF0U && lead < 0xF5U ? 4
                                                             : 0;
    std::uint32_t code = size < 2 ? lead : lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return {kNoCharacter, 1};
        }
        code = code << 6U | (byte(i) & 0x3FU);
    }
    return size == 0 ? std::pair{kNoCharacter, std::size_t{1}} : std::pair{code, size};
}

/// Whether a character can control a terminal or reorder what it shows.
bool IsControl(std::uint32_t code)
{
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x61C || code == 0x200E ||
           code == 0x200F || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069) || code == kNoCharacter;
}

/// A line that does no harm on a terminal, whatever a device put into it.
std::string Neutral(std::string_view line)
{
    std::string text;
    text.reserve(line.size());
    while (!line.empty()) {
        if (text.size() > limits::kLogLineBytes) {
            return text + "...";
        }
        const auto [code, size] = Character(line);
        // Messages of libxml2 end in a line end, which log lines have always kept.
        if (!IsControl(code) || code == '\t' || line.starts_with("\n]")) {
            text += line.substr(0, size);
        } else {
            const unsigned int shown =
                code == kNoCharacter ? static_cast<unsigned char>(line.front()) : code;
            text += Keel::StringUtil::FormatString(shown < 0x100 ? "\\x%02X" : "\\u%04X", shown);
        }
        line.remove_prefix(size);
    }
    return text;
}

KEEL_PRINTF(3, 0)
void Line(Write write, const Place& place, const char* format, va_list arguments)
{
    (Keel::CSingleton<CLog>::Instance().*write)(
        {}, Neutral(Keel::StringUtil::FormatStringV(format, arguments)),
        {place.file, log4cxx::spi::LocationInfo::calcShortFileName(place.file), place.function,
         place.line});
}

bool Wanted(LogLevel level)
{
    return Keel::CSingleton<CLog>::Instance().IsEnabled(level);
}

}  // namespace

void Error(const Place& place, const char* format, ...)
{
    if (!Wanted(LogLevel::Error)) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    Line(&CLog::Error, place, format, arguments);
    va_end(arguments);
}

void Info(const Place& place, const char* format, ...)
{
    if (!Wanted(LogLevel::Info)) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    Line(&CLog::Info, place, format, arguments);
    va_end(arguments);
}

bool ListIsCut()
{
    Error(CAPABILITYSET_HERE, "A list holds more than %zu entries; the others are left out.",
          limits::kListEntries);
    return true;
}

}  // namespace CapabilitySet::log
