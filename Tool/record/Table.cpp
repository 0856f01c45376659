// A record as a table for people.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Table.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <vector>

#include "Tool/record/Values.h"
#include "Tool/terminal/Grid.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;
using Kind = RecordNode::Kind;

namespace
{

constexpr std::size_t kIndent = 2;
constexpr std::size_t kGap = 2;
constexpr std::size_t kMostColumns = 40;

using Items = std::span<const RecordNode>;

bool AreAllInOneLine(Items items)
{
    return std::ranges::all_of(items,
                               [](const RecordNode& each) { return InOneLine(each).has_value(); });
}

/// The number of items at the beginning that have the same name.
std::size_t SameNamed(Items items)
{
    const auto other = std::ranges::find_if(
        items, [&](const RecordNode& each) { return each.name != items.front().name; });
    return static_cast<std::size_t>(other - items.begin());
}

class Renderer
{
public:
    Renderer(std::size_t width, const Paint& paint) : width_(width), paint_(paint) {}

    std::string Record(const RecordNode& record, std::string_view source)
    {
        Measure(record, 0);
        column_ = std::min(column_, width_ / 2);
        std::string title = paint_(Style::Title, Harmless(record.name));
        std::string more(Harmless(source));
        if (const std::string attributes = PlainAttributes(record); !attributes.empty()) {
            more += (more.empty() ? "" : ", ") + attributes;
        }
        const bool fits = Width(record.name) + kGap + Width(more) <= width_;
        out_ += title + (more.empty() || !fits ? "" : "  " + paint_(Style::Faint, more)) + "\n";
        if (!fits) {
            Note(more, kIndent);
        }
        if (!record.announced) {
            Note("the device announced nothing of it", kIndent);
        } else if (!record.text.empty() && record.kind == Kind::Record) {
            Line("(text)", {Harmless(record.text)}, kIndent);
        }
        if (record.kind == Kind::Record) {
            Members(record.children, kIndent);
        } else if (const auto cell = InOneLine(record)) {
            Line("(text)", *cell, kIndent);
        }
        return std::move(out_);
    }

private:
    /// Finds the column of the values.
    void Measure(const RecordNode& node, std::size_t indent)
    {
        for (const RecordNode& child : node.children) {
            if (!child.announced || IsAttribute(child)) {
                continue;
            }
            const std::size_t inner = indent + kIndent;
            const bool isShortList = child.kind == Kind::List && AreAllInOneLine(child.children);
            if (isShortList || InOneLine(child)) {
                column_ = std::max(column_, inner + Width(Harmless(child.name)) + kGap);
            } else {
                Measure(child, inner);
            }
        }
    }

    void Members(Items members, std::size_t indent)
    {
        std::vector<std::string> silent;
        while (!members.empty()) {
            const RecordNode& member = members.front();
            std::size_t taken = 1;
            if (IsAttribute(member)) {
                // Shown on the element's own line.
            } else if (!member.announced ||
                       (member.kind == Kind::List && member.children.empty())) {
                silent.push_back(Harmless(member.name));
            } else if (member.kind == Kind::List) {
                Repeated(Harmless(member.name), member.children, indent);
            } else if (taken = SameNamed(members); taken > 1) {
                Repeated(Harmless(member.name), members.first(taken), indent);
            } else {
                Member(member, Harmless(member.name), indent);
            }
            members = members.subspan(taken);
        }
        if (!silent.empty()) {
            Note("not announced: " + Listed(silent), indent);
        }
    }

    void Member(const RecordNode& member, const std::string& name, std::size_t indent)
    {
        if (const std::optional<Cell> cell = InOneLine(member)) {
            Line(name, *cell, indent);
            return;
        }
        Heading(name, PlainAttributes(member), indent);
        if (!member.text.empty()) {
            Line("(text)", {Harmless(member.text)}, indent + kIndent);
        }
        if (member.kind == Kind::List) {
            Repeated(name, member.children, indent + kIndent);
        } else {
            Members(member.children, indent + kIndent);
        }
    }

