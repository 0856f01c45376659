// How documents are parsed: as libxml2 does, but silent and on guard.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlDocument.h"

#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/parser.h>

#include "support/AllocationFaults.h"
#include "support/LogCapture.h"

namespace
{

using namespace CapabilitySet::xml;
using TestSupport::LogCapture;

void IgnoreError(void*, xmlErrorPtr) {}

std::string Dump(xmlDoc* document)
{
    xmlChar* text = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(document, &text, &size, "UTF-8");
    std::string dumped(reinterpret_cast<char*>(text), static_cast<std::size_t>(size));
    xmlFree(text);
    return dumped;
}

/// The tree and the problem as one text.
std::string Parsed(const std::string& text, Form form = Form::Plain)
{
    Problem problem;
    const Document document = ParseText(text, form, problem);
    return document != nullptr ? Dump(document.get())
                               : std::to_string(problem.line) + ": " + problem.message;
}

/// The same from libxml2's own functions, its defaults untouched.
std::string ParsedByLibrary(const std::string& text, Form form)
{
    xmlSetStructuredErrorFunc(nullptr, IgnoreError);
    xmlResetLastError();
    const Document document(form == Form::Plain
                                ? xmlParseDoc(reinterpret_cast<const xmlChar*>(text.c_str()))
                                : xmlReadMemory(text.c_str(),
                                                static_cast<int>(std::string(text.c_str()).size()),
                                                nullptr, "UTF-8", XML_PARSE_NOBLANKS));
    const xmlError* const error = xmlGetLastError();
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    if (document != nullptr) {
        return Dump(document.get());
    }
    return error == nullptr ? "0: " : std::to_string(error->line) + ": " + error->message;
}

const std::string kGood =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<root xmlns=\"urn:x\" v='1'>\n  <a n=\"1\">text"
    "</a> <b/>\n<!-- c --><c><![CDATA[<raw>]]>&amp;&#65;</c><p:d xmlns:p=\"urn:p\" p:q='x'/>\n"
    "</root>\n";
const std::string kGbk = "<?xml version='1.0' encoding='GBK'?><root><a>\xD6\xD0</a></root>";

/// Documents that cannot be parsed, each for a reason of its own.
std::vector<std::string> BadDocuments()
{
    std::string flood = "<root";
    for (int i = 0; i <= 1000; ++i) {
        flood += " a" + std::to_string(i) + "='x'";
    }
    std::string scopes;
    for (int depth = 0; depth < 6; ++depth) {
        scopes += "<r";
        for (int i = 0; i < 200; ++i) {
            scopes += " xmlns:n" + std::to_string(200 * depth + i) + "='u'";
        }
        scopes += ">";
    }
    for (int depth = 0; depth < 6; ++depth) {
        scopes += "</r>";
    }
    std::string declared = "<!DOCTYPE r [<!ATTLIST b";
    for (int i = 0; i < 30; ++i) {
        declared += " a" + std::to_string(i) + " CDATA '" + std::string(100, 'x') + "'";
    }
    declared += ">]><r>";
    for (int i = 0; i < 30; ++i) {
        declared += "<b/>";
    }
    return {"{\"json\": 1}",
            "<root>",
            "<root></other>",
            "<root/><root/>",
            "<root a='1' a='2'/>",
            "<root>\xD6\xD0</root>",
            "<?xml version='1.0' encoding='GBK'?><root>\xD6\xD0\xFF\xFF</root>",
            "<?xml version='1.0' encoding='nonsense'?><root/>",
            "<root>&unknown;</root>",
            "<!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;</r>",
            "<!DOCTYPE r [<!ENTITY % e SYSTEM 'x'>]><r/>",
            "<!DOCTYPE r [<!ENTITY e SYSTEM 'file:///etc/passwd'>]><r>&e;</r>",
            "<!DOCTYPE r [<!ENTITY e SYSTEM 'x' NDATA y>]><r/>",
            std::string(40, ' ') + "<?xml version='1.0'?><root/>",
            flood + "/>",
            flood + "><a>" + std::string(70'000, 'x') + "</a></root>",
            scopes,
            declared + "</r>",
            "<?xml version='1.0' encoding='UTF-16'?><root/>",
            [] {
                std::string deep;
                for (int i = 0; i < 1000; ++i) {
                    deep += "<d>";
                }
                return deep;
            }()};
}

TEST(XmlDocumentTest, ReadsAGoodDocumentAlikeAfterEveryKindOfBadOne)
{
    const std::string good = ParsedByLibrary(kGood, Form::Plain);
    const std::string gbk = ParsedByLibrary(kGbk, Form::Plain);
    EXPECT_NE(gbk.find("\xE4\xB8\xAD"), std::string::npos) << "declared GBK is converted";
    ASSERT_EQ(Parsed(kGood), good);
    for (const std::string& bad : BadDocuments()) {
        SCOPED_TRACE(bad.substr(0, 80));
        Problem problem;
        EXPECT_EQ(ParseText(bad, Form::Plain, problem), nullptr);
        EXPECT_NE(problem.message, "");
        EXPECT_EQ(Parsed(kGood), good);
        EXPECT_EQ(Parsed(kGbk), gbk);
    }
}

TEST(XmlDocumentTest, NamesTheGuardThatRefused)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"<!DOCTYPE r [\n<!ENTITY e 'x'>]><r/>", "2: The document declares entities"},
        {BadDocuments()[14], "1: An element has more than 1000 attributes"},
        {BadDocuments()[15], "0: An element has more than 1000 attributes"},
        {BadDocuments()[16], "1: An element has more than 1000 attributes"},
        {BadDocuments()[17], "1: The document declares more than 65536 bytes of attribute values"},
        {std::string(), "0: "}};
    for (const auto& [document, problem] : cases) {
        EXPECT_EQ(Parsed(document), problem) << document.substr(0, 60);
    }
}

