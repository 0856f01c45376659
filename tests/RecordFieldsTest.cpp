// The field lists of all XML records: each name fills its own member, and no member is left out.
// SPDX-License-Identifier: Apache-2.0
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/AllRecords.h"

namespace
{

using namespace CapabilitySet;
using TestSupport::AllRecordTypes;
using TestSupport::FieldLayout;
using TestSupport::RecordClass;
using TestSupport::RecordPointer;

struct Reading
{
    RecordNode record;
    bool isFlagUp;
};

/// Reads an element of this content; without one, the record stays as it was made.
Reading Read(const RecordClass& type, const std::string* content = nullptr)
{
    const RecordPointer record = type.make();
    if (content != nullptr) {
        record->Parse("<" + type.root + ">" + *content + "</" + type.root + ">");
    }
    return {record->Describe(), record->IsFlagUp()};
}

/// The records that are read from XML by a field list.
std::vector<RecordClass> Rows()
{
    std::vector<RecordClass> rows;
    for (const RecordClass& type : AllRecordTypes()) {
        // The position of a preset stands one element further down.
        if (!type.fields.empty() && type.name != "CVelTarnPTZPresetInfo") {
            rows.push_back(type);
        }
    }
    EXPECT_GT(rows.size(), 60U);
    return rows;
}

/// In this record two names fill the same member, and nothing fills the second of two flags.
bool SharesFlag(const RecordClass& row)
{
    return row.name == "Track";
}

/// These have a member in no list: the note that "alarmTime" was announced.
bool HasUnlisted(const RecordClass& row)
{
    return row.name == "PIRAlarm" || row.name == "WirelessAlarm" || row.name == "CallHelpAlarm";
}

void ExpectOneFilled(const RecordClass& row, std::size_t field, const RecordNode& filled,
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
    for (const RecordClass& row : Rows()) {
        SCOPED_TRACE(row.name);
        const RecordNode untouched = Read(row).record;
        RecordNode expected = untouched;
        std::string whole;
        for (std::size_t field = 0; field < row.fields.size(); ++field) {
            const std::string& element = row.fields[field].element;
            if (element.empty()) {
                continue;
            }
            SCOPED_TRACE(element);
            const Reading reading = Read(row, &element);
            ExpectOneFilled(row, field, reading.record, untouched);
            EXPECT_EQ(reading.isFlagUp, row.fields[field].counts || !row.hasFlag);
            whole += element;
            expected.children[field] = reading.record.children[field];
        }
        EXPECT_TRUE(SameValues(Read(row, &whole).record, expected)) << whole;
    }
}

TEST(RecordFieldsTest, WhatIsMissingOrOutOfOrderKeepsItsDefault)
{
    for (const RecordClass& row : Rows()) {
        SCOPED_TRACE(row.name);
        const Reading untouched = Read(row);
        EXPECT_EQ(untouched.isFlagUp, !row.hasFlag);
        for (const std::string content : {"", " ", "<unknown>1</unknown>", "<!--1-->text"}) {
            const Reading reading = Read(row, &content);
            EXPECT_EQ(reading.record, untouched.record) << content;
            EXPECT_EQ(reading.isFlagUp, untouched.isFlagUp) << content;
        }
        std::string reversed;
        for (const FieldLayout& field : row.fields) {
            reversed.insert(0, field.element);
        }
        EXPECT_EQ(Read(row, &reversed).record, Read(row, &row.fields.front().element).record)
            << "the cursor goes for the first field, and past all others";
    }
}

TEST(RecordFieldsTest, EveryMemberIsListedOnceInItsOrder)
{
    const auto alignUp = [](std::size_t offset, std::size_t alignment) {
        return (offset + alignment - 1) / alignment * alignment;
    };
    for (const RecordClass& row : Rows()) {
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
