// Every record reads every sample, cut short or changed in small ways, as a plain reader does.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "support/AllRecords.h"
#include "support/Deep.h"
#include "support/Mutation.h"

namespace
{

using namespace TestSupport;

/// Whether the library and the plain reader make different records of a text.
bool Differs(const RecordClass& type, const std::string& text)
{
    const RecordPointer expected = type.make();
    if (type.readPlainly(text, *expected) == Verdict::Endless) {
        return !CapabilitySet::HasEmptyItem(text);
    }
    return !type.Read(text)->IsSame(*expected);
}

/// Of what is left of a document without its end, which is no document to any reader.
bool ReadsPart(const RecordClass& type, const std::string& text)
{
    return !type.Read(text)->IsSame(*type.make());
}

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

/// The record's own sample, and documents of devices that fill it. Records that keep whatever a
/// device says take any document: the first few are enough.
std::vector<std::string> SamplesOf(const RecordClass& type)
{
    static const std::vector<std::string> xml = LoadDocuments(".xml");
    static const std::vector<std::string> json = LoadDocuments(".json");
    constexpr std::size_t kMost = 4;
    std::vector<std::string> samples{type.sample};
    for (const std::string& document : type.IsJson() ? json : xml) {
        const RecordPointer record = type.make();
        if (samples.size() < kMost && type.readPlainly(document, *record) == Verdict::Fits &&
            !record->IsSame(*type.make())) {
            samples.push_back(document);
        }
    }
    return samples;
}

/// Checks texts, and of those that are read differently shows the smallest.
class Comparison
{
public:
    explicit Comparison(const RecordClass& type) : type_(type) {}

    void Check(const std::string& text)
    {
        if (!Differs(type_, text)) {
            return;
        }
        Keep(Smallest(text, [this](const std::string& less) { return Differs(type_, less); }));
    }

    /// Of a document without its end.
    void CheckPart(const std::string& text)
    {
        if (ReadsPart(type_, text)) {
            Keep(text);
        }
    }

    void Expect(const std::string& what) const
    {
        EXPECT_EQ(worst_, "") << type_.name << " and the plain reader read this differently; "
                              << what;
    }

private:
    void Keep(const std::string& text)
    {
        if (worst_.empty() || text.size() < worst_.size()) {
            worst_ = text;
        }
    }

    const RecordClass& type_;
    std::string worst_;
};

/// Each kind of record, so that they run side by side.
class RecordReadingTest : public testing::TestWithParam<RecordKind>
{
protected:
    /// Calls `check(type, sample, seed)` for each sample of each record of the kind.
    template <class Check>
    static void ForEachSample(Check check)
    {
        unsigned seed = 0;
        for (const RecordClass& type : AllRecordTypes()) {
            if (type.kind == GetParam()) {
                for (const std::string& sample : SamplesOf(type)) {
                    check(type, sample, ++seed);
                }
            }
        }
        EXPECT_GT(seed, 10U);
    }
};

TEST_P(RecordReadingTest, ASampleCutShortIsReadAsAPlainReaderReadsIt)
{
    // A text of n bytes costs n readings of n bytes; every byte is tried by the deep rounds.
    const std::size_t cuts = IsDeep() ? 1U << 20U : 48;
    std::size_t texts = 0;
    ForEachSample([&](const RecordClass& type, const std::string& sample, unsigned seed) {
        Comparison comparison(type);
        const std::size_t end = sample.find_last_of(type.IsJson() ? "}]" : ">");
        const std::size_t step = 1 + sample.size() / cuts;
        for (std::size_t size = seed % step; size <= end; size += step) {
            comparison.CheckPart(sample.substr(0, size));
            ++texts;
        }
        for (std::size_t size = end - std::min<std::size_t>(end, 8); size <= sample.size();
             ++size) {
            size <= end ? comparison.CheckPart(sample.substr(0, size))
                        : comparison.Check(sample.substr(0, size));
            ++texts;
        }
        comparison.Expect("a sample cut short");
    });
    std::cout << texts << " texts\n";
}

TEST_P(RecordReadingTest, ASampleChangedInSmallWaysIsReadAsAPlainReaderReadsIt)
{
    const int rounds = IsDeep() ? 1000 : 40;
    std::size_t texts = 0;
    ForEachSample([&](const RecordClass& type, const std::string& sample, unsigned seed) {
        Comparison comparison(type);
        Mutation mutation(seed, type.IsJson());
        for (int round = 0; round < rounds; ++round) {
            comparison.Check(mutation.Of(sample));
            ++texts;
        }
        comparison.Expect("seed " + std::to_string(seed));
    });
    std::cout << texts << " texts\n";
}

std::string NameOf(const testing::TestParamInfo<RecordKind>& kind)
{
    constexpr const char* kNames[] = {"XmlDocument", "XmlPart", "XmlTree", "Json"};
    return kNames[static_cast<int>(kind.param)];
}

INSTANTIATE_TEST_SUITE_P(Kinds, RecordReadingTest,
                         testing::Values(RecordKind::XmlDocument, RecordKind::XmlPart,
                                         RecordKind::XmlTree, RecordKind::Json),
                         NameOf);

}  // namespace
