// Reads JSON search descriptions and makes pages.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/SearchPage.h"

#include <algorithm>

#include "Device/document/DateTime.h"
#include "Device/document/JsonDocument.h"
#include "Device/search/Page.h"

namespace Device
{
namespace
{

// Ends the reading of an invalid description.
struct Invalid
{
};

// The first member that exists, for keys that clients spell in several ways.
const Json::Value& FirstMember(const Json::Value& object, std::initializer_list<const char*> keys)
{
    for (const char* key : keys) {
        const Json::Value& member = JsonMember(object, key);
        if (!member.isNull()) {
            return member;
        }
    }
    return Json::Value::nullSingleton();
}

int ReadCount(const Json::Value& value)
{
    const std::optional<int> number = value.isNull() ? 0 : JsonNumber(value);
    return number && *number >= 0 ? *number : throw Invalid();
}

// Clients that want no limit omit it or write 0.
void ReadLimit(const Json::Value& value, size_t& limit)
{
    if (const int count = ReadCount(value); count > 0) {
        limit = static_cast<size_t>(count);
    }
}

std::optional<std::int64_t> ReadTime(const Json::Value& value)
{
    const std::string text = JsonText(value);
    if (value.isNull() || (value.isString() && text.empty())) {
        return std::nullopt;
    }
    const std::optional<std::int64_t> time = ReadDateTime(text);
    return time ? time : throw Invalid();
}

void ReadSpan(const Json::Value& value, std::vector<TimeSpan>& spans)
{
    // Kept: clients write "endTIme" in the description of a log search.
    const TimeSpan span{ReadTime(FirstMember(value, {"startTime", "beginTime"})),
                        ReadTime(FirstMember(value, {"endTime", "endTIme"}))};
    if (span.start || span.end) {
        spans.push_back(span);
    }
}

}  // namespace

bool SearchDemand::Wants(std::int64_t time) const
{
    return spans.empty() ||
           std::ranges::any_of(spans, [time](const TimeSpan& span) { return span.Holds(time); });
}

std::optional<SearchDemand> ReadSearchDemand(const Json::Value& description)
{
    try {
        SearchDemand demand;
        demand.searchId = JsonText(FirstMember(description, {"searchID", "SearchID"}));
        // Kept: clients write "searchResultPostion" in the description of a log search, and the
        // numbers as strings of digits.
        demand.position =
            ReadCount(FirstMember(description, {"searchResultPosition", "searchResultPostion"}));
        ReadLimit(JsonMember(description, "maxResults"), demand.limit);
        ReadLimit(FirstMember(description, {"maxSearchResults", "maxResultNumber"}), demand.most);
        ReadSpan(description, demand.spans);
        const Json::Value& list = JsonMember(description, "timeSpanList");
        if (!list.isNull() && !list.isArray()) {
            return std::nullopt;
        }
        for (const Json::Value& entry : list) {
            ReadSpan(JsonMember(entry, "timeSpan"), demand.spans);
        }
        return demand;
    } catch (const Invalid&) {
        return std::nullopt;
    }
}

Json::Value MakeSearchPage(const SearchDemand& demand, const std::vector<Json::Value>& matches,
                           const std::string& list, const std::string& item)
{
    const Page span = PageOf(matches.size(), static_cast<size_t>(demand.position), demand.limit);
    Json::Value page;
    page["searchID"] = demand.searchId;
    page["responseStatus"] = true;
    page["responseStatusStrg"] = span.status;
    page["numOfMatches"] = static_cast<Json::UInt>(span.count);
    page["totalMatches"] = static_cast<Json::UInt>(matches.size());
    Json::Value& entries = page[list] = Json::Value(Json::arrayValue);
    for (size_t i = span.first; i < span.first + span.count; ++i) {
        Json::Value& entry = entries.append(Json::Value());
        (item.empty() ? entry : entry[item]) = matches[i];
    }
    return page;
}

}  // namespace Device
