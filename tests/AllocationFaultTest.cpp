// Every allocation of every operation, record and body fails in turn, alone and with all that
// follow.
// SPDX-License-Identifier: Apache-2.0
#include <cstddef>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/RecordTree.h"
#include "support/AllRecords.h"
#include "support/AllocationFaults.h"
#include "support/JsonOperations.h"
#include "support/LogCapture.h"
#include "support/Operations.h"
#include "support/RecordGenerator.h"

namespace
{

using namespace CapabilitySet;
using namespace TestSupport;

/// How many allocations were made to fail, by the file or kind they belong to.
class Points
{
public:
    ~Points()
    {
        std::size_t all = 0;
        for (const auto& [family, points] : points_) {
            std::cout << points << " allocations: " << family << '\n';
            all += points;
        }
        std::cout << all << " in all\n";
    }

    void Add(const std::string& family, std::size_t points) { points_[family] += points; }

private:
    std::map<std::string, std::size_t> points_;
};

/// The class of an operation.
std::string FamilyOf(const JsonOperationRow& row)
{
    const std::string name = row.name;
    return name.substr(0, name.find(':'));
}

/// Runs an operation whose first buffer is too small.
template <class Ask>
auto Asking(const SdkStep& step, Ask ask)
{
    return [=] {
        {
            const NoAllocationFaults pause;
            ScriptedSdk& sdk = ScriptedSdk::Fresh();
            sdk.keepsCalls = false;
            sdk.steps = {{.error = 43}, step};
        }
        return ask();
    };
}

TEST(AllocationFaultTest, AnXmlQueryGivesTheWholeRecordOrError23)
{
    Points points;
    for (const OperationRow& row : Operations()) {
        SCOPED_TRACE(row.name);
        const auto ask = Asking({.answer = row.document}, row.ask);
        const Answered expected = ask();  // what is made once for the process is made now
        ASSERT_TRUE(expected.result && expected.isRead);
        points.Add(row.file, FailEachAllocation(ask, [&](const Answered& answered, bool struck) {
                       ASSERT_TRUE(answered.result || struck);
                       ASSERT_EQ(answered.err, row.errByValue ? 77U : answered.result ? 0U : 23U);
                       ASSERT_EQ(answered.isAtDefaults, !answered.result || expected.isAtDefaults)
                           << "nothing of a record, or half of one";
                       ASSERT_EQ(answered.isRead, answered.result);
                       ASSERT_TRUE(ask().result) << "the next query";
                   }));
    }
}

TEST(AllocationFaultTest, AJsonOperationGivesTheWholeRecordOrError23)
{
    Points points;
    for (const JsonOperationRow& row : JsonOperations()) {
        SCOPED_TRACE(std::string(row.name) + " " + row.request);
        const auto ask = Asking({.answer = row.answer}, [&row] { return row.ask(row.answer); });
        ask();
        points.Add(FamilyOf(row),
                   FailEachAllocation(ask, [&](const JsonAnswered& answered, bool struck) {
                       ASSERT_TRUE(answered.result || struck);
                       ASSERT_EQ(answered.err, !row.tellsError ? 77 : answered.result ? 0 : 23);
                       ASSERT_EQ(answered.isAtDefaults, !answered.result && !row.keepsRecord);
                       ASSERT_TRUE(!answered.result || row.keepsRecord || answered.isFilled)
                           << "half of it";
                       ASSERT_TRUE(ask().result) << "the next operation";
                   }));
    }
}

TEST(AllocationFaultTest, ARefusalIsToldAsOneOrAsError23)
{
    LogCapture log;  // the lines of a failure take memory too
    Points points;
    for (const OperationRow& row : Operations()) {
        SCOPED_TRACE(row.name);
        const auto ask = Asking({.error = 7}, row.ask);
        ask();
        log.Clear();
        points.Add(row.file, FailEachAllocation(ask, [&](const Answered& answered, bool) {
                       ASSERT_FALSE(answered.result);
                       ASSERT_TRUE(row.errByValue || answered.err == 7 || answered.err == 23);
                       ASSERT_TRUE(answered.isAtDefaults);
                       log.Clear();
                   }));
    }
    for (const JsonOperationRow& row : JsonOperations()) {
        SCOPED_TRACE(row.name);
        const auto ask = Asking({.error = 7}, [&row] { return row.ask(row.answer); });
        ask();
        log.Clear();
        points.Add(FamilyOf(row), FailEachAllocation(ask, [&](const JsonAnswered& answered, bool) {
                       ASSERT_FALSE(answered.result);
                       ASSERT_TRUE(!row.tellsError || answered.err == 7 || answered.err == 23);
                       ASSERT_EQ(answered.isAtDefaults, !row.keepsRecord);
                       log.Clear();
                   }));
    }
}

/// Whether a record's members hold what `whole` does up to one, and their defaults behind it.
bool IsBeginningOf(const AnyRecord& whole, const AnyRecord& record, const AnyRecord& fresh)
{
    const auto full = whole.Describe().children;
    const auto none = fresh.Describe().children;
    const auto members = record.Describe().children;
    std::size_t at = 0;
    while (at < members.size() && SameValues(members[at], full[at])) {
        ++at;
    }
    for (++at; at < members.size(); ++at) {
        if (!SameValues(members[at], none[at])) {
            return false;
        }
    }
    return true;
}

/// What reads a text by itself reads the beginning of it, or all.
std::size_t CheckParse(const RecordClass& type, const std::string& text)
{
    SCOPED_TRACE(type.name);
    const RecordPointer whole = type.Read(text);
    const auto parse = [&] {
        RecordPointer record = [&type] {
            const NoAllocationFaults pause;
            return type.Read("<");  // what is kept between documents is made anew
        }();
        record->Parse(text);
        return record;
    };
    return FailEachAllocation(parse, [&](const RecordPointer& record, bool struck) {
        ASSERT_TRUE(struck || record->IsSame(*whole));
        ASSERT_TRUE(IsBeginningOf(*whole, *record, *type.make()));
        ASSERT_TRUE(parse()->IsSame(*whole)) << "the next document";
    });
}

/// A body is written whole or not at all.
template <class Make>
std::size_t CheckBody(Make make)
{
    const std::string whole = make();
    return FailEachAllocation(make, [&](const std::string& body, bool struck) {
        ASSERT_TRUE(struck || body == whole);
        ASSERT_TRUE(body.empty() || body == whole) << body;
        ASSERT_EQ(make(), whole) << "the next body";
    });
}

TEST(AllocationFaultTest, ADocumentIsReadInPartsAndABodyWhole)
{
    Points points;
    for (const RecordClass& type : AllRecordTypes()) {
        const std::string kind = type.IsJson() ? "JSON" : "XML";
        if (type.kind == RecordKind::XmlDocument || type.IsJson()) {
            points.Add(kind + " documents", CheckParse(type, type.sample));
        }
        if (type.isSent) {
            const RecordPointer record = type.Read(type.sample);
            if (!type.IsJson()) {
                RecordGenerator generator(7);
                record->Fill(generator);
            }
            points.Add(kind + " bodies", CheckBody([&record] { return record->Make(); }));
        }
    }
}

/// Converted while it is read, by libxml2 itself or with iconv; in a piece, or growing.
TEST(AllocationFaultTest, AConvertedDocumentIsReadInParts)
{
    const RecordClass& type = RecordTypeNamed("BasicCapability");
    Points points;
    for (const std::string head :
         {"\xEF\xBB\xBF", "<?xml version='1.0' encoding='GBK'?>",
          "<?xml version='1.0' encoding='ISO-8859-1'?>", "<?xml encoding='US-ASCII'?>"}) {
        for (const std::size_t filler : {0, 40'000}) {
            const std::string comment = "<!--" + std::string(filler, 'x') + "-->";
            std::string root = type.sample;
            root.insert(root.find('>') + 1, comment);
            points.Add("converted documents", CheckParse(type, head + root));
        }
    }
}

}  // namespace
