// Every record reads every sample, cut at each byte or changed in small ways, as a plain reader
// does.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/SystemAbility.h"
#include "support/JsonRecords.h"
#include "support/JsonSamples.h"
#include "support/Mutation.h"
#include "support/ReferenceJson.h"
#include "support/ReferenceXml.h"
#include "support/SameRecord.h"
#include "support/XmlRecords.h"
#include "support/XmlSamples.h"

namespace
{

using namespace CapabilitySet;
using namespace TestSupport;

/// A few of the records that keep all of a document, which are read alike.
using Trees = RecordTypes<PTZAbility, CameraPara, VideoPicAbility, DeviceCap, WallAbility>;
/// Read by hand from JSON, not by a field list alone.
using JsonElements =
    RecordTypes<JsonStatus, JsonErrorStatusList, OptJsonElement, MisinfoMinMaxElement>;

constexpr const char* kStatus =
    R"({"requestURL": "/a", "statusCode": 4, "statusString": "s", "subStatusCode": "x",
        "errorCode": 5, "errorMsg": "m", "ErrorList": [{"id": 1, "subStatusCode": "y"}, null,
        {"id": -2.5}], "@opt": ["a", 1, true], "@min": -1, "@max": 90})";

constexpr log::Place kHere{"RecordReadingTest.cpp", "Read", 1};

/// A record that is no document is read as the element of one.
template <class Record>
void ReadXml(const std::string& text, Record& record)
{
    if constexpr (requires { record.Parse(text); }) {
        record.Parse(text);
    } else {
        xml::WithRoot(text, RootOf<Record>(), kHere, [&record](xmlNode* root) {
            record.Parse(xml::TakesFirstChild<Record> ? root->children : root);
        });
    }
}

template <class Record>
bool XmlDiffers(const std::string& text)
{
    Record expected;
    const auto document = reference::ReadDocument(text, RootOf<Record>(), expected);
    if (document == reference::Document::Endless) {
        return !HasEmptyItem(text);
    }
    Record record;
    ReadXml(text, record);
    return !IsSame(record, expected);
}

/// What is left of a document that lacks its end is none, to any reader.
template <class Record>
bool XmlReadsPart(const std::string& text)
{
    Record record;
    ReadXml(text, record);
    return !IsSame(record, Record());
}

template <class Record>
bool JsonReadsPart(const std::string& text)
{
    Record record;
    record.Parse(text);
    return !IsSame(record, Record());
}

template <class Record>
bool JsonDiffers(const std::string& text)
{
    Record expected;
    reference::ReadText(text, expected);
    Record record;
    record.Parse(text);
    return !IsSame(record, expected);
}

struct Row
{
    std::string record;
    bool (*differs)(const std::string& text);
    bool (*readsPart)(const std::string& text);
    bool isJson = false;
    std::vector<std::string> samples{};
};

/// The documents of all simulated devices that end so.
std::vector<std::string> LoadDocuments(const char* extension)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(DEVICE_PROFILES)) {
        if (entry.path().extension() == extension && entry.path().stem() != "manifest") {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    std::vector<std::string> documents;
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        documents.emplace_back(std::istreambuf_iterator<char>(in),
                               std::istreambuf_iterator<char>());
    }
    return documents;
}

const std::vector<std::string>& XmlDocuments()
{
    static const std::vector<std::string> documents = LoadDocuments(".xml");
    return documents;
}

const std::vector<std::string>& JsonDocuments()
{
    static const std::vector<std::string> documents = LoadDocuments(".json");
    return documents;
}

template <class Record>
Row XmlRow(const std::string& elements)
{
    Row row{testing::internal::GetTypeName<Record>(), &XmlDiffers<Record>, &XmlReadsPart<Record>};
    row.samples.push_back(Element(RootOf<Record>(), {{}, elements}));
    for (const std::string& document : XmlDocuments()) {
        Record record;
        if (reference::ReadDocument(document, RootOf<Record>(), record) ==
            reference::Document::Fits) {
            row.samples.push_back(document);
        }
    }
    return row;
}

