// Findings as people see them.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/ShowOutput.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include "PelNetSDK/Login.h"
#include "Tool/record/Table.h"
#include "Tool/terminal/Grid.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

std::string RenderUntaken(const std::vector<Untaken>& untaken, bool explain, std::size_t width,
                          const Paint& paint)
{
    std::string out = "\n";
    if (untaken.empty()) {
        out += paint(Style::Faint, "The record took everything that the document holds.") + "\n";
        return explain ? out : std::string();
    }
    const std::size_t lost = std::transform_reduce(untaken.begin(), untaken.end(), std::size_t{0},
                                                   std::plus<>(), std::mem_fn(&Untaken::count));
    const std::string count = Counted(lost, "element");
    if (!explain) {
        const std::string note = count + " of the document " + (lost == 1 ? "was" : "were") +
                                 " passed over; --explain tells why";
        return out + paint(Style::Faint, note) + "\n";
    }
    Grid grid({"line", "element", "why"});
    for (const Untaken& each : untaken) {
        grid.Add({{each.line > 0 ? std::to_string(each.line) : "-", Style::Plain, true},
                  {Harmless(each.path)},
                  {Harmless(each.reason)}});
    }
    return out + paint(Style::Title, "Passed over in the document: " + count) + "\n" +
           grid.Render(2, width, paint);
}

std::size_t CountOf(std::span<const Finding> findings, Outcome outcome)
{
    return static_cast<std::size_t>(std::ranges::count(findings, outcome, &Finding::outcome));
}

std::string NamesOf(std::span<const Finding> findings, Outcome outcome)
{
    std::string names;
    for (const Finding& each : findings) {
        if (each.outcome == outcome) {
            names += (names.empty() ? "" : ", ") + each.record->name;
        }
    }
    return names;
}

}  // namespace

std::string RenderReading(const Reading& reading, const std::string& source, bool explain,
                          const Paint& paint)
{
    const std::size_t width = TerminalWidth(stdout);
    return RenderRecord(reading.shown, source, width, paint) +
           RenderUntaken(reading.untaken, explain, width, paint);
}

std::string FailureSentence(const Finding& finding, const std::string& device)
{
    const bool isChannel = finding.failure.error == NET_ORB_CHANNEL_ERROR &&
                           std::ranges::count(finding.record->selectors, "channel") > 0;
    return finding.record->name + " of " + device + ": " + Told(finding.failure) +
           (isChannel ? "; choose one with --channel N" : Hint(finding.failure));
}

std::string RenderSummary(std::span<const Finding> findings, const std::string& device,
                          const Paint& paint)
{
    Grid grid({"", ""});
    const auto add = [&](const char* what, Outcome outcome, Style style) {
        if (const std::size_t count = CountOf(findings, outcome); count > 0) {
            grid.Add({{std::to_string(count) + " " + what, style}, {NamesOf(findings, outcome)}});
        }
    };
    add("answered", Outcome::Answered, Style::Yes);
    add("not supported", Outcome::Unsupported, Style::Faint);
    for (const Finding& each : findings) {
        if (each.outcome == Outcome::Failed) {
            grid.Add({{"failed", Style::Bad},
                      {each.record->name + ": " + Harmless(Told(each.failure))}});
        }
    }
    add("not asked", Outcome::NotAsked, Style::Bad);
    return paint(Style::Title, Counted(findings.size(), "record")) + "  " +
           paint(Style::Faint, Harmless(device)) + "\n" +
           grid.Render(2, TerminalWidth(stdout), paint);
}

std::string RenderRecordList(const Paint& paint)
{
    Grid asked({"record", "contents"});
    Grid parsed({"record that only \"capset parse\" reads", "contents"});
    for (const RecordEntry& each : AllRecords()) {
        (each.ask ? asked : parsed).Add({{each.name}, {each.description}});
    }
    const std::size_t width = TerminalWidth(stdout);
    return asked.Render(0, width, paint) + "\n" + parsed.Render(0, width, paint);
}

}  // namespace Tool
