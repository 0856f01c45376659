// The operations of alarm hosts and fire detectors, as rows.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "support/JsonOperations.h"

namespace TestSupport
{
namespace
{

using namespace CapabilitySet;

constexpr const char* kFile = "JsonConfig/JsonConfigApp.cpp";
constexpr const char* kRefused =
    R"({"requestURL": "/TARN/SecurityCP", "statusCode": 4, "subStatusCode": "notSupport"})";
constexpr const char* kErrors = R"({"ErrorList": [{"id": 2, "subStatusCode": "busy"}, {"id": 3}]})";

// Made ahead: an argument is its caller's memory, not the operation's.

const AlarmHostBypassCfg kZones(R"({"zone": "1-4,50%%"})");
const AlarmHostOutputCfg kOutputs(
    R"({"OutputsCtrl": {"switch": "open", "List": [{"id": 2}, {"id": -3}]}})");
const AlarmHostOutputCfg kNoOutputs(R"({"OutputsCtrl": {"switch": "open"}})");
const DetectorSilence kSilence = [] {
    DetectorSilence silence;  // passed by value: a copy must take no memory
    silence.cmd = "silence";
    return silence;
}();

const AlarmHostLogConditionDescription kLogPage{"a", "2020-01-01T00:00:00", "2020-01-02T00:00:00",
                                                0, 30};

JsonOperationRow StatusRow(const char* name, std::string line,
                           std::function<JsonAnswered(const char*)> ask, std::string body = {})
{
    const bool pads = !body.empty();
    return {.name = name,
            .file = kFile,
            .line = std::move(line),
            .answer = kRefused,
            .ask = std::move(ask),
            .body = std::move(body),
            .padsBody = pads};
}

JsonOperationRow OutputRow(std::string line, std::function<JsonAnswered(const char*)> ask,
                           std::string body)
{
    return {.name = "JsonConfigApp::SetOutputControl",
            .file = kFile,
            .line = std::move(line),
            .answer = kErrors,
            .ask = std::move(ask),
            .body = std::move(body),
            .padsBody = true,
            .timeout = 20000,
            .keepsRecord = true};
}

}  // namespace

std::vector<JsonOperationRow> AlarmHostRows()
{
    const std::string zones = "{\n\t\"zone\" : \"1-4,50%\"\n}\n";
    const std::string outputs =
        "{\n\t\"OutputsCtrl\" : \n\t{\n\t\t\"List\" : \n\t\t[\n\t\t\t{\n\t\t\t\t\"id\" : "
        "2\n\t\t\t},\n\t\t\t{\n\t\t\t\t\"id\" : -3\n\t\t\t}\n\t\t],\n\t\t\"switch\" : "
        "\"open\"\n\t}\n}\n";
    const std::string silence =
        "{\n\t\"DetectorAlarm\" : \n\t{\n\t\t\"cmd\" : \"silence\"\n\t}\n}\n";
    const std::string logPage =
        "{\n\t\"SearchDescription\" : \n\t{\n\t\t\"maxResults\" : \"30\",\n\t\t\"metaID\" : "
        "\"log.tarn.example\",\n\t\t\"searchID\" : \"a\",\n\t\t\"searchResultPostion\" : "
        "\"0\",\n\t\t\"timeSpanList\" : \n\t\t[\n\t\t\t{\n\t\t\t\t\"timeSpan\" : "
        "\n\t\t\t\t{\n\t\t\t\t\t\"endTIme\" : \"2020-01-02T00:00:00\",\n\t\t\t\t\t\"startTime\" : "
        "\"2020-01-01T00:00:00\"\n\t\t\t\t}\n\t\t\t}\n\t\t]\n\t}\n}\n";
    return {
        StatusRow("JsonConfigApp::SetDevArming",
                  "POST /TARN/SecurityCP/control/arm/<1>?ways=<away>&format=json\r\n",
                  ASK_JSON(JsonStatus, JsonConfigApp::SetDevArming(out, "away", 1, err, kUser))),
        StatusRow("JsonConfigApp::SetDevArming",
                  "POST /TARN/SecurityCP/control/arm/<-2>?ways=<a%b>&format=json\r\n",
                  ASK_JSON(JsonStatus, JsonConfigApp::SetDevArming(out, "a%%b%s", -2, err, kUser))),
        StatusRow("JsonConfigApp::SetDevDisArm",
                  "POST /TARN/SecurityCP/control/disarm/<1>?format=json\r\n",
                  ASK_JSON(JsonStatus, JsonConfigApp::SetDevDisArm(out, 1, err, kUser))),
        StatusRow("JsonConfigApp::SetDevClearAlarm",
                  "POST /TARN/SecurityCP/control/clearAlarm/<1>?format=json\r\n",
                  ASK_JSON(JsonStatus, JsonConfigApp::SetDevClearAlarm(out, 1, err, kUser))),
        StatusRow("JsonConfigApp::SetDevBypass",
                  "POST /TARN/SecurityCP/control/bypass/<3>?format=json\r\n",
                  ASK_JSON(JsonStatus, JsonConfigApp::SetDevBypass(kZones, out, err, 3, kUser))),
        StatusRow(
            "JsonConfigApp::SetDevBypass", "POST /TARN/SecurityCP/control/bypass?format=json\r\n",
            ASK_JSON(JsonStatus, JsonConfigApp::SetDevBypass(kZones, out, err, -1, kUser)), zones),
        StatusRow(
            "JsonConfigApp::SetDevBypassRecover",
            "POST /TARN/SecurityCP/control/bypassRecover/<-2>?format=json\r\n",
            ASK_JSON(JsonStatus, JsonConfigApp::SetDevBypassRecover(kZones, out, err, -2, kUser))),
        StatusRow(
            "JsonConfigApp::SetDevBypassRecover",
            "POST /TARN/SecurityCP/control/bypassRecover?format=json\r\n",
            ASK_JSON(JsonStatus, JsonConfigApp::SetDevBypassRecover(kZones, out, err, -1, kUser)),
            zones),
        OutputRow("POST /TARN/SecurityCP/control/outputs?format=json\r\n",
                  ASK_JSON(JsonErrorStatusList,
                           JsonConfigApp::SetOutputControl(kOutputs, err, out, -1, kUser)),
                  outputs),
        OutputRow("PUT /TARN/SecurityCP/control/outputs/2?format=json\r\n",
                  ASK_JSON(JsonErrorStatusList,
                           JsonConfigApp::SetOutputControl(kOutputs, err, out, 2, kUser)),
                  outputs),
        OutputRow("PUT /TARN/SecurityCP/control/outputs/2?format=json\r\n",
                  ASK_JSON(JsonErrorStatusList,
                           JsonConfigApp::SetOutputControl(kNoOutputs, err, out, 2, kUser)),
                  ""),
        {.name = "JsonConfigApp::GetAlarmHostCommuniStatus",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/status/communication?format=json\r\n",
         .answer = R"({"CommuniStatus": {"wired": "normal", "flow": 1.5}})",
         .ask = ASK_JSON(AlarmHostCommunicationStatus,
                         JsonConfigApp::GetAlarmHostCommuniStatus(out, err, kUser))},
        {.name = "JsonConfigApp::GetAlarmHostZoneConfiguration",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/Configuration/zones?format=json\r\n",
         .answer = R"({"List": [{"Zone": {"id": 1, "zoneName": "door"}}]})",
         .ask = ASK_JSON(AlarmHostZoneConfig,
                         JsonConfigApp::GetAlarmHostZoneConfiguration(out, err, kUser))},
        {.name = "JsonConfigApp::GetSubSystemConfig",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/Configuration/subSys?format=json\r\n",
         .answer = R"({"List": [{"SubSys": {"id": 1, "linkageZones": [1, 2]}}]})",
         .ask = ASK_JSON(AlarmHostSubSystemConfig,
                         JsonConfigApp::GetSubSystemConfig(out, err, kUser))},
        {.name = "JsonConfigApp::GetTriggerConfig",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/Configuration/outputs?format=json\r\n",
         .answer = R"({"List": [{"Output": {"id": 1, "LinkageList": [{"linkage": "alarm"}]}}]})",
         .ask = ASK_JSON(TriggerListConfig, JsonConfigApp::GetTriggerConfig(out, err, kUser))},
        {.name = "JsonConfigApp::GetAlarmHostDeviceLog",
         .file = kFile,
         .line = "POST /TARN/SecurityCP/Log/search?format=json\r\n",
         .answer =
             R"({"SearchResult": {"matchList": [{"searchMatchItem": {"logDescriptor": "x"}}]}})",
         .ask = ASK_JSON(AlarmHostDeviceLogResult,
                         JsonConfigApp::GetAlarmHostDeviceLog(kLogPage, out, err, kUser)),
         .body = logPage,
         .padsBody = true},
        {.name = "JsonConfigApp::GetDetectorStates",
         .file = kFile,
         .line = "GET /TARN/FireControl/Status/detectorStatus?format=json\r\n",
         .answer =
             R"({"List": [{"DetectorStatus": {"Gas": "expired", "Motion": {"status": "x"}}}]})",
         .ask = ASK_JSON(DetectorStates, JsonConfigApp::GetDetectorStates(out, err, kUser))},
        {.name = "JsonConfigApp::GetDetectorSilenceCap",
         .file = kFile,
         .line = "GET /TARN/FireControl/Control/detectorAlarm/capabilities?format=json\r\n",
         .answer =
             R"({"DetectorAlarmCap": {"ChannelDetectorCapList": [{"ChannelID": {"id": {"@max": 4}}}]}})",
         .ask =
             ASK_JSON(DetectorSilenceCap, JsonConfigApp::GetDetectorSilenceCap(out, err, kUser))},
        StatusRow("JsonConfigApp::SetDetectorSilence",
                  "PUT /TARN/FireControl/Control/detectorAlarm/4?format=json\r\n",
                  ASK_JSON(JsonStatus,
                           JsonConfigApp::SetDetectorSilence(out, kSilence, err, 4, -1, kUser)),
                  silence),
        StatusRow("JsonConfigApp::SetDetectorSilence",
                  "PUT /TARN/FireControl/Control/detectorAlarm/4/0?format=json\r\n",
                  ASK_JSON(JsonStatus,
                           JsonConfigApp::SetDetectorSilence(out, kSilence, err, 4, 0, kUser)),
                  silence),
    };
}

}  // namespace TestSupport
