// Documents that exhaust a reader.
// SPDX-License-Identifier: Apache-2.0
#include "Device/hostile/Bombs.h"

#include "Device/hostile/HostileJson.h"
#include "Device/hostile/HostileXml.h"

namespace Device
{
namespace
{

using Text = const std::string&;

constexpr size_t kOversize = 20'000'000;

std::string LongText()
{
    return Repeat("x", 4'000'000);
}

std::string WithDocumentType(Text root, Text definitions, Text inner)
{
    return kXmlDeclaration + ("<!DOCTYPE " + root + " [\n" + definitions + "]>\n<" + root + ">") +
           inner + "</" + root + ">\n";
}

}  // namespace

std::string Repeat(std::string_view text, size_t times)
{
    std::string out;
    out.reserve(text.size() * times);
    for (size_t i = 0; i < times; ++i) {
        out += text;
    }
    return out;
}

std::string XmlContent(Text document)
{
    const std::string sound = SpoilXml(document, {});
    const size_t first = sound.find('>') + 1;
    const size_t last = sound.rfind('<');
    return first < last ? sound.substr(first, last - first) : std::string();
}

std::string RootedXml(Text root, Text inner, Text attributes)
{
    return kXmlDeclaration + ("<" + root + " version=\"2.0\"" + attributes + ">") + inner + "</" +
           root + ">\n";
}

std::string OversizedXml(Text root, Text sample)
{
    return RootedXml(root, Repeat("<unknown>1</unknown>", kOversize / 20) + XmlContent(sample));
}

std::string LongTexts(Text root, Text sample)
{
    return RootedXml(root, "<deviceId>" + LongText() + "</deviceId><enabled opt=\"" + LongText() +
                               "\"/>" + XmlContent(sample));
}

std::string UnknownElements(Text root, Text sample)
{
    const std::string unknown = Repeat("<unknownElement a=\"1\"><x>2</x></unknownElement>", 5000);
    return RootedXml(root, unknown + XmlContent(sample) + unknown);
}

std::string NestedBomb(Text root, Text)
{
    std::string definitions = "<!ENTITY e0 \"ha\">\n";
    for (int i = 1; i < 30; ++i) {
        const std::string previous = "&e" + std::to_string(i - 1) + ";";
        definitions += "<!ENTITY e" + std::to_string(i) + " \"" + Repeat(previous, 10) + "\">\n";
    }
    return WithDocumentType(root, definitions, "<channelNO>&e29;</channelNO>");
}

std::string FlatBomb(Text root, Text)
{
    return WithDocumentType(root, "<!ENTITY a \"" + std::string(40000, 'a') + "\">\n",
                            "<channelNO>" + Repeat("&a;", 14000) + "</channelNO>");
}

std::string AttributeBomb(Text root, Text)
{
    return WithDocumentType(root, "<!ENTITY a \"" + std::string(4000, 'a') + "\">\n",
                            "<enabled opt=\"" + Repeat("&a;", 2000) + "\"/>");
}

std::string ExternalEntity(Text root, Text location)
{
    return WithDocumentType(root, "<!ENTITY outside SYSTEM \"" + location + "\">\n",
                            "<channelNO>&outside;</channelNO><deviceId>&outside;</deviceId>");
}

std::string ParameterEntities(Text root, Text)
{
    return WithDocumentType(root,
                            "<!ENTITY % load SYSTEM \"http://127.0.0.1:9/hostile.dtd\">\n"
                            "<!ENTITY % make \"<!ENTITY made 'made'>\">\n%make;\n%load;\n",
                            "<channelNO>&made;</channelNO>");
}

std::string AttributeDefaults(Text root, Text sample)
{
    return WithDocumentType(
        root, "<!ATTLIST enabled opt CDATA \"true\" min CDATA \"1\" max CDATA \"9\">\n",
        "<enabled/>" + XmlContent(sample));
}

std::string ManyAttributes(Text root, Text sample)
{
    std::string attributes;
    for (int i = 0; i < 100000; ++i) {
        attributes += " a" + std::to_string(i) + "=\"1\"";
    }
    return RootedXml(root, XmlContent(sample), attributes);
}

std::string OversizedJson(Text, Text sample)
{
    return JsonWithMembers(sample, Repeat(R"("unknown": "1234567",)", kOversize / 20));
}

std::string LongJsonTexts(Text root, Text)
{
    return "{\"" + root + "\": {\"" + LongText() + "\": \"" + LongText() + "\"}}\n";
}

std::string ManyMembers(Text, Text sample)
{
    std::string members;
    for (int i = 0; i < 100000; ++i) {
        members += "\"a" + std::to_string(i) + "\": 1,";
    }
    return JsonWithMembers(sample, members);
}

}  // namespace Device
