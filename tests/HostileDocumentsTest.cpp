// Every record against everything that a broken or hostile device sends in its place.
// SPDX-License-Identifier: Apache-2.0
#include "Device/hostile/HostileDocuments.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/private/xml/XmlDocument.h"
#include "support/AllRecords.h"
#include "support/LogCapture.h"

namespace
{

using namespace CapabilitySet;
using Device::HostileCase;
using Device::HostileCases;
using TestSupport::AllRecordTypes;
using TestSupport::LogCapture;
using TestSupport::RecordClass;
using TestSupport::RecordKind;
using TestSupport::RecordPointer;

/// Takes a second and more to make and to read: for one record of each kind only.
bool IsLarge(const HostileCase& hostile)
{
    const std::set<std::string_view> large{"oversized", "nestedMillion", "longText",
                                           "manyAttributes", "flatEntityBomb"};
    return large.contains(hostile.name);
}

/// What surrounds the elements of a record changes nothing of it.
bool IsHarmless(const HostileCase& hostile)
{
    const std::set<std::string_view> harmless{
        "defaultNamespace",       "prefixedRoot",    "comments",
        "processingInstructions", "cdata",           "byteOrderMark",
        "mixedContent",           "unknownElements", "oversized",
    };
    return harmless.contains(hostile.name);
}

/// What the record tells of a document, apart from the record itself.
struct Row
{
    const RecordClass& type;
    xml::Form form = xml::Form::Plain;
    bool logsMismatch = true;
};

std::vector<Row> Rows()
{
    std::vector<Row> rows;
    for (const RecordClass& type : AllRecordTypes()) {
        if (type.kind == RecordKind::XmlDocument) {
            const bool isPtz = type.root.starts_with("PTZ");
            const bool isBlankFree = isPtz && type.name != "CPTZPresetListCfg";
            rows.push_back({type, isBlankFree ? xml::Form::BlankFree : xml::Form::Plain, !isPtz});
        }
    }
    EXPECT_GT(rows.size(), 20U);
    return rows;
}

/// 1: readable as this record, 0: silently none, -1: none, after a line.
int Verdict(const Row& row, const std::string& text)
{
    if (text.empty()) {
        return 0;
    }
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, row.form, problem);
    if (document == nullptr) {
        return -1;
    }
    xmlNode* root = xmlDocGetRootElement(document.get());
    if (xml::NextElementNamed(root, row.type.root.c_str())) {
        return 1;
    }
    return row.logsMismatch ? -1 : 0;
}

std::size_t DocumentLines(const LogCapture& log)
{
    const std::vector<std::string> messages = log.Messages();
    return static_cast<std::size_t>(std::ranges::count_if(messages, [](const auto& message) {
        return message.find("Cann't") != std::string::npos ||
               message.find("The root element is mismatched") != std::string::npos;
    }));
}

void Check(const Row& row, const HostileCase& hostile, const std::string& text)
{
    // The readers of such lists never end on an item without children; callers ask first.
    if (row.form == xml::Form::BlankFree && HasEmptyItem(text)) {
        return;
    }
    const int verdict = Verdict(row, text);
    const LogCapture log;
    const RecordPointer record = row.type.Read(text);
    EXPECT_EQ(DocumentLines(log), verdict < 0 ? 1U : 0U);
    if (verdict < 1) {
        EXPECT_EQ(record->Describe(), row.type.make()->Describe())
            << "what cannot be read fills nothing";
        EXPECT_FALSE(row.type.hasFlag && record->IsFlagUp());
    } else if (IsHarmless(hostile)) {
        EXPECT_EQ(record->Describe(), row.type.Read(row.type.sample)->Describe());
    }
}

TEST(HostileDocumentsTest, FillARecordWholeOrNotAtAllWithOneLine)
{
    const std::vector<Row> rows = Rows();
    for (const HostileCase& hostile : HostileCases()) {
        for (const Row& row : rows) {
            if (IsLarge(hostile) && row.type.name != "BasicCapability") {
                continue;
            }
            SCOPED_TRACE(std::string(hostile.name) + " " + row.type.root);
            Check(row, hostile, MakeHostileXml(hostile, row.type.root, row.type.sample));
            if (testing::Test::HasFailure()) {
                return;
            }
        }
    }
}

TEST(HostileDocumentsTest, AnAbilityDocumentKeepsWhateverIsADocument)
{
    for (const HostileCase& hostile : HostileCases()) {
        SCOPED_TRACE(hostile.name);
        const std::string text =
            MakeHostileXml(hostile, "PTZAbility", "<PTZAbility><a>1</a></PTZAbility>");
        const Row row{TestSupport::RecordTypeNamed("PTZAbility")};
        const LogCapture log;
        const PTZAbility read(text);
        EXPECT_EQ(read.Capable(), Verdict(row, text) == 1);
        EXPECT_EQ(static_cast<bool>(read.root), read.Capable());
        EXPECT_EQ(DocumentLines(log), read.Capable() || text.empty() ? 0U : 1U);
    }
}

TEST(HostileDocumentsTest, JsonRecordsSwallowWhateverTheyAreGiven)
{
    const std::string sample = R"({"requestURL": "/a", "statusCode": 4, "statusString": "s",
        "subStatusCode": "x", "errorCode": 5, "errorMsg": "m",
        "ErrorList": [{"id": 1, "subStatusCode": "y"}, null, {"id": 2}],
        "@opt": ["a", "b"], "@min": 1, "@max": 2})";
    for (const HostileCase& hostile : HostileCases()) {
        SCOPED_TRACE(hostile.name);
        const std::string text = MakeHostileJson(hostile, "statusCode", sample);
        JsonStatus status(sample);
        status.Parse(text);
        EXPECT_TRUE(SameFields(status, JsonStatus(text))) << "nothing of the status before";
        EXPECT_LE(JsonErrorStatusList(text).errorList.size(), 2U);
        EXPECT_LE(OptJsonElement(text).opt.size(), 2U);
        EXPECT_TRUE(SameFields(MisinfoMinMaxElement(text).status, status));
    }
}

}  // namespace
