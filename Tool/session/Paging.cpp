// Searches that are answered page by page.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Paging.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <random>

#include "Tool/record/Rows.h"
#include "Tool/record/Values.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;

namespace
{

/// Answers of one search, in bytes. 20,000 results of a recorder take about 20 MB.
constexpr std::size_t kMostAnswerBytes = 256u << 20;

RecordNode List(const std::string& name, std::vector<RecordNode> items)
{
    return {name,
            RecordNode::Kind::Record,
            {},
            true,
            {{"matches", RecordNode::Kind::List, {}, true, std::move(items)}}};
}

/// How many results there are in all; 0: not known.
std::size_t TotalOf(std::size_t got, const Page& last)
{
    const auto announced = static_cast<std::size_t>(std::max(last.total, 0));
    if (announced > 0) {
        return std::max(announced, got);
    }
    return last.hasMore ? 0 : got;
}

std::string Amount(std::size_t got, std::size_t total)
{
    if (total > got) {
        return std::to_string(got) + " of " + Counted(total, "result");
    }
    return got == 0 ? std::string("nothing was found")
                    : Counted(got, "result") + (total == 0 ? ", and there are more" : "");
}

/// Fetches pages of one search and keeps their items.
class Pages
{
public:
    Pages(Talk& talk, const PageOptions& options)
        : talk_(talk), options_(options), limit_(static_cast<std::size_t>(options.limit))
    {
    }

    void Fetch(const std::function<Page(const PageRequest&)>& fetch)
    {
        PageRequest request{NewSearchID(), 0, options_.pageSize};
        do {
            request.position = static_cast<int>(items_.size());
            if (limit_ > 0) {
                request.count =
                    std::min(options_.pageSize, static_cast<int>(limit_ - items_.size()));
            }
            Add(fetch(request));
        } while (last_.hasMore && !IsLimitReached());
        found_ = TotalOf(items_.size(), last_);
        if (limit_ > 0 && items_.size() > limit_) {
            items_.resize(limit_);
        }
    }

    [[nodiscard]] std::vector<RecordNode> TakeItems() { return std::move(items_); }
    /// Results that the device has, 0: not known.
    [[nodiscard]] std::size_t Found() const { return found_; }

private:
    void Add(Page page)
    {
        bytes_ += talk_.Answer().size();
        if (bytes_ > kMostAnswerBytes) {
            throw Failure("the device sent more than 256 MiB of results: narrow the search");
        }
        const bool isRepeated = !page.items.empty() && page.items == last_.items;
        if (isRepeated || page.items.empty()) {
            page.hasMore = false;
        }
        if (!isRepeated) {
            items_.insert(items_.end(), page.items.begin(), page.items.end());
        }
        const auto total = static_cast<std::size_t>(std::max(page.total, 0));
        if (total > 0 && items_.size() >= total) {
            page.hasMore = false;
        }
        last_ = std::move(page);
        talk_.Say(Counted(items_.size(), "result") +
                  (total > 0 ? " of " + std::to_string(total) : ""));
    }

    [[nodiscard]] bool IsLimitReached() const { return limit_ > 0 && items_.size() >= limit_; }

    Talk& talk_;
    const PageOptions& options_;
    const std::size_t limit_;
    std::vector<RecordNode> items_;
    Page last_;
    std::size_t bytes_ = 0;
    std::size_t found_ = 0;
};

}  // namespace

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
    Pages pages(talk, options);
    pages.Fetch(fetch);
    std::vector<RecordNode> items = pages.TakeItems();
    const std::size_t got = items.size();
    std::vector<RecordNode> rows;
    std::ranges::transform(items, std::back_inserter(rows), Flattened);
    Report report{List(name, std::move(items)), List(name, std::move(rows))};
    RecordNode total = CapabilitySet::tree::Integer("total", pages.Found());
    total.announced = pages.Found() > 0 || got == 0;
    report.values.children.push_back(std::move(total));
    report.remark = Amount(got, pages.Found());
    return report;
}

}  // namespace Tool
