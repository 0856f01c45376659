// The element types that capability records share, and the rules by which each counts as announced.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/CapabilityElements.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using TestSupport::XmlTree;
using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

std::string Element(const std::string& attributes, const std::string& children = "")
{
    return "<e " + attributes + ">" + children + "</e>";
}

TEST(CapabilityElementsTest, OptionsFollowThePresenceOfTheirAttributes)
{
    struct
    {
        const char* attributes;
        bool capable;
        Texts opt;
        Texts attri;
    } const cases[] = {
        {"", false, {}, {}},
        {"Opt='a' options='b'", false, {}, {}},
        {"opt=''", true, {}, {}},
        {"attri=''", true, {}, {}},
        {"opt='1,2,,3,' attri='x, y'", true, {"1", "2", "3"}, {"x", " y"}},
        {"attri='b,a,b'", true, {}, {"b", "a", "b"}},
    };
    for (const auto& [attributes, capable, opt, attri] : cases) {
        SCOPED_TRACE(attributes);
        const XmlTree tree(Element(attributes, "<opt>c</opt>"));
        const OptElement<std::string> read(tree.Root());
        EXPECT_EQ(read.Capable(), capable);
        EXPECT_EQ(read.opt, opt);
        EXPECT_EQ(read.attri, attri);
    }
    OptElement<std::string> twice(XmlTree(Element("opt='a' attri='b'")).Root());
    twice.Parse(XmlTree(Element("opt='c'")).Root());
    twice.Parse(nullptr);
    EXPECT_THAT(twice.opt, ElementsAre("c")) << "replaced";
    EXPECT_THAT(twice.attri, ElementsAre("b")) << "kept: the second element tells nothing of it";
}

struct BoundsCase
{
    const char* document;
    bool capable;
    unsigned min;
    unsigned max;
    int def = -1;  ///< -1: none
};

TEST(CapabilityElementsTest, BoundsOfChildrenCountOnlyTogetherAndTheirDefaultOnlyWithBoth)
{
    const BoundsCase cases[] = {
        {"<Min>0</Min><Max>100</Max>", true, 0, 100},
        {"<Min>0</Min><Max>0</Max><Default>0</Default>", true, 0, 0, 0},
        {" <Min>1</Min> <!--x--> <Max>9</Max> <more/> <Default>5</Default>", true, 1, 9, 5},
        {"<Min>1</Min><Max>9</Max><Default></Default>", true, 1, 9},
        {"<Min></Min><Max>100</Max><Default>5</Default>", false, 0, 100},
        {"<Min>7</Min><Max/><Default>5</Default>", false, 7, 0},
        {"<Min>7</Min><Default>5</Default>", false, 7, 0},
        {"<Max>9</Max><Min>1</Min>", false, 1, 0},  // the maximum stands before the minimum's node
        {"<Default>5</Default><Min>1</Min><Max>9</Max>", true, 1, 9},
        {"<Min/><Min>3</Min><Max>9</Max>", false, 0, 9},
        {"<Min>-1</Min><Max>x</Max>", true, 4294967295U, 0},
        {"<Min> </Min><Max>99999999999</Max>", true, 0, 4294967295U},
        {"", false, 0, 0},
    };
    for (const auto& [document, capable, min, max, def] : cases) {
        SCOPED_TRACE(document);
        const XmlTree tree(Element("min='3' max='4'", document));
        const MinMaxElement read(tree.First());
        EXPECT_EQ(read.capable, capable);
        EXPECT_EQ(read.min, min);
        EXPECT_EQ(read.max, max);
        EXPECT_EQ(read.hasDefault, def >= 0);
        EXPECT_EQ(read.def, def >= 0 ? static_cast<unsigned>(def) : 0U);
    }
    EXPECT_FALSE(MinMaxElement(nullptr).capable);
}

