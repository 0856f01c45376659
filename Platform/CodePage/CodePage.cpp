// From the system's ANSI code page to UTF-8: the system call on Windows, iconv elsewhere.
// SPDX-License-Identifier: Apache-2.0
#include "CodePage/CodePage.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <new>

#include <iconv.h>
#include <langinfo.h>

namespace CodePage
{

namespace
{

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD in UTF-8

class Converter
{
public:
    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    ~Converter()
    {
        if (*this) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    explicit operator bool() const
    {
        return handle_ != reinterpret_cast<iconv_t>(-1);  // NOLINT: iconv's own error value
    }

    /// Converts as much as can be, appends it to `out` and takes it off `in`. False: `in` now
    /// begins with something that cannot be converted.
    bool Append(std::string_view& in, std::string& out)
    {
        // iconv does not write to its input, its interface only says so.
        char* from = const_cast<char*>(in.data());
        std::size_t left = in.size();
        int error = 0;
        do {
            error = Step(&from, &left, out);
        } while (error == E2BIG);
        in.remove_prefix(in.size() - left);
        return error == 0;
    }

    /// Appends what a code set with shift states needs at the end of a text.
    void Finish(std::string& out) { Step(nullptr, nullptr, out); }

private:
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

bool IsAscii(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
}

/// Bytes of the well-formed character at the beginning of UTF-8 text.
std::size_t CharacterLength(std::string_view utf8)
{
    std::size_t length = 1;
    while (length < utf8.size() && (utf8[length] & 0xC0) == 0x80) {
        ++length;
    }
    return length;
}

/// The code set of the calling thread's locale. The plain "C" locale says US-ASCII: a client that
/// never chose a locale works in UTF-8.
const char* AnsiCodeSet()
{
    const char* codeSet = nl_langinfo(CODESET);
    const std::string_view name = codeSet;
    const bool isUnset = name.empty() || name == "ANSI_X3.4-1968" || name == "US-ASCII" ||
                         name == "646" || name == "ASCII";
    return isUnset ? "UTF-8" : codeSet;
}

}  // namespace

std::string AnsiToUtf8(std::string_view text)
{
    if (IsAscii(text)) {
        return std::string(text);
    }
    const char* codeSet = AnsiCodeSet();
    const std::string converted = ToUtf8(text, codeSet);
    return converted.empty() ? ToUtf8(text, "UTF-8") : converted;
}

std::string ToUtf8(std::string_view text, const char* codeSet)
{
    std::string utf8;
    Converter converter("UTF-8", codeSet);
    if (!converter) {
        return utf8;
    }
    utf8.reserve(text.size() + text.size() / 2);
    while (!converter.Append(text, utf8)) {
        // The system call of the other platform substitutes too, and goes on.
        utf8.append(kReplacement);
        text.remove_prefix(1);
    }
    converter.Finish(utf8);
    return utf8;
}

std::string Utf8ToAnsi(std::string_view utf8)
{
    if (IsAscii(utf8)) {
        return std::string(utf8);
    }
    const std::string wellFormed = ToUtf8(utf8, "UTF-8");
    Converter converter(AnsiCodeSet(), "UTF-8");
    if (!converter) {
        return wellFormed;
    }
    std::string_view rest = wellFormed;
    std::string ansi;
    while (!converter.Append(rest, ansi)) {
        ansi.push_back('?');
        rest.remove_prefix(CharacterLength(rest));
    }
    converter.Finish(ansi);
    return ansi;
}

}  // namespace CodePage
