// Converting between the ANSI code page and UTF-8: system calls on Windows, iconv elsewhere.
// SPDX-License-Identifier: Apache-2.0
#include "CodePage/CodePage.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <limits>
#include <new>
#include <utility>

#if defined(_WIN32)
#include <windows.h>
#else
#include <iconv.h>
#include <langinfo.h>
#endif

namespace CodePage
{

namespace
{

bool IsAscii(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
}

}  // namespace

#if defined(_WIN32)

namespace
{

struct NamedCodePage
{
    std::string_view name;
    UINT codePage;
};

constexpr std::array<NamedCodePage, 12> kCodePages{{{"UTF-8", CP_UTF8},
                                                    {"GBK", 936},
                                                    {"GB2312", 936},
                                                    {"GB18030", 54936},
                                                    {"BIG5", 950},
                                                    {"SHIFT_JIS", 932},
                                                    {"EUC-JP", 20932},
                                                    {"EUC-KR", 949},
                                                    {"KOI8-R", 20866},
                                                    {"ISO-8859-1", 28591},
                                                    {"ISO-8859-15", 28605},
                                                    {"WINDOWS-1252", 1252}}};

int Size(std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw std::bad_alloc();
    }
    return static_cast<int>(size);
}

std::string Convert(std::string_view text, UINT from, UINT to)
{
    if (text.empty()) {
        return {};
    }
    const int size = Size(text.size());
    const int wideSize = MultiByteToWideChar(from, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(wideSize), L'\0');
    MultiByteToWideChar(from, 0, text.data(), size, wide.data(), wideSize);
    const int bytes =
        WideCharToMultiByte(to, 0, wide.data(), wideSize, nullptr, 0, nullptr, nullptr);
    std::string converted(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(to, 0, wide.data(), wideSize, converted.data(), bytes, nullptr, nullptr);
    return converted;
}

const NamedCodePage* FindCodePage(const char* codeSet)
{
    const auto* found =
        std::find_if(kCodePages.begin(), kCodePages.end(), [codeSet](const NamedCodePage& page) {
            return codeSet != nullptr && _stricmp(page.name.data(), codeSet) == 0;
        });
    return found == kCodePages.end() ? nullptr : found;
}

}  // namespace

std::string AnsiToUtf8(std::string_view text)
{
    return IsAscii(text) ? std::string(text) : Convert(text, CP_ACP, CP_UTF8);
}

std::string Utf8ToAnsi(std::string_view utf8)
{
    return IsAscii(utf8) ? std::string(utf8) : Convert(utf8, CP_UTF8, CP_ACP);
}

std::string ToUtf8(std::string_view text, const char* codeSet)
{
    const NamedCodePage* page = FindCodePage(codeSet);
    return page != nullptr ? Convert(text, page->codePage, CP_UTF8) : std::string();
}

std::string FromUtf8(std::string_view utf8, const char* codeSet)
{
    const NamedCodePage* page = FindCodePage(codeSet);
    return page != nullptr ? Convert(utf8, CP_UTF8, page->codePage) : std::string();
}

#else

namespace
{

constexpr const char* kUtf8 = "UTF-8";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD in UTF-8

class Converter
{
public:
    Converter(const char* to, const char* from)
        : handle_(to != nullptr && from != nullptr ? iconv_open(to, from) : None())
    {
    }
    ~Converter()
    {
        if (*this) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    explicit operator bool() const { return handle_ != None(); }

    /// Converts as much as possible, appends it to `out` and removes it from `in`. False if `in`
    /// now begins with something that cannot be converted.
    bool Append(std::string_view& in, std::string& out)
    {
        // iconv does not write to its input, although its signature lacks the const.
        char* from = const_cast<char*>(in.data());
        std::size_t left = in.size();
        int error = 0;
        do {
            error = Step(&from, &left, out);
        } while (error == E2BIG);
        in.remove_prefix(in.size() - left);
        return error == 0 || in.empty();
    }

    /// Appends the shift sequence that some code sets need at the end of a text.
    void Finish(std::string& out) { Step(nullptr, nullptr, out); }

private:
    // NOLINTNEXTLINE(performance-no-int-to-ptr): iconv's own error value
    static iconv_t None() { return reinterpret_cast<iconv_t>(-1); }

    int Step(char** from, std::size_t* left, std::string& out)
    {
        std::array<char, 1024> piece;
        char* to = piece.data();
        std::size_t room = piece.size();
        const bool failed = iconv(handle_, from, left, &to, &room) == static_cast<std::size_t>(-1);
        const int error = failed ? errno : 0;
        out.append(piece.data(), piece.size() - room);
        return error;
    }

    iconv_t handle_;
};

/// The bytes of the first character of well-formed UTF-8.
std::size_t CharacterLength(std::string_view utf8)
{
    std::size_t length = 1;
    while (length < utf8.size() && (utf8[length] & 0xC0) == 0x80) {
        ++length;
    }
    return length;
}

/// Replaces each byte of characters beyond U+10FFFF, which iconv lets through.
std::string WithoutBeyondUnicode(std::string utf8)
{
    const std::string_view text = utf8;
    const auto isBeyond = [text](std::size_t at) {
        const auto lead = static_cast<unsigned char>(text[at]);
        return lead > 0xF4 || (lead == 0xF4 && static_cast<unsigned char>(text[at + 1]) > 0x8F);
    };
    std::string cleaned;
    std::size_t kept = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isBeyond(at)) {
            cleaned.append(text.substr(kept, at - kept));
            kept = at + CharacterLength(text.substr(at));
            for (; at < kept; ++at) {
                cleaned.append(kReplacement);
            }
            --at;
        }
    }
    return kept == 0 ? std::move(utf8) : cleaned.append(text.substr(kept));
}

/// The code set of the calling thread's locale. The plain "C" locale reports US-ASCII, but a client
/// that never chose a locale works in UTF-8.
const char* AnsiCodeSet()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): races only with a client that changes its locale
    const char* codeSet = nl_langinfo(CODESET);
    const std::string_view name = codeSet;
    const bool isUnset = name.empty() || name == "ANSI_X3.4-1968" || name == "US-ASCII" ||
                         name == "646" || name == "ASCII";
    return isUnset ? kUtf8 : codeSet;
}

}  // namespace