    /// Items of the same name: joined if they are short, a grid if they are alike, otherwise a
    /// section each.
    void Repeated(const std::string& name, Items items, std::size_t indent)
    {
        if (AreAllInOneLine(items)) {
            std::string joined;
            for (const RecordNode& item : items) {
                joined += (joined.empty() ? "" : ", ") + InOneLine(item)->text;
            }
            Line(name, {joined}, indent);
            return;
        }
        const std::optional<Grid> grid = AsGrid(items);
        for (const std::size_t left : {indent + kIndent, indent}) {
            Grid fitted = grid.value_or(Grid({}));
            if (grid && fitted.Fit(width_ - std::min(left, width_))) {
                const std::string count = std::to_string(items.size());
                Heading(name, count + (items.size() == 1 ? " entry" : " entries"), indent);
                out_ += fitted.Render(left, width_, paint_);
                return;
            }
        }
        std::size_t number = 0;
        for (const RecordNode& item : items) {
            const bool isOnly = items.size() == 1;
            Member(item, isOnly ? name : name + " " + std::to_string(++number), indent);
        }
    }

    static std::optional<Grid> AsGrid(Items items)
    {
        std::vector<std::string> names;
        for (const RecordNode& item : items) {
            if (!item.text.empty() || std::ranges::any_of(item.children, IsAttribute) ||
                item.children.empty() || item.children.size() > kMostColumns ||
                !AreAllInOneLine(item.children)) {
                return std::nullopt;
            }
            for (const RecordNode& child : item.children) {
                if (std::ranges::count(item.children, child.name, &RecordNode::name) > 1) {
                    return std::nullopt;
                }
                if (std::ranges::find(names, child.name) == names.end()) {
                    names.push_back(child.name);
                }
            }
            if (names.size() > kMostColumns) {
                return std::nullopt;
            }
        }
        std::vector<std::string> head;
        std::ranges::transform(names, std::back_inserter(head),
                               [](const std::string& each) { return Harmless(each); });
        Grid grid(std::move(head));
        for (const RecordNode& item : items) {
            std::vector<Cell> row;
            for (const std::string& each : names) {
                const auto child = std::ranges::find(item.children, each, &RecordNode::name);
                const bool there = child != item.children.end() && child->announced;
                row.push_back(there ? *InOneLine(*child) : Cell{"-", Style::Faint});
            }
            grid.Add(std::move(row));
        }
        return grid;
    }

    void Heading(const std::string& name, const std::string& more, std::size_t indent)
    {
        isInSection_ = isInSection_ || indent == kIndent;
        if (indent == kIndent) {
            out_ += "\n";
        }
        out_ += std::string(indent, ' ') + paint_(Style::Section, name) +
                (more.empty() ? "" : "  " + paint_(Style::Faint, more)) + "\n";
    }

    void Line(const std::string& name, const Cell& cell, std::size_t indent)
    {
        LeaveSection(indent);
        std::string line = std::string(indent, ' ') + name;
        if (indent + Width(name) + kGap > column_) {
            out_ += line + "\n";
            line.clear();
        }
        for (const std::string& piece :
             Wrap(cell.text, std::max<std::size_t>(width_ - std::min(column_, width_), 10))) {
            out_ += Padded(line, column_) + paint_(cell.style, piece) + "\n";
            line.clear();
        }
    }

    void Note(const std::string& text, std::size_t indent)
    {
        LeaveSection(indent);
        std::size_t hang = 0;
        for (const std::string& piece : Wrap(text, width_ - indent - kIndent)) {
            out_ += std::string(indent + hang, ' ') + paint_(Style::Faint, piece) + "\n";
            hang = kIndent;
        }
    }

    /// Adds a blank line between an outermost section and the record's own members.
    void LeaveSection(std::size_t indent)
    {
        if (isInSection_ && indent == kIndent) {
            out_ += "\n";
            isInSection_ = false;
        }
    }

    std::size_t width_;
    const Paint& paint_;
    bool isInSection_ = false;
    std::size_t column_ = 0;
    std::string out_;
};

}  // namespace

std::string RenderRecord(const RecordNode& record, std::string_view source, std::size_t width,
                         const Paint& paint)
{
    return Renderer(width, paint).Record(record, source);
}

}  // namespace Tool
