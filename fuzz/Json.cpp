// Any bytes as a JSON answer, read by every record that could be meant.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "CapabilitySet/JsonTARN/JsonLimits.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "support/JsonRecords.h"
#include "support/ReferenceJson.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;

/// Bytes that are no UTF-8 are read as they are and written as a substitute.
bool IsAscii(const std::string& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// What tells that a text may be meant for a record: its key, or else the first of its members.
template <class Record>
const std::string& NameOf()
{
    static const std::string name = [] {
        std::string first = Record::kKey;
        Record sample;
        Record::Fields(sample, [&](const char* member, const auto&... /*member and how*/) {
            if (first.empty()) {
                first = member;
            }
        });
        return first.empty() ? first : '"' + first + '"';
    }();
    return name;
}

/// Records without members of their own read alike: the text's length chooses one.
template <class Record>
bool Concerns(const std::string& text, std::size_t ordinal)
{
    constexpr std::size_t kRecords = 64;
    const std::string& name = NameOf<Record>();
    return name.empty() ? text.size() % kRecords == ordinal : text.find(name) != std::string::npos;
}

template <class Record>
void CheckRoundTrip(const std::string& text)
{
    const std::string about = std::string("record ") + Record::kKey;
    Record record;
    record.Parse(text);
    Record expected;
    TestSupport::reference::ReadText(text, expected);
    Require(Describe({}, record) == Describe({}, expected), "differs from the plain reading",
            about);
    const std::string written = record.Make();
    if (written.empty()) {
        return;  // whoever has nothing to switch sends nothing
    }
    Record again;
    again.Parse(written);
    Require(SameFields(record, again) || !IsAscii(text), "reads back what it wrote", about);
    Require(again.Make() == written, "writes the same again", about);
}

void CheckStatus(const std::string& text)
{
    JsonStatus status("{\"errorMsg\": \"before\", \"statusCode\": 1}");
    status.Parse(text);
    Require(SameFields(status, JsonStatus(text)), "a status keeps nothing of the one before");
    Require(SameFields(MisinfoMinMaxElement(text).status, status), "limits hold the status");

    JsonErrorStatusList list(text);
    const std::size_t once = list.errorList.size();
    list.Parse(text);
    Require(list.errorList.size() == 2 * once, "an error list grows by the same entries");
}

/// What a member's limits are to each of the types that hold them.
void CheckLimits(const std::string& text)
{
    OptJsonElement options(text);
    Require(options.capable || options.opt.empty(), "options come with their flag");
    const std::size_t once = options.opt.size();
    options.Parse(text);
    Require(options.opt.size() == 2 * once, "options grow by the same entries");

    Json::Value root;
    JsonLimits limits;
    try {
        if (json::ParseText(text, root)) {
            limits.Parse(root);
        }
    } catch (const Json::Exception&) {  // a member of the wrong kind, or a text too deep
    }
    const MisinfoMinMaxElement bounds(text);
    Require(!bounds.capable, "limits alone announce nothing");
    Require(!limits.present || (bounds.min == limits.min && bounds.max == limits.max),
            "limits are the same to each of their types");
    Require(!limits.present || OptJsonElement(text).opt == limits.opt,
            "options are the same to each of their types");
}

}  // namespace

void Json(const std::string& text)
{
    CheckStatus(text);
    CheckLimits(text);
    std::size_t ordinal = 0;
    JsonRecords::ForEach([&]<class Record>() {
        if (Concerns<Record>(text, ordinal++)) {
            CheckRoundTrip<Record>(text);
        }
    });
}

}  // namespace Fuzz
