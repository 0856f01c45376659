// The rows of the records that devices answer in JSON: capabilities, and settings that can be read.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "PelNetSDK/PelNetSDK.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/JsonTree.h"
#include "Tool/record/Records.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

std::string JsonProblem(const std::string& text, const std::string& key)
{
    Json::Value document;
    if (text.empty()) {
        return "it is empty";
    }
    if (!ReadJson(text, document) || !document.isObject()) {
        return "it is no JSON object";
    }
    return key.empty() || document.isMember(key) ? std::string() : "it has no \"" + key + "\"";
}

/// `query(record, error, userID, selectors)` asks for the record.
template <class Record, class Query>
RecordEntry MakeRow(const char* name, const char* description, std::vector<std::string> options,
                    Query query)
{
    RecordEntry entry{name, description, std::move(options), {}, {}};
    entry.ask = [name, query](int userID, const Selectors& selectors) {
        Answer answer;
        Record record;
        answer.answered = query(record, answer.error, userID, selectors);
        if (!answer.answered && answer.error == 0) {  // GCOV_EXCL_BR_LINE
            answer.error = LastSdkError();            // GCOV_EXCL_BR_LINE
        }
        answer.values = DescribeJson(name, record);
        return answer;
    };
    entry.read = [name](const std::string& text) {
        Reading reading;
        reading.problem = JsonProblem(text, Record::kKey);
        reading.values = DescribeJson(name, Record(text));
        reading.shown = reading.values;
        return reading;
    };
    return entry;
}

template <class Record, class User>
RecordEntry JsonRow(const char* name, const char* description,
                    bool (*query)(Record&, unsigned int&, User))
{
    return MakeRow<Record>(
        name, description, {},
        [query](Record& record, unsigned int& error, int userID, const Selectors&) {
            return query(record, error, static_cast<std::remove_cvref_t<User>>(userID));
        });
}

/// Of a channel, the user ID last.
template <class Record>
RecordEntry JsonRow(const char* name, const char* description,
                    bool (*query)(Record&, unsigned int&, int, int))
{
    return MakeRow<Record>(
        name, description, OptionsOf(kChannel),
        [query](Record& record, unsigned int& error, int userID, const Selectors& selectors) {
            return query(record, error, kChannel.take(selectors), userID);
        });
}

std::vector<RecordEntry> CapabilityRows()
{
    return {
        JsonRow("AlarmHostTARNCapability", "what an alarm host has",
                &JsonCapApp::GetAlarmHostTARNCapability),
        JsonRow("AlarmHostOperateCapability", "commands that an alarm host takes",
                &JsonCapApp::GetAlarmHostOperateCapability),
        JsonRow("AlarmHostStatusCapability", "states that an alarm host tells",
                &JsonCapApp::GetAlarmHostStatusCapability),
        JsonRow("DetectorSilenceCap", "commands that fire detectors take",
                &JsonConfigApp::GetDetectorSilenceCap),
        JsonRow("ImagesComparisionCapability", "comparing the faces of pictures",
                &JsonCapApp::GetImagesComparisionCapability),
        JsonRow("HFPDCapability", "searching people by their features",
                &JsonCapApp::GetHFPDCapability),
        // This query alone has the user ID before the channel.
        MakeRow<IntersectionAnalysisCap>(
            "IntersectionAnalysisCap", "analysis of the traffic at a crossing", OptionsOf(kChannel),
            [](IntersectionAnalysisCap& record, unsigned int& error, int userID,
               const Selectors& selectors) {
                return JsonCapApp::GetIntersectionAnalysisCap(
                    record, error, static_cast<unsigned int>(userID),
                    static_cast<unsigned int>(kChannel.take(selectors)));
            }),
        JsonRow("CityManagementCap", "searching city management events",
                &JsonCapApp::GetCityManagementCap),
        JsonRow("DeeplyThinkBehaviorCap", "searching the results of behaviour analysis",
                &JsonCapApp::getDeeplyThinkAnalysisCap),
        JsonRow("MisinfoConfirmCap", "confirming alarms", &JsonCapApp::getmisinfoConfirmCap),
        JsonRow("AudioDetectionSearchCap", "searching detected sounds",
                &JsonCapApp::GetAudioDetectionSearchCap),
        JsonRow("ImportAudioLibCap", "importing sounds into a library",
                &JsonCapApp::GetImportAudioLibCap),
        JsonRow("FiberConvertCap", "fibre converters", &JsonCapApp::getFiberConvertCapability),
        // This query alone has no error slot.
        MakeRow<PortPoeInfoListCap>(
            "PortPoeInfoListCap", "power over Ethernet", {},
            [](PortPoeInfoListCap& record, unsigned int&, int userID, const Selectors&) {
                return JsonCapApp::GetPortPoeInfoListCap(record, userID);
            }),
    };
}

std::vector<RecordEntry> ConfigurationRows()
{
    return {
        JsonRow("FiberConvertSlotList", "slots of a fibre converter's crate",
                &JsonConfigApp::getFiberConvertSlotList),
        JsonRow("PortPoeInfoList", "power over Ethernet at each port",
                &JsonConfigApp::getPortPoeInfoCfgList),
        JsonRow("ManualFaceSnapCfg", "snapping faces by hand",
                &JsonConfigApp::GetManualFaceSnapCfg),
        JsonRow("ManualPTDeicingCfg", "freeing the pan-tilt head of ice",
                &JsonConfigApp::GetManualPTDeicingCfg),
        JsonRow("IntersectionAnalysisConfig", "settings of the traffic analysis",
                &JsonConfigApp::GetIntersectionAnalysisConfig),
        JsonRow("AIOPAlgorithmModel", "algorithm models of the AI platform",
                &JsonConfigApp::GetAIOPModel),
        JsonRow("AudioDetection", "audio detection of a channel",
                &JsonConfigApp::GetAudioDectioinCfg),
        JsonRow("AudioLibBaseConfig", "audio libraries", &JsonConfigApp::GetAudioLibBaseConfig),
        JsonRow("RadarAlarmLines", "alarm lines of a radar",
                &JsonConfigApp::GetRadarAlarmLineConfiguration),
    };
}

}  // namespace

std::vector<RecordEntry> JsonRows()
{
    std::vector<RecordEntry> rows = CapabilityRows();
    for (RecordEntry& row : ConfigurationRows()) {
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace Tool
