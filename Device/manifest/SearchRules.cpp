// Reads search rules and expands series.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/SearchRules.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "Device/Limits.h"
#include "Device/document/DateTime.h"
#include "Device/document/JsonDocument.h"
#include "Device/document/Text.h"

namespace Device
{
namespace
{

// The item of a series with that number, counted from 1.
Json::Value Instance(const Json::Value& form, int number)
{
    if (form.isString()) {
        return ReplaceAll(form.asString(), "{n}", std::to_string(number));
    }
    const Json::Value& cycle = JsonMember(form, "cycle");
    if (cycle.isArray() && !cycle.empty()) {
        return Instance(cycle[static_cast<Json::ArrayIndex>(number - 1) % cycle.size()], number);
    }
    if (const auto from = ReadDateTime(JsonText(JsonMember(form, "from")))) {
        const std::int64_t step = JsonNumber(JsonMember(form, "step")).value_or(0);
        return WriteDateTime(*from + step * (number - 1));
    }
    Json::Value made = form;
    for (Json::Value& member : made) {
        member = Instance(member, number);
    }
    return made;
}

Json::Value Expanded(const Json::Value& list)
{
    Json::Value items(Json::arrayValue);
    std::size_t bytes = 0;
    for (const Json::Value& entry : list) {
        const Json::Value& each = JsonMember(entry, "each");
        if (each.isNull()) {
            items.append(entry);
            continue;
        }
        const int count = JsonNumber(JsonMember(entry, "repeat")).value_or(0);
        if (count < 1 || count > kMostRepeats) {
            throw std::invalid_argument("\"repeat\" is not a number from 1 to " +
                                        std::to_string(kMostRepeats));
        }
        bytes += static_cast<std::size_t>(count) * each.toStyledString().size();
        if (bytes > kMostSeriesBytes) {
            throw std::invalid_argument("the series of the list expand to more than " +
                                        std::to_string(kMostSeriesBytes >> 20) + " MiB");
        }
        for (int number = 1; number <= count; ++number) {
            items.append(Instance(each, number));
        }
    }
    return items;
}

void Require(bool condition, const char* message)
{
    if (!condition) {
        throw std::invalid_argument(message);
    }
}

}  // namespace

SearchRules ReadSearchRules(const Json::Value& rules)
{
    Require(rules.isObject(), "\"search\" is not an object");
    for (const std::string& key : rules.getMemberNames()) {
        constexpr std::string_view kKeys[] = {"list", "time", "filters", "packageBytes"};
        Require(std::ranges::find(kKeys, key) != std::end(kKeys),
                "\"search\" contains an unknown key");
    }
    SearchRules read;
    read.list = JsonText(rules["list"]);
    read.time = JsonText(rules["time"]);
    Require(!read.list.empty(), R"("search" has no "list")");
    const Json::Value& filters = rules["filters"];
    Require(filters.isNull() || filters.isArray() || filters.isObject(),
            R"(the "filters" of "search" are neither an array nor an object)");
    for (auto filter = filters.begin(); filter != filters.end(); ++filter) {
        Require(filter->isString(), "a filter of \"search\" is not a string");
        const std::string own = filters.isObject() ? filter.name() : filter->asString();
        read.filters.emplace_back(own, filter->asString());
    }
    const std::optional<int> bytes = JsonNumber(rules["packageBytes"]);
    Require(rules["packageBytes"].isNull() || bytes.value_or(0) >= 1,
            R"(the "packageBytes" of "search" is not a positive number)");
    read.packageBytes = static_cast<std::uint64_t>(bytes.value_or(0));
    return read;
}

Json::Value& SearchedRoot(Json::Value& document, const SearchRules& rules)
{
    return document.isMember(rules.list) || document.size() != 1 ? document : *document.begin();
}

Json::Value ReadSearched(const std::string& document, const SearchRules& rules)
{
    std::optional<Json::Value> read = ReadJsonDocument(document);
    if (!read || !read->isObject() || !SearchedRoot(*read, rules).isObject() ||
        !SearchedRoot(*read, rules)[rules.list].isArray()) {
        throw std::invalid_argument("the file contains no list \"" + rules.list + "\"");
    }
    Json::Value& list = SearchedRoot(*read, rules)[rules.list];
    list = Expanded(list);
    return *std::move(read);
}

}  // namespace Device