template <class Record>
Row JsonRow(const std::string& sample)
{
    constexpr std::size_t kMost = 4;  // records without a list take any document
    Row row{testing::internal::GetTypeName<Record>(),
            &JsonDiffers<Record>,
            &JsonReadsPart<Record>,
            true,
            {sample}};
    for (const std::string& document : JsonDocuments()) {
        Record record;
        reference::ReadText(document, record);
        if (!IsSame(record, Record()) && row.samples.size() < kMost) {
            row.samples.push_back(document);
        }
    }
    return row;
}

std::vector<Row> XmlRows()
{
    std::vector<Row> rows;
    XmlRecords::ForEach(
        [&]<class Record>() { rows.push_back(XmlRow<Record>(AllFields<Record>())); });
    Trees::ForEach([&]<class Record>() {
        rows.push_back(XmlRow<Record>("<a xmlns:b='u' b:c='1'> <b:d>x</b:d>y<d/></a>"));
    });
    return rows;
}

std::vector<Row> JsonRows()
{
    std::vector<Row> rows;
    JsonRecords::ForEach(
        [&]<class Record>() { rows.push_back(JsonRow<Record>(SampleText<Record>())); });
    JsonElements::ForEach([&]<class Record>() { rows.push_back(JsonRow<Record>(kStatus)); });
    return rows;
}

/// Checks texts, and tells of those that are read differently the smallest.
class Comparison
{
public:
    explicit Comparison(const Row& row) : row_(row) {}

    void Check(const std::string& text) { Check(text, row_.differs); }

    /// Of a document without its end.
    void CheckPart(const std::string& text) { Check(text, row_.readsPart); }

    void Tell(const std::string& what) const
    {
        EXPECT_EQ(worst_, "") << row_.record << " reads this otherwise than the plain reader; "
                              << what;
    }

private:
    void Check(const std::string& text, bool (*isWrong)(const std::string& text))
    {
        if (!isWrong(text)) {
            return;
        }
        // A document can be made smaller, what is left of one only by further cuts.
        const std::string smallest = isWrong == row_.differs ? Smallest(text, row_.differs) : text;
        if (worst_.empty() || smallest.size() < worst_.size()) {
            worst_ = smallest;
        }
    }

    const Row& row_;
    std::string worst_;
};

/// Each reader's records, so that the two run side by side.
class RecordReadingTest : public testing::TestWithParam<bool>
{
public:
    static std::vector<Row> Rows() { return GetParam() ? JsonRows() : XmlRows(); }
};

TEST_P(RecordReadingTest, ASampleCutAtAnyByteIsReadAsAPlainReaderReadsIt)
{
    // The time grows with the square of the length: a document beyond this that several records
    // read is cut everywhere for the first of them, and in so many places for the others.
    constexpr std::size_t kLong = 1024;
    std::set<std::string> cutEverywhere;
    std::size_t texts = 0;
    for (const Row& row : Rows()) {
        Comparison comparison(row);
        for (const std::string& sample : row.samples) {
            const std::size_t end = sample.find_last_of(row.isJson ? "}]" : ">");
            const std::size_t step =
                cutEverywhere.insert(sample).second ? 1 : 1 + sample.size() / kLong;
            for (std::size_t size = 0; size <= sample.size(); size += step) {
                const std::string text = sample.substr(0, size);
                if (size <= end) {
                    comparison.CheckPart(text);
                } else {
                    comparison.Check(text);
                }
                ++texts;
            }
        }
        comparison.Tell("a sample cut short");
    }
    std::cout << texts << " texts\n";
}

TEST_P(RecordReadingTest, ASampleChangedInSmallWaysIsReadAsAPlainReaderReadsIt)
{
    unsigned seed = 0;
    std::size_t texts = 0;
    for (const Row& row : Rows()) {
        for (const std::string& sample : row.samples) {
            Comparison comparison(row);
            Mutation mutation(++seed, row.isJson);
            for (int round = 0; round < 1000; ++round) {
                comparison.Check(mutation.Of(sample));
                ++texts;
            }
            comparison.Tell("seed " + std::to_string(seed));
        }
    }
    std::cout << texts << " texts of " << seed << " samples\n";
}

INSTANTIATE_TEST_SUITE_P(Readers, RecordReadingTest, testing::Bool(),
                         [](const auto& reader) { return reader.param ? "Json" : "Xml"; });

}  // namespace
