// Ability documents: nothing that a device said is lost, and look-ups need no checks.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AbilityDocument.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/IntercomAbility.h"
#include "CapabilitySet/SerialAbility.h"
#include "CapabilitySet/SmartAbility.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"
#include "support/LogCapture.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using TestSupport::LogCapture;
using TestSupport::XmlTree;

PTZAbility Ability(const std::string& content, const std::string& attributes = "")
{
    return PTZAbility("<PTZAbility " + attributes + ">" + content + "</PTZAbility>");
}

/// An element written out again: names, attributes, text and children in their order.
std::string Outline(const AbilityElement& element)
{
    std::string outline = element.name;
    for (const auto& [name, text] : element.attributes) {
        outline += " " + name + "=" + text;
    }
    if (!element.text.empty()) {
        outline += " '" + element.text + "'";
    }
    if (element.children.empty()) {
        return outline;
    }
    outline += " {";
    for (const AbilityElement& child : element.children) {
        outline += " " + Outline(child) + ";";
    }
    return outline + " }";
}

TEST(AbilityDocumentTest, KeepsEverythingInTheDocumentsOrder)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {" <a> \n </a> ", "PTZAbility { a ' \n '; }"},
        {"<b>1</b> <a>2</a>\n<b> 3 </b>", "PTZAbility { b '1'; a '2'; b ' 3 '; }"},
        {"<a x='1' y=''/>", "PTZAbility { a x=1 y=; }"},
        {"loose <a/> text", "PTZAbility 'loose  text' { a; }"},
        {"<a>x<!--c--><![CDATA[<y>]]><?p i?>&amp;&#122;</a>", "PTZAbility { a 'x<y>&z'; }"},
        {"<n:a xmlns:n='urn:n' n:x='1' x='2'/>", "PTZAbility { a xmlns:n=urn:n n:x=1 x=2; }"},
        {"<a xmlns='urn:d'><a/></a>", "PTZAbility { a xmlns=urn:d { a; }; }"},
        {"<a opt='a&amp;b,&#9;c'/>", "PTZAbility { a opt=a&b,\tc; }"},
    };
    for (const auto& [content, outline] : cases) {
        const PTZAbility read = Ability(content);
        EXPECT_EQ(Outline(read.root), outline);
        EXPECT_TRUE(read.Capable());
        EXPECT_EQ(PTZAbility(XmlTree("<PTZAbility >" + content + "</PTZAbility>").Root()).root,
                  read.root)
            << content;
    }
    std::string deep = "<a>";
    for (int depth = 2; depth < 256; ++depth) {
        deep = "<a>" + deep + "</a>";
    }
    deep.insert(deep.find("</a>"), "bottom</a>");
    std::string path = "a";
    for (int depth = 2; depth < 256; ++depth) {
        path += "/a";
    }
    EXPECT_EQ(Ability(deep).Find(path).text, "bottom");
}

TEST(AbilityDocumentTest, FindsByPathAndOtherwiseGivesNothingToLookFurtherIn)
{
    const PTZAbility read =
        Ability("<D><w n='2'>1</w><w>2</w><D><x>3</x></D></D><D><y>4</y></D>", "version='2.0'");
    EXPECT_EQ(read.Find("D/w").text, "1") << "the first of a name";
    EXPECT_EQ(read.Find("D/D/x").text, "3");
    EXPECT_EQ(read.Find("D").Find("w").Attribute("n"), "2");
    EXPECT_EQ(read.Find("").Attribute("version"), "2.0") << "the element itself";
    EXPECT_EQ(read.Find("D/").children.size(), 3U);
    for (const char* path : {"D/y", "d", "D/w/n", "/D", "D//w", "PTZAbility", "x", "/"}) {
        const AbilityElement& nothing = read.Find(path);
        EXPECT_FALSE(nothing) << path;
        EXPECT_EQ(nothing.Find("a/b").Attribute("c"), "") << path;
    }
    EXPECT_FALSE(PTZAbility().Find("D"));
}

TEST(AbilityDocumentTest, OnlyADocumentOfItsOwnReplacesTheLastOne)
{
    const LogCapture log;
    PTZAbility read = Ability("<a>1</a>");
    const AbilityElement before = read.root;
    for (const char* none : {"", "<ptzAbility/>", "<PTZAbility>", "<VideoPicAbility/>",
                             "<PTZAbility v='2.0'/>", "<PTZAbility> text<!----></PTZAbility>"}) {
        read.Parse(none);
        EXPECT_FALSE(PTZAbility(none).Capable()) << none;
    }
    read.Parse(static_cast<_xmlNode*>(nullptr));
    EXPECT_EQ(read.root, before);
    EXPECT_EQ(log.Lines().size(), 6U) << "a root without elements is none to tell of";
    read.Parse("<PTZAbility><b/></PTZAbility>");
    EXPECT_EQ(Outline(read.root), "PTZAbility { b; }") << "replaced whole";
}

TEST(AbilityDocumentTest, AcceptsTheRootThatDevicesAreAskedWith)
{
    const auto read = []<class Record>(const Record& /*type*/, const std::string& root) {
        const Record record("<" + root + "><a/></" + root + ">");
        EXPECT_TRUE(record.Capable() && record.Find("a")) << root;
        EXPECT_EQ(record.root.name, root);
    };
    for (const bool asked : {false, true}) {
        read(CameraPara(), asked ? "CAMERAPARA" : "CameraPara");
        read(VcaAbility(), asked ? "VcaChanAbility" : "VcaAbility");
        read(FishEyeAbility(), asked ? "FishEyeIPCAbility" : "FishEyeAbility");
        read(IntercomDeviceIpViewAbility(),
             asked ? "IpViewDevAbility" : "IntercomDeviceIpViewAbility");
        read(CodeSubSystemAbility(), asked ? "VideoPlatformAbility" : "CodeSubSystemAbility");
    }
}

TEST(AbilityDocumentTest, LogsAWrongRootWithTheRecordsOwnPlace)
{
    struct Case
    {
        std::function<void()> parse;
        const char* file;
        const char* function;
    };
    const std::vector<Case> cases{
        {[] { FishEyeAbility("<a/>"); }, "ChannelAbility.cpp", "FishEyeAbility::Parse"},
        {[] { SerialAbility("<a/>"); }, "SerialAbility.cpp", "SerialAbility::Parse"},
        {[] { CMSearchResult("<a/>"); }, "XMLConfig/XMLConfigApp.cpp", "CMSearchResult::Parse"},
        {[] { PortRateList().Parse("<a/>"); }, "XMLParamInterface/SwitchConfig.cpp",
         "PortRateList::Parse"},
        {[] { BasicCapability("<a/>"); }, "BasicCapability.cpp", "BasicCapability::Parse"},
    };
    LogCapture log;
    for (const Case& each : cases) {
        log.Clear();
        each.parse();
        ASSERT_EQ(log.Lines().size(), 1U) << each.function;
        EXPECT_EQ(log.Lines()[0].file, std::string("Common/CapabilitySet/") + each.file);
        EXPECT_EQ(log.Lines()[0].function, std::string("CapabilitySet::") + each.function);
        EXPECT_GT(log.Lines()[0].line, 0);
    }
}

}  // namespace