TEST(XmlDocumentTest, RefusesADocumentWhoseNamesWouldTakeMinutes)
{
    std::string names = "<r>";
    for (int i = 0; i < 200'000; ++i) {
        names += "<n" + std::to_string(i) + "/>";
    }
    Problem problem;
    EXPECT_EQ(ParseText(names + "</r>", Form::Plain, problem), nullptr);
}

TEST(XmlDocumentTest, AcceptsWhatOnlyLooksLikeAFlood)
{
    std::string quotes;
    for (int i = 0; i < 3000; ++i) {
        quotes += "\"member" + std::to_string(i) + "\": \"value of it\", ";
    }
    std::string most = "<r";
    for (int i = 0; i < 1000; ++i) {
        most += " a" + std::to_string(i) + "='1'";
    }
    for (const std::string& document :
         {"<r><![CDATA[{" + quotes + "}]]></r>", "<r><!-- " + quotes + " --></r>",
          "<r>" + quotes + "</r>", most + "/>", most + ">" + std::string(70'000, 'x') + "</r>"}) {
        EXPECT_EQ(Parsed(document), ParsedByLibrary(document, Form::Plain));
    }
    // For a long text that is not XML the log shows the parser's own message.
    const std::string json = "{" + quotes + "}";
    EXPECT_EQ(Parsed(json), ParsedByLibrary(json, Form::Plain));
}

TEST(XmlDocumentTest, GivesTheTreesAndProblemsOfLibxml2ForMutatedDocuments)
{
    std::mt19937 random(20'000);
    const std::vector<std::string> seeds{
        kGood,
        kGbk,
        "<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xE4'>\xFC</r>",
        "\xEF\xBB\xBF<?xml version = \"1.0\" encoding = \"big5\" ?><r>\xA4\xA4</r>",
        "<!DOCTYPE r SYSTEM 'x.dtd' [<!ELEMENT r ANY><!ATTLIST r b CDATA 'd'>]><r> "
        "<i>&#9;</i></r>",
        "<?xml version='1.0' encoding='ISO-LATIN-1'?><r>\xE4</r>"};
    const std::string marks = "<>&;/'\"=! \n[]-?a1\xFF";
    for (int round = 0; round < 8'000; ++round) {
        const std::size_t seed = random() % seeds.size();
        std::string text = seeds[seed];
        // Where a text cannot be converted, libxml2 has words of its own for it.
        const auto told = [isConverted = seed % 4 != 0](const std::string& outcome) {
            return isConverted && outcome.front() != '<' ? "no document" : outcome;
        };
        for (unsigned edits = random() % 4; edits > 0; --edits) {
            const std::size_t at = random() % text.size();
            if (random() % 3 == 0) {
                text.erase(at, 1 + random() % 6);
            } else if (random() % 2 == 0) {
                text.insert(at, 1, marks[random() % marks.size()]);
            } else {
                text[at] = marks[random() % marks.size()];
            }
        }
        if (text.find("<!ENTITY") != std::string::npos) {
            continue;
        }
        for (const Form form : {Form::Plain, Form::BlankFree}) {
            ASSERT_EQ(told(Parsed(text, form)), told(ParsedByLibrary(text, form))) << text;
        }
    }
}

TEST(XmlDocumentTest, GivesTheWholeTreeOrNoneWhereverMemoryRunsOut)
{
    for (const std::string& text : {kGood, kGbk}) {
        const std::string whole = Parsed(text);
        const auto parse = [&text] {
            Problem problem;
            try {
                return ParseText(text, Form::Plain, problem);
            } catch (const std::bad_alloc&) {
                return Document();
            }
        };
        TestSupport::FailEachAllocation(parse, [&](const Document& document, bool struck) {
            ASSERT_TRUE(struck || document != nullptr);
            if (document != nullptr) {
                ASSERT_EQ(Dump(document.get()), whole);
            }
            ASSERT_EQ(Parsed(text), whole) << "the next document";
            ASSERT_EQ(Parsed(text), whole) << "one in a parser that was kept";
        });
    }
}

constexpr CapabilitySet::log::Place kPlace{"Common/CapabilitySet/Some.cpp", "void Some::Parse()",
                                           7};

TEST(XmlDocumentTest, LogsOneLineForEachDocumentThatIsNoneOfTheRoot)
{
    struct Case
    {
        std::string text;
        std::vector<std::string> lines;
    };
    const std::vector<Case> cases{
        {"", {}},
        {"<Root/>", {}},
        {"<Root xmlns='urn:x'/>", {}},
        {"<!-- c --><Root/>", {}},
        {"<root/>", {"The root element is mismatched with the XML."}},
        {"<Root>\n<a b='1' b='2'/></Root>",
         {"Cann't parse the XML, The error is at line[2], the error message is [Attribute b "
          "redefined\n]."}},
        {std::string("\0<Root/>", 8),
         {"Cann't parse the XML, The error is at line[0], the error message is []."}},
    };
    LogCapture log;
    for (const Case& each : cases) {
        log.Clear();
        bool isRead = false;
        WithRoot(each.text, "Root", kPlace, [&](xmlNode*) { isRead = true; });
        EXPECT_EQ(log.Messages(), each.lines) << each.text;
        EXPECT_EQ(isRead, each.lines.empty() && !each.text.empty());
    }
    ASSERT_EQ(log.Lines().size(), 1U);
    EXPECT_EQ(log.Lines()[0].level, "ERROR");
    EXPECT_EQ(log.Lines()[0].file, kPlace.file);
    EXPECT_EQ(log.Lines()[0].line, 7);
    log.Clear();
    WithRoot("<x/>", "Root", kPlace, [](xmlNode*) {}, Form::Plain,
             {.prefix = "[t] ", .document = "List "});
    WithRoot("<x/>", "Root", kPlace, [](xmlNode*) {}, Form::Plain, {.logsMismatch = false});
    EXPECT_THAT(log.Messages(),
                testing::ElementsAre("[t] The root element is mismatched with the List XML."));
}

}  // namespace
