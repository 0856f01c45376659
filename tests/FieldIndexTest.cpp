// Fields are matched in one pass exactly as the forward cursor would find them one by one.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/FieldIndex.h"

#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/json/MemberIndex.h"
#include "CapabilitySet/private/xml/XmlReading.h"

namespace
{

using namespace CapabilitySet;
using namespace CapabilitySet::xml;

struct FreeNode
{
    void operator()(xmlNode* node) const { xmlFreeNode(node); }
};

class FieldIndexTest : public testing::Test
{
protected:
    FieldIndexTest()
    {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        std::seed_seq seed(name.begin(), name.end());
        random_.seed(seed);
    }

    unsigned Below(std::size_t bound)
    {
        return std::uniform_int_distribution<unsigned>(0,
                                                       static_cast<unsigned>(bound) - 1)(random_);
    }

    /// Makes a record of fields, one in `oneRepeated` of them a list.
    void MakeIndex(std::size_t fields, unsigned oneRepeated)
    {
        index_ = FieldIndex();
        names_.clear();
        for (std::size_t field = 0; field < fields; ++field) {
            names_.push_back("f" + std::to_string(field));
        }
        for (const std::string& name : names_) {
            index_.Add(name.c_str(), oneRepeated != 0 && Below(oneRepeated) == 0);
        }
        index_.Finish();
    }

    /// Children mostly in order, some left out, some moved, doubled, unknown, or no elements.
    std::vector<std::string> MakeChildren()
    {
        std::vector<std::string> children;
        for (const std::string& name : names_) {
            for (unsigned copies = Below(3); copies > 0; --copies) {
                children.push_back(name);
            }
        }
        const unsigned disorder = Below(4);
        for (std::size_t i = 0; disorder > 0 && i < children.size(); ++i) {
            if (Below(2 * disorder) == 0) {
                std::swap(children[i], children[Below(children.size())]);
            }
        }
        for (unsigned i = Below(5); i > 0; --i) {
            const char* const kinds[] = {"unknown", "F0", "", "#", "f"};
            children.insert(children.begin() + Below(children.size() + 1), kinds[Below(5)]);
        }
        return children;
    }

    static std::unique_ptr<xmlNode, FreeNode> Build(const std::vector<std::string>& children)
    {
        const auto xml = [](const char* text) { return reinterpret_cast<const xmlChar*>(text); };
        std::unique_ptr<xmlNode, FreeNode> parent(xmlNewNode(nullptr, xml("parent")));
        for (const std::string& child : children) {
            xmlAddChild(parent.get(), child.empty()  ? xmlNewText(xml("f0"))
                                      : child == "#" ? xmlNewComment(xml("f1"))
                                                     : xmlNewNode(nullptr, xml(child.c_str())));
        }
        return parent;
    }

    /// What the cursor finds, field by field.
    std::vector<xmlNode*> ByCursor(xmlNode* cursor) const
    {
        std::vector<xmlNode*> found;
        for (std::size_t field = 0; field < names_.size(); ++field) {
            found.push_back(nullptr);
            while (NextElementNamed(cursor, names_[field].c_str())) {
                if (found.back() == nullptr) {
                    found.back() = cursor;
                }
                cursor = cursor->next;
                if (!index_.IsRepeated(field)) {
                    break;
                }
            }
        }
        return found;
    }

    void Compare(unsigned rounds, std::size_t mostFields, unsigned oneRepeated)
    {
        for (unsigned round = 0; round < rounds; ++round) {
            MakeIndex(1 + Below(mostFields), oneRepeated);
            const std::vector<std::string> children = MakeChildren();
            const auto parent = Build(children);
            const FieldMatches matches(index_, parent->children);
            const std::vector<xmlNode*> expected = ByCursor(parent->children);
            for (std::size_t field = 0; field < names_.size(); ++field) {
                ASSERT_EQ(matches[field], expected[field])
                    << names_[field] << " among " << testing::PrintToString(children);
            }
        }
    }

    FieldIndex index_;
    std::vector<std::string> names_;
    std::mt19937 random_;
};

TEST_F(FieldIndexTest, FindsWhatTheCursorFinds)
{
    Compare(20'000, 9, 0);
}

TEST_F(FieldIndexTest, FindsTheItemsOfListsAmongOtherFields)
{
    Compare(20'000, 6, 2);
}

TEST_F(FieldIndexTest, FindsTheFieldsOfVeryLargeRecords)
{
    Compare(100, 400, 20);
}

TEST_F(FieldIndexTest, KnowsItsNamesAndNoOthers)
{
    MakeIndex(300, 0);
    for (std::size_t field = 0; field < names_.size(); ++field) {
        ASSERT_EQ(index_.Find(names_[field].c_str()), field);
    }
    for (const char* other : {"", "f", "F0", "f300", "f00", "g1"}) {
        EXPECT_EQ(index_.Find(other), FieldIndex::kNone) << other;
    }
    // Names that the hash cannot tell apart: alike in length and at both ends.
    FieldIndex alike;
    alike.Add("LineCodingEnableChange", false);
    alike.Finish();
    EXPECT_EQ(alike.Find("LineCodiXXXXXXleChange"), FieldIndex::kNone);
    FieldIndex empty;
    empty.Finish();
    EXPECT_EQ(empty.Find("f0"), FieldIndex::kNone);
}

TEST_F(FieldIndexTest, FindsTheMembersOfVeryLargeJsonRecords)
{
    for (const std::size_t fields : {64U, 65U, 70U, 200U}) {
        MakeIndex(fields, 0);
        json::MemberIndex index;
        Json::Value object;
        for (std::size_t field = 0; field < fields; ++field) {
            index.Add(names_[field]);
            if (field % 3 != 0) {
                object[names_[field]] = static_cast<unsigned>(field);
            }
        }
        index.Finish();
        const json::MemberMatches matches(index, object);
        for (std::size_t field = 0; field < fields; ++field) {
            EXPECT_EQ(matches[field], json::MemberOf(object, names_[field]));
        }
    }
}

}  // namespace
