// The MAC lookup, compared with JsonCpp's bare parses of its table's texts and with a plain map.
// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <json/reader.h>
#include <json/value.h>

#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"
#include "CapabilitySet/private/MacCompanyTexts.h"
#include "Comparison.h"

namespace
{

using CapabilitySet::CMacCompanyHelper;

const std::vector<std::string>& Texts()
{
    static const auto texts = CapabilitySet::MacCompanyTexts();
    static const std::vector<std::string> asStrings(texts.begin(), texts.end());
    return asStrings;
}

std::size_t BareParses()
{
    std::size_t members = 0;
    for (const std::string& text : Texts()) {
        Json::Value root;
        Json::Reader().parse(text, root);
        members += root.size();
    }
    return members;
}

std::map<std::string, std::string> PlainMap()
{
    std::map<std::string, std::string> companies;
    for (const std::string& text : Texts()) {
        Json::Value root;
        Json::Reader().parse(text, root);
        for (const std::string& prefix : root.getMemberNames()) {
            companies.emplace(prefix, root[prefix].asString());
        }
    }
    return companies;
}

/// A side of a comparison that can run only once per process.
template <class Side>
void AddOnlyOnce(const std::string& work, const std::string& name, Side side)
{
    benchmark::RegisterBenchmark((work + '/' + name).c_str(), [=](benchmark::State& state) {
        const std::string dump = work + '|' + name + "|1";
        CALLGRIND_TOGGLE_COLLECT;
        for (auto round : state) {
            benchmark::DoNotOptimize(side());
        }
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(dump.c_str());
    })->Iterations(1);
}

}  // namespace

int main(int argc, char** argv)
{
    Bench::AddSide("MAC table: first object", "baseline", 10, BareParses);
    AddOnlyOnce("MAC table: first object", "ours", [] { return new CMacCompanyHelper; });
    Bench::Compare("MAC table: later object", 10, BareParses,
                   [] { return std::make_unique<CMacCompanyHelper>(); });

    // Created by the first calls, when the first object was measured.
    Bench::Compare(
        "MAC lookup, info level off", 1000,
        [] {
            static const auto companies = PlainMap();
            return companies.find("fcd733")->second;
        },
        [] {
            static CMacCompanyHelper companies;
            return companies.getCompanyNameByMAc("fcd733");
        });
    return Bench::Run(argc, argv);
}
