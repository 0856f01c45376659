// Searches a profile's JSON lists.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/JsonSearch.h"

#include <algorithm>

#include "Device/Limits.h"
#include "Device/document/DateTime.h"
#include "Device/document/JsonDocument.h"
#include "Device/message/StatusDocument.h"
#include "Device/search/Package.h"
#include "Device/search/SearchPage.h"

namespace Device
{
namespace
{

const Json::Value& DescriptionOf(const Json::Value& body)
{
    return body.isObject() && body.size() == 1 && body.begin()->isObject() ? *body.begin() : body;
}

// Clients write every member, set or not: empty and 0 mean "any".
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

// The matches of a search.
struct Findings
{
    SearchDemand demand;
    Json::Value document;
    std::vector<Json::Value> matches;
};

std::optional<Findings> Search(const SearchRules& rules, const std::string& document,
                               const ParsedRequest& request)
{
    if (request.body.size() > kMostSearchText) {
        return std::nullopt;
    }
    const Json::Value body = ReadJsonDocument(request.body).value_or(Json::Value());
    const Json::Value& description = DescriptionOf(body);
    std::optional<SearchDemand> demand = ReadSearchDemand(description);
    if (!description.isObject() || !demand) {
        return std::nullopt;
    }
    Findings found{*std::move(demand), ReadSearched(document, rules), {}};
    for (Json::Value& thing : SearchedRoot(found.document, rules)[rules.list]) {
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
    Json::Value& root = SearchedRoot(answer, rules);
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
