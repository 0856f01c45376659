// The operations of alarm hosts and fire detectors, as rows.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "support/JsonOperations.h"

namespace TestSupport
{
namespace
{

using namespace CapabilitySet;

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

/// Alarm hosts get bodies in 8,192 zeroed bytes.
#define HOST_ROW(operation, Record, arguments, ...) \
    Padded(JSON_ROW(JsonConfigApp, operation, Record, arguments, __VA_ARGS__))

JsonOperationRow Padded(JsonOperationRow row)
{
    row.padsBody = !row.body.empty();
    return row;
}

JsonOperationRow OutputRow(JsonOperationRow row)
{
    row.padsBody = true;
    row.timeout = 20000;
    row.keepsRecord = true;
    return row;
}

}  // namespace

std::vector<JsonOperationRow> AlarmHostRows()
{
    constexpr const char* kZoneBody = R"({"zone": "1-4,50%"})";
    constexpr const char* kOutputBody =
        R"({"OutputsCtrl": {"switch": "open", "List": [{"id": 2}, {"id": -3}]}})";
    constexpr const char* kSilenceBody = R"({"DetectorAlarm": {"cmd": "silence"}})";
    constexpr const char* kLogBody = R"({"SearchDescription": {
        "searchID": "a", "searchResultPostion": "0", "maxResults": "30",
        "metaID": "log.tarn.example", "timeSpanList": [{"timeSpan": {
            "startTime": "2020-01-01T00:00:00", "endTIme": "2020-01-02T00:00:00"}}]}})";
    return {
        HOST_ROW(SetDevArming, JsonStatus, (out, "away", 1, err, kUser),
                 "POST /TARN/SecurityCP/control/arm/<1>?ways=<away>&format=json\r\n", kRefused),
        HOST_ROW(SetDevArming, JsonStatus, (out, "a%%b%s", -2, err, kUser),
                 "POST /TARN/SecurityCP/control/arm/<-2>?ways=<a%b>&format=json\r\n", kRefused),
        HOST_ROW(SetDevDisArm, JsonStatus, (out, 1, err, kUser),
                 "POST /TARN/SecurityCP/control/disarm/<1>?format=json\r\n", kRefused),
        HOST_ROW(SetDevClearAlarm, JsonStatus, (out, 1, err, kUser),
                 "POST /TARN/SecurityCP/control/clearAlarm/<1>?format=json\r\n", kRefused),
        HOST_ROW(SetDevBypass, JsonStatus, (kZones, out, err, 3, kUser),
                 "POST /TARN/SecurityCP/control/bypass/<3>?format=json\r\n", kRefused),
        HOST_ROW(SetDevBypass, JsonStatus, (kZones, out, err, -1, kUser),
                 "POST /TARN/SecurityCP/control/bypass?format=json\r\n", kRefused, kZoneBody),
        HOST_ROW(SetDevBypassRecover, JsonStatus, (kZones, out, err, -2, kUser),
                 "POST /TARN/SecurityCP/control/bypassRecover/<-2>?format=json\r\n", kRefused),
        HOST_ROW(SetDevBypassRecover, JsonStatus, (kZones, out, err, -1, kUser),
                 "POST /TARN/SecurityCP/control/bypassRecover?format=json\r\n", kRefused,
                 kZoneBody),
        OutputRow(JSON_ROW(
            JsonConfigApp, SetOutputControl, JsonErrorStatusList, (kOutputs, err, out, -1, kUser),
            "POST /TARN/SecurityCP/control/outputs?format=json\r\n", kErrors, kOutputBody)),
        OutputRow(JSON_ROW(
            JsonConfigApp, SetOutputControl, JsonErrorStatusList, (kOutputs, err, out, 2, kUser),
            "PUT /TARN/SecurityCP/control/outputs/2?format=json\r\n", kErrors, kOutputBody)),
        OutputRow(JSON_ROW(JsonConfigApp, SetOutputControl, JsonErrorStatusList,
                           (kNoOutputs, err, out, 2, kUser),
                           "PUT /TARN/SecurityCP/control/outputs/2?format=json\r\n", kErrors)),
        JSON_QUERY_ROW(JsonConfigApp, GetAlarmHostCommuniStatus, AlarmHostCommunicationStatus,
                       "GET /TARN/SecurityCP/status/communication?format=json\r\n",
                       R"({"CommuniStatus": {"wired": "normal", "flow": 1.5}})"),
        JSON_QUERY_ROW(JsonConfigApp, GetAlarmHostZoneConfiguration, AlarmHostZoneConfig,
                       "GET /TARN/SecurityCP/Configuration/zones?format=json\r\n",
                       R"({"List": [{"Zone": {"id": 1, "zoneName": "door"}}]})"),
        JSON_QUERY_ROW(JsonConfigApp, GetSubSystemConfig, AlarmHostSubSystemConfig,
                       "GET /TARN/SecurityCP/Configuration/subSys?format=json\r\n",
                       R"({"List": [{"SubSys": {"id": 1, "linkageZones": [1, 2]}}]})"),
        JSON_QUERY_ROW(
            JsonConfigApp, GetTriggerConfig, TriggerListConfig,
            "GET /TARN/SecurityCP/Configuration/outputs?format=json\r\n",
            R"({"List": [{"Output": {"id": 1, "LinkageList": [{"linkage": "alarm"}]}}]})"),
        HOST_ROW(
            GetAlarmHostDeviceLog, AlarmHostDeviceLogResult, (kLogPage, out, err, kUser),
            "POST /TARN/SecurityCP/Log/search?format=json\r\n",
            R"({"SearchResult": {"matchList": [{"searchMatchItem": {"logDescriptor": "x"}}]}})",
            kLogBody),
        JSON_QUERY_ROW(
            JsonConfigApp, GetDetectorStates, DetectorStates,
            "GET /TARN/FireControl/Status/detectorStatus?format=json\r\n",
            R"({"List": [{"DetectorStatus": {"Gas": "expired", "Motion": {"status": "x"}}}]})"),
        JSON_QUERY_ROW(
            JsonConfigApp, GetDetectorSilenceCap, DetectorSilenceCap,
            "GET /TARN/FireControl/Control/detectorAlarm/capabilities?format=json\r\n",
            R"({"DetectorAlarmCap": {"ChannelDetectorCapList": [{"ChannelID": {"id": {"@max": 4}}}]}})"),
        HOST_ROW(SetDetectorSilence, JsonStatus, (out, kSilence, err, 4, -1, kUser),
                 "PUT /TARN/FireControl/Control/detectorAlarm/4?format=json\r\n", kRefused,
                 kSilenceBody),
        HOST_ROW(SetDetectorSilence, JsonStatus, (out, kSilence, err, 4, 0, kUser),
                 "PUT /TARN/FireControl/Control/detectorAlarm/4/0?format=json\r\n", kRefused,
                 kSilenceBody),
    };
}

}  // namespace TestSupport
