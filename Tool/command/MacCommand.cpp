// capset mac: looks up the makers of MAC addresses.
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <sstream>
#include <vector>

#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"
#include "Tool/Failure.h"
#include "Tool/command/Commands.h"
#include "Tool/command/MacAddress.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/terminal/Grid.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

struct MacOptions
{
    std::vector<std::string> addresses;
    bool json = false;
};

/// The result for one input.
struct MacFinding
{
    std::string input;
    std::optional<MacAddress> address;  ///< none: the input is no address
    std::string company;                ///< empty: unknown
};

constexpr const char* kNoAddress = "no MAC address";

/// The inputs of the command line; "-" or nothing means the lines of the standard input.
std::vector<std::string> Inputs(const std::vector<std::string>& addresses)
{
    std::vector<std::string> inputs;
    for (const std::string& each : addresses.empty() ? std::vector<std::string>{"-"} : addresses) {
        if (each != "-") {
            inputs.push_back(each);
            continue;
        }
        std::istringstream lines(ReadInput("-"));
        for (std::string line; std::getline(lines, line);) {
            if (const std::string input = Trimmed(line); !input.empty()) {
                inputs.push_back(input);
            }
        }
    }
    return inputs;
}

std::vector<MacFinding> FindAll(const std::vector<std::string>& inputs)
{
    CapabilitySet::CMacCompanyHelper companies;
    std::vector<MacFinding> findings;
    for (const std::string& input : inputs) {
        MacFinding finding{input, MacAddress::Read(input), {}};
        if (finding.address) {
            finding.company = companies.getCompanyNameByMAc(finding.address->Prefix());
        }
        findings.push_back(std::move(finding));
    }
    return findings;
}

/// What the address's own bits say.
std::string Remark(const MacAddress& address)
{
    if (address.IsBroadcast()) {
        return "broadcast";
    }
    std::string remark = address.IsMulticast() ? "multicast" : "";
    if (address.IsLocallyAdministered()) {
        remark += (remark.empty() ? "" : ", ") + std::string("locally administered");
    }
    return remark;
}

std::string RenderFindings(const std::vector<MacFinding>& findings, const Paint& paint)
{
    Grid grid({"address", "company", "remark"});
    for (const MacFinding& each : findings) {
        if (!each.address) {
            grid.Add({{Harmless(each.input)}, {"-", Style::Faint}, {kNoAddress, Style::Bad}});
            continue;
        }
        const Cell company =
            each.company.empty() ? Cell{"unknown", Style::Faint} : Cell{each.company};
        grid.Add({{each.address->Text()}, company, {Remark(*each.address)}});
    }
    return grid.Render(0, TerminalWidth(stdout), paint);
}

Json::Value ToJson(const MacFinding& finding)
{
    Json::Value item(Json::objectValue);
    item["input"] = Harmless(finding.input);
    if (!finding.address) {
        item["problem"] = kNoAddress;
        return item;
    }
    item["address"] = finding.address->Text();
    item["prefix"] = finding.address->Prefix();
    item["company"] = finding.company.empty() ? Json::Value() : Json::Value(finding.company);
    item["locallyAdministered"] = finding.address->IsLocallyAdministered();
    item["multicast"] = finding.address->IsMulticast();
    return item;
}

int TellCompanies(const MacOptions& options, const CommonOptions& common)
{
    const std::vector<MacFinding> findings = FindAll(Inputs(options.addresses));
    int result = kAnswered;
    Json::Value list(Json::arrayValue);
    for (const MacFinding& each : findings) {
        result = each.address ? result : kFailed;
        list.append(ToJson(each));
    }
    Print(options.json ? Dump(list) : RenderFindings(findings, common.PaintFor(stdout)));
    return result;
}

}  // namespace

void AddMacCommand(Command& program, CommonOptions& common)
{
    Command& command = program.Add("mac", "Look up the makers of MAC addresses");
    command.Note("The exit code is 1 if one of them is not an address.");
    command.Example("capset mac 40:55:82:00:11:22 FCD733");
    command.Example("ip neigh | awk '/lladdr/ {print $5}' | capset mac --json");
    const auto options = std::make_shared<MacOptions>();
    command.Positional("address", options->addresses,
                       "addresses, or at least their first three bytes, in any usual form; - or "
                       "nothing: one per line of the standard input");
    AddJsonFlag(command, options->json);
    AddCommonOptions(command, common);
    command.SetAction([&common, options] { return TellCompanies(*options, common); });
}

}  // namespace Tool
