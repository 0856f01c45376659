// Searches that are answered page by page, fetched until all is there.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Paging.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <random>
#include <regex>
#include <set>

#include "Tool/record/Values.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;

namespace
{

std::string CheckTime(const std::string& text)
{
    static const std::regex form(R"(\d{4}-(0[1-9]|1[0-2])-(0[1-9]|[12]\d|3[01]))"
                                 R"(([T ]([01]\d|2[0-3]):[0-5]\d(:[0-5]\d)?(Z|[+-]\d\d:\d\d)?)?)");
    return std::regex_match(text, form)
               ? std::string()
               : "\"" + text + "\" is no time: write 2026-11-20 or 2026-11-20T08:30:00";
}

/// The time with seconds and a zone; `clock` is that of a mere day.
std::string Completed(std::string time, const std::string& clock, const std::string& zone)
{
    constexpr std::size_t kDay = 10;
    constexpr std::size_t kMinutes = 16;
    constexpr std::size_t kSeconds = 19;
    if (time.size() == kDay) {
        return time + "T" + clock + zone;
    }
    time[kDay] = 'T';
    if (time.size() == kMinutes || time[kMinutes] != ':') {
        time.insert(kMinutes, ":00");
    }
    return time.size() == kSeconds ? time + zone : time;
}

/// A list of short values as one text; anything else as it is.
RecordNode Joined(RecordNode node)
{
    const auto isShort = [](const RecordNode& each) { return InOneLine(each).has_value(); };
    if (node.kind == RecordNode::Kind::List && std::ranges::all_of(node.children, isShort)) {
        for (const RecordNode& each : node.children) {
            node.text += (node.text.empty() ? "" : ", ") + each.text;
        }
        node.kind = RecordNode::Kind::Text;
        node.children.clear();
    }
    return node;
}

void MoveUp(const RecordNode& node, RecordNode& row, std::set<std::string>& names)
{
    std::vector<const RecordNode*> nested;
    for (const RecordNode& child : node.children) {
        const bool isList = child.kind == RecordNode::Kind::List;
        if (!child.announced || (isList && child.children.empty()) || IsAttribute(child)) {
            continue;
        }
        if (!isList && !InOneLine(child)) {
            nested.push_back(&child);
            continue;
        }
        const bool isTaken = !names.insert(child.name).second;
        RecordNode moved = Joined(child);
        if (isTaken) {
            // "status" of "Smoke" is the smoke's.
            moved.name = node.children.size() == 1 ? node.name : node.name + "/" + child.name;
        }
        row.children.push_back(std::move(moved));
    }
    // A row's own "status" comes before that of its "Smoke".
    for (const RecordNode* each : nested) {
        MoveUp(*each, row, names);
    }
}

RecordNode List(const std::string& name, std::vector<RecordNode> items)
{
    return {name,
            RecordNode::Kind::Record,
            {},
            true,
            {{"matches", RecordNode::Kind::List, {}, true, std::move(items)}}};
}

std::string Amount(std::size_t got, const Page& last)
{
    const auto total = static_cast<std::size_t>(std::max(last.total, 0));
    if (total > got) {
        return std::to_string(got) + " of " + Counted(total, "result");
    }
    return got == 0 ? std::string("nothing was found")
                    : Counted(got, "result") + (last.hasMore ? ", and there are more" : "");
}

void AddNumber(CLI::App& command, const char* name, int& value, int least, const char* description)
{
    constexpr int kLargest = 100000;
    command.add_option(name, value, description)
        ->check(CLI::Range(least, kLargest).description(""))
        ->type_name("N")
        ->group("Search");
}

}  // namespace

void AddPageOptions(CLI::App& command, PageOptions& options)
{
    AddNumber(command, "--max", options.pageSize, 1, "results asked for at once, 50 by default");
    AddLimitOption(command, options);
}

void AddLimitOption(CLI::App& command, PageOptions& options)
{
    AddNumber(command, "--limit", options.limit, 0, "most results to fetch, all by default");
}

void AddTimeOptions(CLI::App& command, TimeOptions& options)
{
    const auto add = [&command](const char* name, std::string& value, const char* description) {
        command.add_option(name, value, description)
            ->check(CLI::Validator(CheckTime, ""))
            ->type_name("TIME")
            ->group("Search");
    };
    add("--from", options.from, "first day, or day and time: 2026-11-20, 2026-11-20T08:30:00");
    add("--to", options.to, "last day, or day and time");
}

std::string StartTime(const TimeOptions& options, const std::string& zone)
{
    return Completed(options.from.empty() ? "1970-01-01" : options.from, "00:00:00", zone);
}

std::string EndTime(const TimeOptions& options, const std::string& zone)
{
    return Completed(options.to.empty() ? "2037-12-31" : options.to, "23:59:59", zone);
}

std::string NewSearchID()
{
    std::random_device random;
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%08X-%04X-4%03X-A%03X-%08X%04X", random(),
                  random() & 0xFFFF, random() & 0xFFF, random() & 0xFFF, random(),
                  random() & 0xFFFF);
    return text.data();
}

Page ReadPage(const RecordNode& answer)
{
    Page page;
    for (const RecordNode& member : answer.children) {
        if (member.name == "responseStatusStrg") {
            page.hasMore = member.text == "MORE";
        } else if (member.name == "totalMatches") {
            std::from_chars(member.text.data(), member.text.data() + member.text.size(),
                            page.total);
        } else if (!IsAttribute(member) && !member.children.empty()) {
            page.items = member.children;
        }
    }
    return page;
}

Report FetchPages(Talk& talk, const PageOptions& options, const std::string& name,
                  const std::function<Page(const PageRequest&)>& fetch)
{
    std::vector<RecordNode> items;
    PageRequest request{NewSearchID(), 0, options.pageSize};
    Page page;
    std::vector<RecordNode> former;
    const auto limit = static_cast<std::size_t>(options.limit);
    do {
        request.position = static_cast<int>(items.size());
        if (limit > 0) {
            const auto left = static_cast<int>(limit - items.size());
            request.count = std::min(options.pageSize, left);
        }
        former = std::move(page.items);
        page = fetch(request);
        if (!page.items.empty() && page.items == former) {
            page.hasMore = false;
        } else {
            items.insert(items.end(), page.items.begin(), page.items.end());
        }
        talk.Say(Counted(items.size(), "result") +
                 (page.total > 0 ? " of " + std::to_string(page.total) : ""));
    } while (page.hasMore && !page.items.empty() && (limit == 0 || items.size() < limit));
    if (limit > 0 && items.size() > limit) {
        items.resize(limit);
    }
    std::vector<RecordNode> rows;
    std::ranges::transform(items, std::back_inserter(rows), Flattened);
    Report report{List(name, std::move(items)), List(name, std::move(rows))};
    report.remark = Amount(report.values.children.front().children.size(), page);
    return report;
}

RecordNode Flattened(const RecordNode& item)
{
    RecordNode row{item.name, RecordNode::Kind::Record, {}, true, {}};
    if (item.children.empty()) {
        return item;
    }
    std::set<std::string> names;
    MoveUp(item, row, names);
    // A device's JSON is in no order: what an item is called comes first.
    std::ranges::stable_partition(row.children, [](const RecordNode& each) {
        return each.name == "id" || each.name == "name";
    });
    return row;
}

}  // namespace Tool
