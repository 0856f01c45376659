// Any bytes as a JSON answer.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <stdexcept>

#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostStatus.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "CapabilitySet/RecordTree.h"
#include "fuzz/Targets.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;

void Require(bool holds, const char* property)
{
    if (!holds)
        throw std::logic_error(property);
}

/// Bytes that are no UTF-8 are read as they are and written as a substitute.
bool IsAscii(const std::string& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

template <class Record>
void CheckRoundTrip(const std::string& text)
{
    Record record;
    record.Parse(text);
    const std::string written = record.Make();
    Record again;
    again.Parse(written);
    Require(SameFields(record, again) || !IsAscii(text), "a record reads back what it wrote");
    Require(again.Make() == written, "and writes the same again");
}

}  // namespace

void Json(const std::string& text)
{
    JsonStatus status("{\"errorMsg\": \"before\", \"statusCode\": 1}");
    status.Parse(text);
    Require(SameFields(status, JsonStatus(text)), "a status keeps nothing of the one before");

    JsonErrorStatusList list(text);
    const std::size_t once = list.errorList.size();
    list.Parse(text);
    Require(list.errorList.size() == 2 * once, "an error list grows by the same entries");

    OptJsonElement options(text);
    Require(options.capable || options.opt.empty(), "options come with their flag");
    Require(SameFields(MisinfoMinMaxElement(text).status, status), "limits hold the status");

    CheckRoundTrip<AlarmHostZoneConfig>(text);
    CheckRoundTrip<TriggerListConfig>(text);
}

}  // namespace Fuzz