TEST(CapabilityElementsTest, BoundsOfAttributesThatAreBothZeroCountInOneTypeOnly)
{
    const BoundsCase cases[] = {
        {"min='0' max='0'", true, 0, 0}, {"min='0' max='1'", true, 0, 1},
        {"min='5' max='0'", true, 5, 0}, {"min='x' max='y'", true, 0, 0},
        {"min='' max='7'", false, 0, 7}, {"min='7' max=''", false, 7, 0},
        {"max='7'", false, 0, 7},        {"Min='1' Max='2'", false, 0, 0},
        {"max='9' min='8'", true, 8, 9},
    };
    for (const auto& [document, capable, min, max, def] : cases) {
        SCOPED_TRACE(document);
        const XmlTree tree(Element(document, "<Min>3</Min><Max>4</Max><Default>5</Default>"));
        MinMaxElement range;
        range.ParseProp(tree.Root());
        MinMaxPropElement property;
        property.Parse(tree.Root());
        EXPECT_EQ(range.capable, capable && (min != 0 || max != 0));
        EXPECT_EQ(property.capable, capable);
        EXPECT_EQ((Numbers{static_cast<int>(range.min), static_cast<int>(range.max)}),
                  (Numbers{static_cast<int>(min), static_cast<int>(max)}));
        EXPECT_EQ(property.min, min);
        EXPECT_EQ(property.max, max);
        EXPECT_FALSE(range.hasDefault);
        const MinMaxPropElement constructed(tree.Root());
        EXPECT_FALSE(constructed.capable) << "its constructor reads nothing";
        EXPECT_EQ(constructed.max, 0U);
    }
    MinMaxElement range;
    range.ParseProp(nullptr);
    MinMaxPropElement property;
    property.Parse(nullptr);
    EXPECT_FALSE(range.capable || property.capable);
}

TEST(CapabilityElementsTest, ListsTakeADefaultOnlyFromTheNodeTheyStartAt)
{
    struct
    {
        const char* children;
        bool capable;
        Numbers range;
        bool hasDefault;
    } const cases[] = {
        {"<Range>1,2,4</Range>", true, {1, 2, 4}, false},
        {"<Range>-1, 2,,x,3a</Range>", true, {-1, 2, 0, 3}, false},
        {"<Range></Range>", false, {}, false},
        {"<Range>,,</Range>", false, {}, false},
        {"<Default>5</Default><Range>1</Range>", true, {1}, true},
        {"<Default></Default><Range>1</Range>", true, {1}, false},
        {"<Default>5</Default><Range/>", false, {}, false},
        {" <Default>5</Default><Range>1</Range>", true, {1}, false},
        {"<Range>1</Range><Default>5</Default>", true, {1}, false},
        {"<x/><Range>1</Range><Range>2</Range>", true, {1}, false},
        {"<range>1</range>", false, {}, false},
    };
    for (const auto& [children, capable, range, hasDefault] : cases) {
        SCOPED_TRACE(children);
        const XmlTree tree(Element("", children));
        const RangeElement read(tree.First());
        EXPECT_EQ(read.capable, capable);
        EXPECT_EQ(read.range, range);
        EXPECT_EQ(read.hasDefault, hasDefault);
        EXPECT_EQ(read.def, hasDefault ? 5U : 0U);
    }
    EXPECT_FALSE(RangeElement(nullptr).capable);
    RangeElement twice(XmlTree(Element("", "<Range>1,2</Range>")).First());
    twice.Parse(XmlTree(Element("", "<Range>3</Range>")).First());
    EXPECT_THAT(twice.range, ElementsAre(3)) << "cleared when there is another list";
    twice.Parse(nullptr);
    EXPECT_THAT(twice.range, ElementsAre(3));
}

