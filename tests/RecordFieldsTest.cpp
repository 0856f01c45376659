// The field lists of all XML records: each name fills its own member, and no member is left out.
// SPDX-License-Identifier: Apache-2.0
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/xml/XmlFields.h"
#include "support/XmlRecords.h"
#include "support/XmlSamples.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using TestSupport::Element;
using TestSupport::FieldLayout;
using TestSupport::LayoutOf;
using TestSupport::RootOf;
using TestSupport::XmlRecords;
using TestSupport::XmlTree;

struct Reading
{
    RecordNode record;
    bool isFlagUp;
};

/// Reads an element of this content; without one, the record stays as it was made.
template <class Record>
Reading Read(const std::string* content)
{
    Record record;
    if (content != nullptr) {
        const std::string text = Element(RootOf<Record>(), {{}, *content});
        if constexpr (requires { record.Parse(text); }) {
            record.Parse(text);
        } else {
            const XmlTree tree(text);
            record.Parse(xml::TakesFirstChild<Record> ? tree.First() : tree.Root());
        }
    } else if constexpr (requires(_xmlNode* node) { record.Parse(node); }) {
        record.Parse(static_cast<_xmlNode*>(nullptr));
    }
    return {Describe({}, record), xml::FlagOf(record)};
}

struct Row
{
    std::string name;
    std::vector<FieldLayout> fields;
    Reading (*read)(const std::string* content);
    std::size_t size;
    std::size_t alignment;
    bool hasFlag;
};

const std::vector<Row>& Rows()
{
    static const std::vector<Row> all = [] {
        std::vector<Row> rows;
        XmlRecords::ForEach([&rows]<class Record>() {
            constexpr int kFirstNumber = 11;
            rows.push_back({testing::internal::GetTypeName<Record>(),
                            LayoutOf<Record>(kFirstNumber), &Read<Record>, sizeof(Record),
                            alignof(Record), xml::HasValid<Record> || xml::HasCapable<Record>});
            for (FieldLayout& field : rows.back().fields) {
                if (!TestSupport::IsLegal(field)) {
                    field.element.clear();
                }
            }
        });
        return rows;
    }();
    return all;
}

/// In this record two names fill the same member, and nothing fills the second of two flags.
bool SharesFlag(const Row& row)
{
    return row.name == "CapabilitySet::Track";
}

/// These have a member in no list: the note that "alarmTime" was announced.
bool HasUnlisted(const Row& row)
{
    return row.name == "CapabilitySet::PIRAlarm" || row.name == "CapabilitySet::WirelessAlarm" ||
           row.name == "CapabilitySet::CallHelpAlarm";
}

void ExpectOneFilled(const Row& row, std::size_t field, const RecordNode& filled,
                     const RecordNode& untouched)
{
    ASSERT_EQ(filled.children.size(), row.fields.size());
    for (std::size_t i = 0; i < row.fields.size(); ++i) {
        const bool isFilled = i == field || (SharesFlag(row) && i < 2 && field < 2);
        EXPECT_NE(SameValues(filled.children[i], untouched.children[i]), isFilled)
            << row.fields[i].name;
    }
    EXPECT_FALSE(SameValues(filled, untouched)) << "comparing must see the difference";
}

TEST(RecordFieldsTest, EachNameFillsItsOwnMemberAndNoOther)
{
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        const RecordNode untouched = row.read(nullptr).record;
        RecordNode expected = untouched;
        std::string whole;
        for (std::size_t field = 0; field < row.fields.size(); ++field) {
            const std::string& element = row.fields[field].element;
            if (element.empty()) {
                continue;
            }
            SCOPED_TRACE(element);
            const Reading reading = row.read(&element);
            ExpectOneFilled(row, field, reading.record, untouched);
            EXPECT_EQ(reading.isFlagUp, row.fields[field].counts || !row.hasFlag);
            whole += element;
            expected.children[field] = reading.record.children[field];
        }
        EXPECT_TRUE(SameValues(row.read(&whole).record, expected)) << whole;
    }
}

TEST(RecordFieldsTest, WhatIsMissingOrOutOfOrderKeepsItsDefault)
{
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        const Reading untouched = row.read(nullptr);
        EXPECT_EQ(untouched.isFlagUp, !row.hasFlag);
        for (const std::string content : {"", " ", "<unknown>1</unknown>", "<!--1-->text"}) {
            const Reading reading = row.read(&content);
            EXPECT_EQ(reading.record, untouched.record) << content;
            EXPECT_EQ(reading.isFlagUp, untouched.isFlagUp) << content;
        }
        std::string reversed;
        for (const FieldLayout& field : row.fields) {
            reversed.insert(0, field.element);
        }
        EXPECT_EQ(row.read(&reversed).record, row.read(&row.fields.front().element).record)
            << "the cursor goes for the first field, and past all others";
    }
}

TEST(RecordFieldsTest, EveryMemberIsListedOnceInItsOrder)
{
    const auto alignUp = [](std::size_t offset, std::size_t alignment) {
        return (offset + alignment - 1) / alignment * alignment;
    };
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        std::set<std::string> names;
        std::size_t end = row.hasFlag ? 1 : 0;
        for (const FieldLayout& field : row.fields) {
            if (!SharesFlag(row) && !HasUnlisted(row)) {
                EXPECT_EQ(field.offset, alignUp(end, field.alignment))
                    << field.name << ": other members stand before it than in the list";
            }
            end = field.offset + field.size;
            EXPECT_TRUE(names.insert(field.name).second) << field.name << " is read twice";
        }
        EXPECT_EQ(alignUp(end, row.alignment), row.size) << "members behind the last field";
    }
}

}  // namespace
