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
#include "CapabilitySet/private/xml/XmlWriting.h"
#include "support/AllocationFaults.h"
#include "support/JsonOperations.h"
#include "support/JsonRecords.h"
#include "support/JsonSamples.h"
#include "support/LogCapture.h"
#include "support/Operations.h"
#include "support/RecordGenerator.h"
#include "support/SameRecord.h"
#include "support/XmlRecords.h"
#include "support/XmlSamples.h"

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
template <class Record>
bool IsBeginningOf(const Record& whole, const Record& record)
{
    const auto full = Describe({}, whole).children;
    const auto none = Describe({}, Record()).children;
    const auto members = Describe({}, record).children;
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
template <class Record>
std::size_t CheckParse(const std::string& text)
{
    SCOPED_TRACE(testing::internal::GetTypeName<Record>());
    const Record whole(text);
    const auto parse = [&text] {
        Record record = [] {
            const NoAllocationFaults pause;
            Record fresh;
            fresh.Parse("<");  // what is kept between documents is made anew
            return fresh;
        }();
        record.Parse(text);
        return record;
    };
    return FailEachAllocation(parse, [&](const Record& record, bool struck) {
        ASSERT_TRUE(struck || IsSame(record, whole));
        ASSERT_TRUE(IsBeginningOf(whole, record));
        ASSERT_TRUE(IsSame(parse(), whole)) << "the next document";
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

TEST(AllocationFaultTest, AnXmlDocumentIsReadInPartsAndABodyWhole)
{
    Points points;
    XmlRecords::ForEach([&points]<class Record>() {
        if constexpr (requires(const std::string& text) { Record(text); }) {
            points.Add("XML documents",
                       CheckParse<Record>(Element(RootOf<Record>(), {{}, AllFields<Record>()})));
        }
        if constexpr (requires(const Record& record) { record.CreateXmlNodePtr(); }) {
            points.Add("XML bodies", CheckBody([record = RecordGenerator(7).Make<Record>()] {
                           return xml::DumpDocument(record.CreateXmlNodePtr(), "1.0");
                       }));
        }
    });
}

/// Converted while it is read, by libxml2 itself or with iconv; in a piece, or growing.
TEST(AllocationFaultTest, AConvertedDocumentIsReadInParts)
{
    using Record = BasicCapability;
    Points points;
    for (const std::string head :
         {"\xEF\xBB\xBF", "<?xml version='1.0' encoding='GBK'?>",
          "<?xml version='1.0' encoding='ISO-8859-1'?>", "<?xml encoding='US-ASCII'?>"}) {
        for (const std::size_t filler : {0, 40'000}) {
            const std::string comment = "<!--" + std::string(filler, 'x') + "-->";
            const std::string root = Element(RootOf<Record>(), {{}, comment + AllFields<Record>()});
            points.Add("converted documents", CheckParse<Record>(head + root));
        }
    }
}

TEST(AllocationFaultTest, AJsonDocumentIsReadInPartsAndABodyWhole)
{
    Points points;
    JsonRecords::ForEach([&points]<class Record>() {
        const std::string text = SampleText<Record>();
        points.Add("JSON documents", CheckParse<Record>(text));
        points.Add("JSON bodies", CheckBody([record = Record(text)] { return record.Make(); }));
    });
}

}  // namespace
