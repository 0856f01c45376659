// Conversion between code sets: nothing is lost, nothing stops it, no bad byte gets through.
// SPDX-License-Identifier: Apache-2.0
#include "CodePage/CodePage.h"

#include <clocale>
#include <string>

#include <gtest/gtest.h>

#include "Keel/Encoding.h"

namespace
{

using namespace std::string_literals;

#define BAD "\xEF\xBF\xBD"

struct Conversion
{
    std::string from;
    const char* codeSet;
    std::string utf8;
};

TEST(CodePageTest, ReplacesEachBadByteAndKeepsTheRest)
{
    const Conversion cases[] = {
        {"plain", "GBK", "plain"},
        {"\xD6\xD0\xCE\xC4", "GBK", "\xE4\xB8\xAD\xE6\x96\x87"},
        {"a\xFF"
         "b\xD6\xD0",
         "GBK", "a" BAD "b\xE4\xB8\xAD"},
        {"a\xD6", "GBK", "a" BAD},  // cut in a character
        {"\xFF\xFF", "GBK", BAD BAD},
        {"\xA4", "ISO-8859-15", "\xE2\x82\xAC"},
        {"a\0b\xE4"s, "ISO-8859-1", "a\0b\xC3\xA4"s},
        {"ok \xC3\xA4", "UTF-8", "ok \xC3\xA4"},
        {"\xC0\x80", "UTF-8", BAD BAD},                  // overlong
        {"\xED\xA0\x80", "UTF-8", BAD BAD BAD},          // surrogate
        {"\xF4\x90\x80\x80", "UTF-8", BAD BAD BAD BAD},  // beyond the last character
        {"a\xF4\x90\x80\x80\xF4\x8F\xBF\xBF", "UTF-8", "a" BAD BAD BAD BAD "\xF4\x8F\xBF\xBF"},
        {"\xE4\xB8", "UTF-8", BAD BAD},
        {"", "GBK", ""},
        {"text", "NoSuchCodeSet", ""},
    };
    for (const Conversion& c : cases) {
        EXPECT_EQ(CodePage::ToUtf8(c.from, c.codeSet), c.utf8)
            << c.codeSet << " " << testing::PrintToString(c.from);
    }
    EXPECT_EQ(CodePage::ToUtf8("text", nullptr), "");
}

TEST(CodePageTest, WritesAQuestionMarkForWhatACodeSetCannotHold)
{
    EXPECT_EQ(CodePage::FromUtf8("\xE4\xB8\xAD\xE6\x96\x87", "GBK"), "\xD6\xD0\xCE\xC4");
    EXPECT_EQ(CodePage::FromUtf8("\xC3\xA4\xE4\xB8\xAD.", "ISO-8859-1"), "\xE4?.");
    EXPECT_EQ(CodePage::FromUtf8("\xF0\x9F\x98\x80\xFFx", "ISO-8859-1"), "??x");
    EXPECT_EQ(CodePage::FromUtf8("text", "NoSuchCodeSet"), "");
}

TEST(CodePageTest, ConvertsTextsLongerThanAnyBuffer)
{
    std::string gbk;
    std::string utf8;
    for (int i = 0; i < 100'000; ++i) {
        gbk += i % 1'000 == 0 ? "\xFF" : "\xD6\xD0";
        utf8 += i % 1'000 == 0 ? BAD : "\xE4\xB8\xAD";
    }
    EXPECT_EQ(CodePage::ToUtf8(gbk + "\xD6", "GBK"), utf8 + BAD);
    EXPECT_EQ(CodePage::ToUtf8(CodePage::FromUtf8(utf8, "GB18030"), "GB18030"), utf8);
}

TEST(CodePageTest, TakesTheLocaleForTheAnsiCodePage)
{
    for (const char* locale : {"C", "C.UTF-8"}) {
        ASSERT_NE(std::setlocale(LC_CTYPE, locale), nullptr) << locale;
        EXPECT_EQ(CodePage::AnsiToUtf8("\xE4\xB8\xAD\xE6\x96\x87 \xD6"),
                  "\xE4\xB8\xAD\xE6\x96\x87 " BAD)
            << locale;
        EXPECT_EQ(CodePage::Utf8ToAnsi("\xE4\xB8\xAD \xFF"), "\xE4\xB8\xAD " BAD) << locale;
        EXPECT_EQ(Keel::UTF8ToLocal("a\xE4\xB8\xAD"), "a\xE4\xB8\xAD") << locale;
    }
    std::setlocale(LC_CTYPE, "C");
}

}  // namespace
