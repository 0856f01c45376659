// The rows of the XML records that are read over the protocol's own paths: settings, states, lists.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"
#include "PelNetSDK/PelNetSDK.h"
#include "Tool/record/PtzLists.h"
#include "Tool/record/Records.h"

namespace Tool
{

using namespace CapabilitySet;
using ParseXmlHelper::InterfaceRet;
using ParseXmlHelper::SDKInterfaceManager;

namespace
{

unsigned int ErrorOf(const InterfaceRet& result)
{
    constexpr int kSdkFailure = 2;
    return result.errorType == kSdkFailure ? static_cast<unsigned int>(result.errorCode)
                                           : LastSdkError();
}

template <class Record>
RecordEntry SettingRow(const char* description, InterfaceRet (*get)(Record&, int))
{
    RecordEntry entry{Record::kElement, description, {}, {}, {}};
    entry.ask = [get](int userID, const Selectors&) {
        Answer answer;
        Record record;
        const InterfaceRet result = get(record, userID);
        answer.answered = result.success;
        answer.error = result.success ? 0 : ErrorOf(result);
        answer.values = Describe(Record::kElement, record);
        return answer;
    };
    entry.read = [](const std::string& text) {
        return ReadXmlRecord<Record>(Record::kElement, text);
    };
    return entry;
}

/// `list` is the last part of the path.
template <class List>
RecordEntry PtzRow(const char* list, const char* description)
{
    RecordEntry entry{List::kRoot, description, OptionsOf(kChannel), {}, {}};
    const auto read = [](const std::string& text) {
        Reading reading;
        reading.problem = PtzListProblem(text, List::kRoot);
        if (reading.problem.empty()) {
            reading.values = ReadPtzList<List>(List::kRoot, text);
            reading.shown = reading.values;
        }
        return reading;
    };
    entry.ask = [list, read](int userID, const Selectors& selectors) {
        Answer answer;
        constexpr int kToProtocol = 1;
        const int channel = NET_ORB_SDKChannelToTARN(userID, kChannel.take(selectors), kToProtocol);
        std::string text;
        std::string status;
        const InterfaceRet result =
            channel < 0
                ? InterfaceRet{false, 0, 0}
                : SDKInterfaceManager::instance().TransparentRequsetGET(  // GCOV_EXCL_BR_LINE
                      userID, "GET " + PtzListPath(channel, list) + "\r\n", text, status, 0, false);
        answer.answered = result.success;
        answer.error = result.success ? 0 : ErrorOf(result);
        answer.values = read(text).values;
        return answer;
    };
    entry.read = read;
    return entry;
}

}  // namespace

std::vector<RecordEntry> SettingRows()
{
    return {
        PtzRow<CVelTarnPTZPresetList>("presets", "stored positions of a PTZ channel"),
        PtzRow<CVelTarnPTZPatrolList>("patrols", "tours of presets"),
        PtzRow<CVelTarnPTZPatternList>("patterns", "recorded movements"),
        SettingRow("time, temperatures, fans", &ParamInterface::GetDeviceStatus),
        SettingRow("applications on the device", &ParamInterface::GetApps),
        SettingRow("how the device is found", &ParamInterface::GetDiscoveryMode),
        SettingRow("what a switch is and how it is reached", &ParamInterface::GetSwitchesBasicInfo),
        SettingRow("ports of a switch", &ParamInterface::GetPortInfo),
        SettingRow("rate limits of a switch's ports", &ParamInterface::GetPortRates),
        SettingRow("wireless link", &ParamInterface::GetWireless),
        SettingRow("region of a wireless bridge", &ParamInterface::GetBridgeRegion),
    };
}

}  // namespace Tool
