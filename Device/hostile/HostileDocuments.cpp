// The table of hostile cases.
// SPDX-License-Identifier: Apache-2.0
#include "Device/hostile/HostileDocuments.h"

#include <algorithm>

#include "Device/document/Text.h"
#include "Device/hostile/Bombs.h"
#include "Device/hostile/HostileJson.h"
#include "Device/hostile/HostileXml.h"

namespace Device
{
namespace
{

using Text = const std::string&;

constexpr char kHugeNumber[] = "99999999999999999999999999";
std::string Redeclared(Text sample, Text encoding)
{
    return ReplaceAll(sample, "encoding=\"UTF-8\"", "encoding=\"" + encoding + "\"");
}

std::string Spoiled(Text sample, const XmlSpoiling& spoiling)
{
    return kXmlDeclaration + SpoilXml(sample, spoiling);
}

template <int Percent>
std::string Truncated(Text, Text sample)
{
    return sample.substr(0, sample.size() * Percent / 100);
}

// Ends inside the first attribute.
std::string TruncatedInAttribute(Text, Text sample)
{
    const size_t root = sample.find('<', sample.find('<') + 1);
    return sample.substr(0, sample.find('"', root) + 2);
}

std::string TruncatedInRootTag(Text root, Text)
{
    return kXmlDeclaration + ("<" + root.substr(0, root.size() / 2 + 1));
}

std::string WithNul(Text, Text sample)
{
    std::string text = sample;
    text[text.size() / 2] = '\0';
    return text;
}

std::string OtherCase(std::string name)
{
    for (char& c : name) {
        c = static_cast<char>((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ? c ^ 0x20 : c);
    }
    return name;
}

std::string ToUtf16(Text text)
{
    std::string out = "\xff\xfe";
    for (const char c : text) {
        // The samples are ASCII; other bytes become the character with that number.
        out += c;
        out += '\0';
    }
    return out;
}

std::string WithNumbers(Text sample, std::string_view number)
{
    XmlSpoiling spoiling;
    spoiling.number = number;
    return Spoiled(sample, spoiling);
}

std::string WithTexts(Text sample, std::function<std::string(Text)> text)
{
    XmlSpoiling spoiling;
    spoiling.text = std::move(text);
    return Spoiled(sample, spoiling);
}

std::string WithBetween(Text sample, std::string_view between)
{
    XmlSpoiling spoiling;
    spoiling.between = between;
    return Spoiled(sample, spoiling);
}

std::string Reversed(Text, Text sample)
{
    XmlSpoiling spoiling;
    spoiling.reverse = true;
    return Spoiled(sample, spoiling);
}

std::string Duplicated(Text, Text sample)
{
    XmlSpoiling spoiling;
    spoiling.copies = 2;
    return Spoiled(sample, spoiling);
}

std::string ErrorPage(Text, Text)
{
    return "<!DOCTYPE html>\n<html><head><title>Login</title><meta charset=utf-8></head>\n"
           "<body><h1>Please log in</h1><br><form action=/login><input name=user></form></body>"
           "</html>\n";
}

// Repeats the document's members.
std::string JsonDuplicated(Text, Text sample)
{
    const size_t first = sample.find('{') + 1;
    return JsonWithMembers(sample, sample.substr(first, sample.rfind('}') - first) + ",");
}

// A Chinese character in the code page that older devices use.
constexpr char kGbk[] = "\xd6\xd0";
constexpr char kBrokenUtf8[] = "ok \xc3( \xed\xa0\x80 \xf8 \xff";
constexpr char kByteOrderMark[] = "\xef\xbb\xbf";
constexpr char kBlanks[] = " \t\r\n";

std::string NamedJson(Text root, Text name)
{
    return "{\"" + root + R"(": {"name": ")" + name + "\"}}\n";
}

constexpr HostileCase kCases[] = {
    {"malformed", "a tag that is never closed",
     [](Text root, Text sample) { return ReplaceAll(sample, "</" + root + ">", "<open>"); },
     [](Text, Text sample) { return ReplaceAll(sample, ":", " "); }},
    {"truncated1", "ends after a hundredth", &Truncated<1>, &Truncated<1>},
    {"truncated10", "ends after a tenth", &Truncated<10>, &Truncated<10>},
    {"truncated25", "ends after a quarter", &Truncated<25>, &Truncated<25>},
    {"truncated50", "ends in the middle", &Truncated<50>, &Truncated<50>},
    {"truncated75", "ends after three quarters", &Truncated<75>, &Truncated<75>},
    {"truncated90", "ends after nine tenths", &Truncated<90>, &Truncated<90>},
    {"truncatedInRootTag", "ends inside the name of the root", &TruncatedInRootTag,
     [](Text root, Text) { return "{\"" + root.substr(0, root.size() / 2 + 1); }},
    {"truncatedInAttribute", "ends inside the first attribute", &TruncatedInAttribute, nullptr},
    {"truncatedInEndTag", "only the last bracket is missing",
     [](Text, Text sample) { return sample.substr(0, sample.rfind('>')); },
     [](Text, Text sample) { return sample.substr(0, sample.rfind('}')); }},
    {"empty", "nothing at all", [](Text, Text) { return std::string(); },
     [](Text, Text) { return std::string(); }},
    {"blanks", "blanks and line ends only", [](Text, Text) { return Repeat(kBlanks, 1000); },
     [](Text, Text) { return Repeat(kBlanks, 1000); }},
    {"nulInside", "a NUL byte in the middle", &WithNul, &WithNul},
    {"nulFirst", "a NUL byte before the document",
     [](Text, Text sample) { return std::string(1, '\0') + sample; },
     [](Text, Text sample) { return std::string(1, '\0') + sample; }},
    {"outOfOrder", "all elements in reverse order", &Reversed, nullptr},
    {"wrongRoot", "another root",
     [](Text root, Text sample) { return RootedXml("Other" + root, XmlContent(sample)); },
     [](Text root, Text sample) { return JsonRenamed(sample, root, "Other" + root); }},
    {"rootWrongCase", "the root's name with upper and lower case swapped",
     [](Text root, Text sample) { return RootedXml(OtherCase(root), XmlContent(sample)); },
     [](Text root, Text sample) { return JsonRenamed(sample, root, OtherCase(root)); }},
    {"defaultNamespace", "a default namespace on the root",
     [](Text root, Text sample) {
         return RootedXml(root, XmlContent(sample), " xmlns=\"http://example.com/ns\"");
     },
     nullptr},
    {"prefixedRoot", "the root in a namespace with a prefix",
     [](Text root, Text sample) {
         return kXmlDeclaration + ("<p:" + root + " xmlns:p=\"http://example.com/ns\">") +
                XmlContent(sample) + "</p:" + root + ">";
     },
     nullptr},
    {"duplicateElements", "every element twice at each level", &Duplicated, &JsonDuplicated},
    {"emptyElements", "every text empty",
     [](Text, Text sample) { return WithTexts(sample, [](Text) { return std::string(); }); },
     [](Text, Text sample) { return JsonWithTexts(sample, ""); }},
    {"unknownElements", "ten thousand unknown elements around the known ones", &UnknownElements,
     [](Text, Text sample) {
         return JsonWithMembers(sample, Repeat(R"("unknown": {"x": 2},)", 10000));
     }},
    {"wrongKinds", "elements instead of texts; arrays for objects, texts for numbers",
     [](Text, Text sample) {
         return WithTexts(sample, [](Text text) { return "<v><v>" + text + "</v></v>"; });
     },
     [](Text, Text sample) { return JsonWithWrongKinds(sample); }},
    {"oversized", "20 MB of unknown elements", &OversizedXml, &OversizedJson},
    {"undeclaredGbk", "texts in GBK, not declared",
     [](Text, Text sample) { return WithTexts(sample, [](Text text) { return kGbk + text; }); },
     [](Text root, Text) { return NamedJson(root, kGbk); }},
    {"brokenUtf8", "texts in broken UTF-8",
     [](Text, Text sample) {
         return WithTexts(sample, [](Text text) { return text + kBrokenUtf8; });
     },
     [](Text root, Text) { return NamedJson(root, kBrokenUtf8); }},
    {"wrongEncoding", "declares UTF-16 but is UTF-8",
     [](Text, Text sample) { return Redeclared(sample, "UTF-16"); }, nullptr},
    {"unknownEncoding", "declares an unknown encoding",
     [](Text, Text sample) { return Redeclared(sample, "X-NO-SUCH-1"); }, nullptr},
    {"declaredGbk", "texts in GBK, declared as such",
     [](Text, Text sample) {
         return Redeclared(WithTexts(sample, [](Text text) { return kGbk + text; }), "GBK");
     },
     nullptr},
    {"utf16", "UTF-16 with a byte order mark",
     [](Text, Text sample) { return ToUtf16(Redeclared(sample, "UTF-16")); },
     [](Text, Text sample) { return ToUtf16(sample); }},
    {"byteOrderMark", "UTF-8 with a byte order mark",
     [](Text, Text sample) { return kByteOrderMark + sample; },
     [](Text, Text sample) { return kByteOrderMark + sample; }},
    {"entityBomb", "thirty entities, each with ten of the one before", &NestedBomb, nullptr},
    {"flatEntityBomb", "one long entity, 14,000 times in a text", &FlatBomb, nullptr},
    {"attributeEntityBomb", "one long entity, 2,000 times in an attribute", &AttributeBomb,
     nullptr},
    {"externalFile", "an entity that names a file of the client",
     [](Text root, Text) { return ExternalEntity(root, "file:///etc/hostname"); }, nullptr},
    {"externalHttp", "an entity that names a web server",
     [](Text root, Text) { return ExternalEntity(root, "http://127.0.0.1:9/hostile.txt"); },
     nullptr},
    {"parameterEntities", "parameter entities that make and fetch others", &ParameterEntities,
     nullptr},
    {"attributeDefaults", "a document type with defaults for attributes", &AttributeDefaults,
     nullptr},
    {"nested256", "256 levels of elements", &NestedXml<256>, &NestedJson<256>},
    {"nested1000", "1,000 levels of elements", &NestedXml<1000>, &NestedJson<1000>},
    {"nestedMillion", "a million levels", &NestedXml<1000000>, &NestedJson<1000000>},
    {"manyAttributes", "100,000 attributes on the root; 100,000 members", &ManyAttributes,
     &ManyMembers},
    {"hugeNumbers", "numbers too large for any integer",
     [](Text, Text sample) { return WithNumbers(sample, kHugeNumber); },
     [](Text, Text sample) { return JsonWithNumbers(sample, kHugeNumber); }},
    {"negativeNumbers", "numbers below zero",
     [](Text, Text sample) { return WithNumbers(sample, "-2147483649"); },
     [](Text, Text sample) { return JsonWithNumbers(sample, "-2147483649"); }},
    {"hexNumbers", "hexadecimal numbers",
     [](Text, Text sample) { return WithNumbers(sample, "0x1F"); },
     [](Text, Text sample) { return JsonWithNumbers(sample, "\"0x1F\""); }},
    {"lettersInNumbers", "numbers followed by letters",
     [](Text, Text sample) { return WithNumbers(sample, " 12abc"); },
     [](Text, Text sample) { return JsonWithNumbers(sample, "\"12abc\""); }},
    {"exponents", "numbers with fractions and exponents",
     [](Text, Text sample) { return WithNumbers(sample, "1.5e300"); },
     [](Text, Text sample) { return JsonWithNumbers(sample, "1.5e300"); }},
    {"longText", "a text of 4 MB", &LongTexts, &LongJsonTexts},
    {"htmlPage", "the login page of a web server", &ErrorPage, &ErrorPage},
    {"otherForm", "JSON instead of XML, XML instead of JSON",
     [](Text root, Text) { return "{\"" + root + "\": {\"channelNO\": 1}}\n"; }, nullptr},
    {"comments", "comments before and after every element",
     [](Text, Text sample) { return WithBetween(sample, "<!-- <channelNO>7</channelNO> -->\n"); },
     [](Text, Text sample) { return ReplaceAll(sample, ",", ", /* , */ // ,\n"); }},
    {"processingInstructions", "processing instructions before and after every element",
     [](Text, Text sample) { return WithBetween(sample, "<?device reboot?>"); }, nullptr},
    {"cdata", "every text as a CDATA section",
     [](Text, Text sample) {
         return WithTexts(sample, [](Text text) { return "<![CDATA[" + text + "]]>"; });
     },
     nullptr},
    {"cutTexts", "every text in pieces: comment, CDATA section and reference inside",
     [](Text, Text sample) {
         return WithTexts(sample, [](Text text) {
             return "<!--x-->" + text + "<![CDATA[]]><?y?>&#32;<!--z-->";
         });
     },
     nullptr},
    {"mixedContent", "loose text between all elements",
     [](Text, Text sample) { return WithBetween(sample, " 1 loose &amp; text "); }, nullptr},
};

// Content for roots without a sound document.
std::string GenericXml(Text root)
{
    return RootedXml(root,
                     "\n  <channelNO>1</channelNO>\n  <enabled opt=\"true,false\">true</enabled>\n"
                     "  <alarmTime>30</alarmTime>\n  <sensitivityLevel min=\"0\" max=\"100\"/>\n"
                     "  <duration><Min>0</Min><Max>60</Max><Default>5</Default></duration>\n"
                     "  <List><Item><id>1</id><name>one</name></Item>"
                     "<Item><id>2</id><name>two</name></Item></List>\n");
}

std::string GenericJson(Text root)
{
    return "{\"" + root +
           "\": {\"id\": 1, \"enabled\": true, \"name\": \"one\", \"level\": {\"@min\": 0, "
           "\"@max\": 100, \"@opt\": [\"a\", \"b\"]}, \"List\": [{\"id\": 1}, {\"id\": 2}]}}\n";
}

}  // namespace

std::span<const HostileCase> HostileCases()
{
    return kCases;
}

const HostileCase* FindHostileCase(std::string_view name)
{
    const auto* found = std::ranges::find(kCases, name, &HostileCase::name);
    return found == std::end(kCases) ? nullptr : found;
}

std::string MakeHostileXml(const HostileCase& hostile, const std::string& root,
                           const std::string& sample)
{
    const std::string sound = SpoilXml(sample, {});
    return hostile.makeXml(root, sound.empty() ? GenericXml(root) : kXmlDeclaration + sound);
}

std::string MakeHostileJson(const HostileCase& hostile, const std::string& root,
                            const std::string& sample)
{
    if (hostile.makeJson == nullptr) {
        return MakeHostileXml(hostile, root);
    }
    const bool object =
        sample.find('{') != std::string::npos && sample.rfind('}') != std::string::npos;
    return hostile.makeJson(root, object ? sample : GenericJson(root));
}

}  // namespace Device