TEST(CapabilityElementsTest, BoundsAndListTogetherNeverGiveTheListADefault)
{
    const std::string bounds = "<Min>1</Min><Max>9</Max>";
    struct
    {
        std::string children;
        bool bounds;
        Numbers range;
    } const cases[] = {
        {bounds, true, {}},
        {"<Range>1,2</Range>", false, {1, 2}},
        {bounds + "<Range>1,2</Range>", true, {1, 2}},
        {bounds + "<Default>5</Default><Range>3</Range>", true, {3}},
        {" <Min>1</Min>\n<Max>9</Max>\n<Default>5</Default>\n<Range>3</Range>", true, {3}},
        {bounds + "<Default>5</Default>", true, {}},
        {"<Range>3</Range>" + bounds, true, {}},  // the list stands where the bounds are due
        {"<Range>3</Range><x/>" + bounds, true, {}},
        {"<Min>1</Min><Range>3</Range><Max>9</Max>", true, {}},
        {"<Min>1</Min><Range>3</Range>", false, {3}},
        {"<Default>5</Default><Range>3</Range><Min>1</Min>", false, {3}},
        {"", false, {}},
    };
    for (const auto& [children, hasBounds, range] : cases) {
        SCOPED_TRACE(children);
        const XmlTree tree(Element("", children));
        const MinMaxOrRangeElement read(tree.First());
        EXPECT_EQ(read.minMax.capable, hasBounds);
        EXPECT_EQ(read.range.range, range);
        EXPECT_EQ(read.range.capable, !range.empty());
        EXPECT_EQ(read.capable, hasBounds || !range.empty());
        if (hasBounds) {
            EXPECT_FALSE(read.range.hasDefault);
        }
    }
    EXPECT_FALSE(MinMaxOrRangeElement(nullptr).capable);
}

TEST(CapabilityElementsTest, JsonOptionsAreAppendedUpToTheFirstOfTheWrongKind)
{
    struct
    {
        const char* text;
        bool capable;
        Texts opt;
    } const cases[] = {
        {R"({"@opt": ["a", "b"]})", true, {"a", "b"}},
        {R"({"@opt": [1, true, null, "c"]})", true, {"1", "true", "", "c"}},
        {R"({"@opt": ["a", {"x": 1}, "b"]})", true, {"a"}},
        {R"({"@opt": []})", true, {}},
        {R"({"@opt": "a,b"})", true, {}},
        {R"({"@opt": {"a": 1}})", true, {}},
        {R"({"@opt": null})", false, {}},
        {R"({"opt": ["a"]})", false, {}},
        {"{}", false, {}},
        {"null", false, {}},
        {R"(["@opt"])", false, {}},
        {R"("@opt")", false, {}},
        {"no JSON", false, {}},
        {R"({"@opt": ["a"])", false, {}},
        {"", false, {}},
        {R"(// a comment
            {"@opt": ["a"]} behind)",
         true,
         {"a"}},
    };
    for (const auto& [text, capable, opt] : cases) {
        const OptJsonElement read{std::string(text)};
        EXPECT_EQ(read.capable, capable) << text;
        EXPECT_EQ(read.opt, opt) << text;
    }
    OptJsonElement twice(R"({"@opt": ["a"]})");
    twice.Parse(R"({"@opt": ["a"]})");
    EXPECT_THAT(twice.opt, ElementsAre("a", "a"));
}

TEST(CapabilityElementsTest, JsonLimitsComeWithTheirStatusAndLeaveTheFlag)
{
    MisinfoMinMaxElement read(R"({"@min": -3, "@max": 7.9, "statusCode": 4, "errorMsg": "e"})");
    EXPECT_EQ(read.min, -3);
    EXPECT_EQ(read.max, 7);
    EXPECT_EQ(read.status.statusCode, 4);
    EXPECT_EQ(read.status.errorMsg, "e");
    EXPECT_FALSE(read.capable);
    read.Parse(R"({"@min": 5, "@max": "x"})");
    EXPECT_EQ(read.min, 5) << "read before the member of the wrong kind";
    EXPECT_EQ(read.max, 7) << "kept";
    EXPECT_EQ(read.status.statusCode, 0) << "a status is made anew";
    read.Parse("{");
    EXPECT_EQ(read.min, 5);
    read.Parse("{}");
    EXPECT_EQ(read.min, 0) << "a missing member reads as zero";
}

TEST(CapabilityElementsTest, RaisesTheFlagOfADefault)
{
    DefaultElement value;
    value.SetCapable();
    EXPECT_TRUE(value.Capable());
}

}  // namespace
