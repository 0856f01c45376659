// Any bytes as a JSON answer, read by every record that could be meant.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "CapabilitySet/JsonTARN/JsonElements.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "support/AllRecords.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;
using TestSupport::RecordClass;
using TestSupport::RecordPointer;

/// Bytes that are no UTF-8 are read as they are and written as a substitute.
bool IsAscii(const std::string& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Records without members of their own read alike: the text's length chooses one.
bool Concerns(const RecordClass& type, const std::string& text, std::size_t ordinal)
{
    constexpr std::size_t kRecords = 64;
    const std::string& name = type.root.empty() && !type.names.empty() ? type.names[0] : type.root;
    return name.empty() ? text.size() % kRecords == ordinal
                        : text.find('"' + name + '"') != std::string::npos;
}

void CheckRoundTrip(const RecordClass& type, const std::string& text)
{
    const RecordPointer record = type.Read(text);
    const RecordPointer expected = type.make();
    type.readPlainly(text, *expected);
    Require(record->Describe() == expected->Describe(), "differs from the plain reading",
            type.name);
    const std::string written = record->Make();
    if (written.empty()) {
        return;  // whoever has nothing to switch sends nothing
    }
    const RecordPointer again = type.Read(written);
    Require(SameValues(record->Describe(), again->Describe()) || !IsAscii(text),
            "reads back what it wrote", type.name);
    Require(again->Make() == written, "writes the same again", type.name);
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
    for (const RecordClass& type : TestSupport::AllRecordTypes()) {
        if (type.IsJson() && Concerns(type, text, ordinal++)) {
            CheckRoundTrip(type, text);
        }
    }
}

}  // namespace Fuzz