std::string AnsiToUtf8(std::string_view text)
{
    if (IsAscii(text)) {
        return std::string(text);
    }
    const std::string converted = ToUtf8(text, AnsiCodeSet());
    return converted.empty() ? ToUtf8(text, kUtf8) : converted;
}

std::string Utf8ToAnsi(std::string_view utf8)
{
    if (IsAscii(utf8)) {
        return std::string(utf8);
    }
    const std::string converted = FromUtf8(utf8, AnsiCodeSet());
    return converted.empty() ? ToUtf8(utf8, kUtf8) : converted;
}

std::string ToUtf8(std::string_view text, const char* codeSet)
{
    std::string utf8;
    Converter converter(kUtf8, codeSet);
    if (!converter) {
        return utf8;
    }
    utf8.reserve(text.size() + text.size() / 2);
    while (!converter.Append(text, utf8)) {
        // Windows substitutes and goes on as well.
        utf8.append(kReplacement);
        text.remove_prefix(1);
    }
    converter.Finish(utf8);
    return WithoutBeyondUnicode(std::move(utf8));
}

std::string FromUtf8(std::string_view utf8, const char* codeSet)
{
    Converter converter(codeSet, kUtf8);
    std::string text;
    if (!converter) {
        return text;
    }
    // Replace what is not UTF-8 first, so that whatever stops the converter is a whole character.
    const std::string wellFormed = ToUtf8(utf8, kUtf8);
    std::string_view rest = wellFormed;
    while (!converter.Append(rest, text)) {
        text.push_back('?');
        rest.remove_prefix(CharacterLength(rest));
    }
    converter.Finish(text);
    return text;
}

#endif

}  // namespace CodePage
