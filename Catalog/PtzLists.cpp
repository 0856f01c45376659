// The lists of a pan-tilt-zoom channel: where they are fetched and how they are read.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/PtzLists.h"

#include <algorithm>

#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "Catalog/Entries.h"
#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet::catalog
{

using ParseXmlHelper::InterfaceRet;
using ParseXmlHelper::SDKInterfaceManager;

bool FetchPtzList(const char* list, int userID, int channel, std::string& text, unsigned int& error)
{
    constexpr int kToProtocol = 1;
    const int protocolChannel = NET_ORB_SDKChannelToTARN(userID, channel, kToProtocol);
    InterfaceRet result{false, 0, 0};
    if (protocolChannel >= 0) {
        const std::string line =
            "GET /TARN/PTZCtrl/channels/" + std::to_string(protocolChannel) + "/" + list + "\r\n";
        std::string status;
        result = SDKInterfaceManager::instance().TransparentRequsetGET(userID, line, text, status,
                                                                       0, false);
    }
    error = ErrorOf(result);
    if (!result.success && error == 0) {
        error = NET_ORB_GetLastError();
    }
    return result.success;
}

std::string PtzListProblem(const std::string& text, const char* rootName)
{
    std::string problem = ExplainXml({}, text, rootName, nullptr).problem;
    if (problem.empty() && HasEmptyItem(text)) {
        problem = "it holds an item without children";
    }
    return problem;
}

RecordNode WithNames(RecordNode presets, const std::string& text)
{
    const CPTZPresetListCfg names(text);
    for (RecordNode& item : presets.children.front().children) {
        const auto id = std::ranges::find(item.children, "id", &RecordNode::name);
        const auto named = std::ranges::find(names.presets, id->text, &CPTZPresetCfg::id);
        const std::string name = named == names.presets.end() ? "" : named->presetName;
        item.children.insert(id + 1, tree::Text("presetName", name));
    }
    return presets;
}

}  // namespace CapabilitySet::catalog
