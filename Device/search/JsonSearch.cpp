// Searches over a profile's own JSON lists.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/JsonSearch.h"

#include <algorithm>
#include <stdexcept>

#include "Device/Behaviour.h"
#include "Device/DateTime.h"
#include "Device/JsonDocument.h"
#include "Device/search/Package.h"
#include "Device/search/SearchPage.h"

namespace Device
{
namespace
{

constexpr int kMostRepeats = 100'000;

// One thing of a series: see ReadSearched.
Json::Value Instance(const Json::Value& form, int number)
{
    if (form.isString()) {
        std::string text = form.asString();
        for (size_t at = 0; (at = text.find("{n}", at)) != std::string::npos;) {
            text.replace(at, 3, std::to_string(number));
        }
        return text;
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
    Json::Value things(Json::arrayValue);
    for (const Json::Value& entry : list) {
        const Json::Value& each = JsonMember(entry, "each");
        if (each.isNull()) {
            things.append(entry);
            continue;
        }
        const int count = JsonNumber(JsonMember(entry, "repeat")).value_or(0);
        if (count < 1 || count > kMostRepeats) {
            throw std::invalid_argument("\"repeat\" is no number of things");
        }
        for (int number = 1; number <= count; ++number) {
            things.append(Instance(each, number));
        }
    }
    return things;
}

// The object around the list: the document itself or its only member.
Json::Value& RootOf(Json::Value& document, const SearchRules& rules)
{
    return document.isMember(rules.list) || document.size() != 1 ? document : *document.begin();
}

const Json::Value& DescriptionOf(const Json::Value& body)
{
    return body.isObject() && body.size() == 1 && body.begin()->isObject() ? *body.begin() : body;
}

// Clients write every member, set or not: what is empty or 0 does not filter.
bool Passes(const Json::Value& wanted, const Json::Value& value)
{
    if (wanted.isArray()) {
        return wanted.empty() || std::ranges::any_of(wanted, [&](const Json::Value& one) {
                   return Passes(one, value);
               });
    }
    if (wanted.isBool() || value.isBool()) {
        return wanted == value;
    }
    const std::string text = JsonText(wanted);
    return text.empty() || text == "0" || text == "all" || text == JsonText(value);
}

bool Wanted(const SearchRules& rules, const SearchDemand& demand, const Json::Value& description,
            const Json::Value& thing)
{
    if (!rules.time.empty() && !demand.spans.empty()) {
        const auto time = ReadDateTime(JsonText(JsonMember(thing, rules.time.c_str())));
        if (!time || !demand.Wants(*time)) {
            return false;
        }
    }
    return std::ranges::all_of(rules.filters, [&](const auto& filter) {
        const Json::Value& wanted = JsonMember(description, filter.first.c_str());
        return wanted.isNull() || Passes(wanted, JsonMember(thing, filter.second.c_str()));
    });
}

// What a search found, and what it was asked.
struct Findings
{
    SearchDemand demand;
    Json::Value document;
    std::vector<Json::Value> matches;
};

std::optional<Findings> Search(const SearchRules& rules, const std::string& document,
                               const ParsedRequest& request)
{
    const Json::Value body = ReadJsonDocument(request.body).value_or(Json::Value());
    const Json::Value& description = DescriptionOf(body);
    std::optional<SearchDemand> demand = ReadSearchDemand(description);
    if (!description.isObject() || !demand) {
        return std::nullopt;
    }
    Findings found{*std::move(demand), ReadSearched(document, rules), {}};
    for (Json::Value& thing : RootOf(found.document, rules)[rules.list]) {
        if (found.matches.size() < found.demand.most &&
            Wanted(rules, found.demand, description, thing)) {
            found.matches.push_back(std::move(thing));
        }
    }
    return found;
}

std::uint64_t SizeOf(const Findings& found, std::uint64_t bytesPerMatch)
{
    return PackageSizeOf(found.demand.searchId).value_or(found.matches.size() * bytesPerMatch);
}

}  // namespace

SearchRules ReadSearchRules(const Json::Value& rules)
{
    const auto fault = [](bool wrong, const char* sentence) {
        if (wrong) {
            throw std::invalid_argument(sentence);
        }
    };
    fault(!rules.isObject(), "\"search\" is not an object");
    for (const std::string& key : rules.getMemberNames()) {
        constexpr std::string_view kKeys[] = {"list", "time", "filters", "packageBytes"};
        fault(std::ranges::find(kKeys, key) == std::end(kKeys), "\"search\" holds an unknown key");
    }
    SearchRules read;
    read.list = JsonText(rules["list"]);
    read.time = JsonText(rules["time"]);
    fault(read.list.empty(), R"("search" names no "list")");
    const Json::Value& filters = rules["filters"];
    fault(!filters.isNull() && !filters.isArray() && !filters.isObject(),
          R"(the "filters" of "search" are neither an array nor an object)");
    for (auto filter = filters.begin(); filter != filters.end(); ++filter) {
        fault(!filter->isString(), "a filter of \"search\" is not a text");
        const std::string own = filters.isObject() ? filter.name() : filter->asString();
        read.filters.emplace_back(own, filter->asString());
    }
    const std::optional<int> bytes = JsonNumber(rules["packageBytes"]);
    fault(!rules["packageBytes"].isNull() && bytes.value_or(0) < 1,
          R"(the "packageBytes" of "search" are no number of bytes)");
    read.packageBytes = static_cast<std::uint64_t>(bytes.value_or(0));
    return read;
}

Json::Value ReadSearched(const std::string& document, const SearchRules& rules)
{
    std::optional<Json::Value> read = ReadJsonDocument(document);
    if (!read || !read->isObject() || !RootOf(*read, rules).isObject() ||
        !RootOf(*read, rules)[rules.list].isArray()) {
        throw std::invalid_argument("the file holds no list \"" + rules.list + "\"");
    }
    Json::Value& list = RootOf(*read, rules)[rules.list];
    list = Expanded(list);
    return *std::move(read);
}

Response AnswerSearch(const SearchRules& rules, const std::string& document,
                      const ParsedRequest& request)
{
    const std::optional<Findings> found = Search(rules, document, request);
    if (!found) {
        return MakeJsonStatus(Outcome::kBadJsonContent, request.target, Json::Value());
    }
    if (rules.packageBytes > 0) {
        return {200,
                "application/octet-stream",
                {},
                MakePackage(SizeOf(*found, rules.packageBytes), found->demand.searchId)};
    }
    Json::Value answer = found->document;
    Json::Value& root = RootOf(answer, rules);
    const Json::Value page = MakeSearchPage(found->demand, found->matches, rules.list, "");
    for (const std::string& key : page.getMemberNames()) {
        root[key] = page[key];
    }
    return {200, "application/json", answer.toStyledString()};
}

std::optional<std::uint64_t> PackageSizeOf(const SearchRules& rules, const std::string& document,
                                           const ParsedRequest& request,
                                           std::uint64_t bytesPerMatch)
{
    const std::optional<Findings> found = Search(rules, document, request);
    return found ? std::optional(SizeOf(*found, bytesPerMatch)) : std::nullopt;
}

}  // namespace Device
