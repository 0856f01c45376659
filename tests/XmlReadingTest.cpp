// The forward cursor, texts and attributes of nodes, and values from them.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlReading.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/AllocationFaults.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet::xml;
using testing::ElementsAre;
using TestSupport::AllocationFault;
using TestSupport::XmlTree;

TEST(XmlReadingTest, CursorTakesElementsOnlyFromWhereItStandsOn)
{
    const XmlTree tree("<r> <!--a--><?a x?><a n='1'/>a<![CDATA[a]]><A/><b/><a n='2'/></r>");
    xmlNode* cursor = tree.First();
    ASSERT_TRUE(NextElementNamed(cursor, "a"));
    xmlNode* const first = cursor;
    EXPECT_TRUE(NextElementNamed(cursor, "a"));
    EXPECT_EQ(cursor, first) << "the element under the cursor counts";
    cursor = cursor->next;
    ASSERT_TRUE(NextElementNamed(cursor, "a"));
    std::string spare;
    std::string_view value;
    ASSERT_TRUE(AttributeOf(cursor, "n", spare, value));
    EXPECT_EQ(value, "2");
    xmlNode* const before = cursor;
    EXPECT_FALSE(NextElementNamed(cursor, "b"));
    EXPECT_EQ(cursor, before) << "a search that fails leaves the cursor";
    cursor = nullptr;
    EXPECT_FALSE(NextElementNamed(cursor, "a"));
}

TEST(XmlReadingTest, ReadsTextInOnePieceAndInMany)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"<a/>", ""},
        {"<a></a>", ""},
        {"<a> 30 </a>", " 30 "},
        {"<a><![CDATA[<x>]]></a>", "<x>"},
        {"<a>1<!-- 2 -->3<![CDATA[4]]></a>", "134"},
        {"<a>x<b>y<c>z</c></b></a>", "xyz"},
        {"<a>&lt;&#65;&amp;</a>", "<A&"},
        {"<a><!-- alone --></a>", ""},
        {"<!DOCTYPE a [<!ENTITY e 'deep'>]><a>&e; water</a>", "deep water"},
    };
    for (const auto& [document, text] : cases) {
        EXPECT_EQ(GetNodeString(XmlTree(document).Root()), text) << document;
    }
    EXPECT_EQ(GetNodeString(XmlTree("<a><?Default 5?></a>").First()), "5");
    EXPECT_EQ(GetNodeString(nullptr), "");
    EXPECT_EQ(GetNodeInt(nullptr), 0);
    EXPECT_EQ(GetNodeUInt(nullptr), 0U);
    EXPECT_EQ(XmlCharToString(nullptr), "");
    EXPECT_EQ(GetNodeUInt(XmlTree("<a>-1</a>").Root()), 4294967295U);
    EXPECT_EQ(GetNodeInt(XmlTree("<a> 12<!---->abc</a>").Root()), 12);
}

TEST(XmlReadingTest, TakesOnlyTwoTextsForTrue)
{
    for (const char* text : {"true", "1"}) {
        EXPECT_TRUE(GetNodeBool(XmlTree(std::string("<a>") + text + "</a>").Root())) << text;
    }
    for (const char* text : {"", "True", "TRUE", " true", "true ", "0", "01", "2", "yes"}) {
        EXPECT_FALSE(GetNodeBool(XmlTree(std::string("<a>") + text + "</a>").Root())) << text;
    }
    EXPECT_FALSE(GetNodeBool(nullptr));
}

TEST(XmlReadingTest, ReadsAttributesWhereverTheirTextStands)
{
    const XmlTree tree(
        "<!DOCTYPE r [<!ATTLIST r declared CDATA 'given'><!ENTITY e 'x'>]>"
        "<r empty='' plain='a,b' pieces='&e;&amp;y' xmlns:n='u' n:spaced='s'/>");
    const std::vector<std::pair<const char*, std::string>> cases{
        {"empty", ""}, {"plain", "a,b"}, {"pieces", "x&y"}, {"spaced", "s"}, {"declared", "given"}};
    for (const auto& [name, text] : cases) {
        std::string spare;
        std::string_view value = "before";
        EXPECT_TRUE(AttributeOf(tree.Root(), name, spare, value)) << name;
        EXPECT_EQ(value, text) << name;
    }
    std::string spare;
    std::string_view value = "before";
    EXPECT_FALSE(AttributeOf(tree.Root(), "missing", spare, value));
    EXPECT_FALSE(AttributeOf(tree.Root(), "Plain", spare, value));
}

TEST(XmlReadingTest, SplitsOptionsWithoutTrimmingAndDropsEmptyOnes)
{
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases{
        {"1,2,,3,", {"1", "2", "3"}}, {"", {}},        {",,,", {}}, {"a, b", {"a", " b"}},
        {",a,a", {"a", "a"}},         {"one", {"one"}}};
    for (const auto& [text, pieces] : cases) {
        std::vector<std::string> target{"before"};
        SplitOptions(target, text);
        EXPECT_EQ(target, pieces) << text;
    }
}

TEST(XmlReadingTest, NeverTakesATextCutShortForTheWhole)
{
    const XmlTree tree("<a b='1&#50;3'><c/>" + std::string(300, 'x') + "<c/></a>");
    std::size_t ordinal = 0;
    for (bool struck = true; struck;) {
        const AllocationFault fault(AllocationFault::Xml, ++ordinal);
        std::string text;
        try {
            text = GetNodeString(tree.Root());
        } catch (const std::bad_alloc&) {
            text = "refused";
        }
        struck = AllocationFault::Struck();
        EXPECT_EQ(text, struck ? "refused" : std::string(300, 'x')) << ordinal;
    }
    EXPECT_GT(ordinal, 2U) << "a text in pieces takes memory";
}

TEST(XmlReadingTest, OnlyTheOutermostReadingSwallowsAnException)
{
    bool reached = false;
    EndAtException([&] {
        EndAtException([] { throw std::runtime_error("deep"); });
        reached = true;
    });
    EXPECT_FALSE(reached) << "a failure in a nested record ends the whole reading";
    EndAtException([&] { reached = true; });
    EXPECT_TRUE(reached);
}

}  // namespace
