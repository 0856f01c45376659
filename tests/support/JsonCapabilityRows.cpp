// The capability queries of the protocol's JSON flavour, as rows.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "support/JsonOperations.h"

namespace TestSupport
{

using namespace CapabilitySet;

std::vector<JsonOperationRow> JsonCapabilityRows()
{
    auto poe =
        JSON_ROW(JsonCapApp, GetPortPoeInfoListCap, PortPoeInfoListCap, (out, kUser),
                 "GET /TARN/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json\r\n",
                 R"({"PortPOEInfoListCap": {"PortPOEInfo": {"power": {"@max": 30}}}})");
    poe.tellsError = false;
    auto misinfo =
        JSON_QUERY_ROW(JsonCapApp, getmisinfoConfirmCap, MisinfoConfirmCap,
                       "/TARN/Intelligent/misinfoFilter/confirmation/capabilities?format=json",
                       R"({"misinfoConfirmCap": {"state": {"@opt": ["correct", "misinfo"]}}})");
    misinfo.onlyLine = "quorbel58";
    return {
        std::move(poe),
        std::move(misinfo),
        JSON_QUERY_ROW(JsonCapApp, GetImagesComparisionCapability, ImagesComparisionCapbility,
                       "GET /TARN/Intelligent/imagesComparision/face/capabilities?format=json\r\n",
                       R"({"imagesComparision": {"dataType": {"@opt": ["URL", "binary"]}}})"),
        JSON_QUERY_ROW(JsonCapApp, GetHFPDCapability, HFPDCapbility,
                       "GET /TARN/SDT/HFPD/capabilities?format=json\r\n",
                       R"({"HFPDCap": {"occurrences": {"@min": 1, "@max": 90, "@def": 3}}})"),
        JSON_QUERY_ROW(JsonCapApp, GetAlarmHostTARNCapability, AlarmHostTARNCapability,
                       "GET /TARN/SecurityCP/capabilities?format=json\r\n",
                       R"({"SecurityCPCap": {"partitionNum": 8}})"),
        JSON_QUERY_ROW(JsonCapApp, GetAlarmHostOperateCapability, AlarmHostOperateTARNCapability,
                       "GET /TARN/SecurityCP/control/capabilities?format=json\r\n",
                       R"({"HostControlCap": {"SubSysCap": {"isSptArm": true},
                                          "ZoneCap": {"isSptBypassRecover": true}}})"),
        JSON_QUERY_ROW(JsonCapApp, GetAlarmHostStatusCapability, AlarmHostStatusTARNCapability,
                       "GET /TARN/SecurityCP/status/capabilities?format=json\r\n",
                       R"({"HostStatusCap": {"isSptAllHost": true}})"),
        JSON_ROW(
            JsonCapApp, GetIntersectionAnalysisCap, IntersectionAnalysisCap, (out, err, kUser, 3),
            "GET /TARN/Intelligent/channels/35/intersectionAnalysis/capabilities?format=json\r\n",
            R"({"IntersectionAnalysisCap": {"TagID": {"isSupportIDPoint": "true"}}})"),
        JSON_QUERY_ROW(JsonCapApp, getFiberConvertCapability, FiberConvertCap,
                       "GET /TARN/Transfers/FiberConvert/capabilities?format=json\r\n",
                       R"({"FiberConvertCap": {"isSupportCrateSlotStatus": true}})"),
        JSON_QUERY_ROW(JsonCapApp, GetCityManagementCap, CityManagementCapability,
                       "GET /TARN/Intelligent/cityManagement/search/capabilities?format=json\r\n",
                       R"({"SearchDescription": {"maxResults": {"@max": 50}, "channelID": 2}})"),
        JSON_QUERY_ROW(
            JsonCapApp, getDeeplyThinkAnalysisCap, DeeplyThinkBehaviorCap,
            "GET /TARN/SDT/Management/analysisResult/capabilities?format=json\r\n",
            R"({"SearchCap": {"endTime": {"@min": 1}, "CountByTask": {"enabled": true}}})"),
        JSON_QUERY_ROW(JsonCapApp, GetAudioDetectionSearchCap, AudioDetectionSearchCapability,
                       "GET /TARN/Intelligent/AIOpenPlatform/audioDetectionSearch/capabilities"
                       "?format=json\r\n",
                       R"({"anything": [1]})"),
        JSON_QUERY_ROW(
            JsonCapApp, GetImportAudioLibCap, ImportAudioLibCap,
            "GET /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib/capabilities"
            "?format=json\r\n",
            R"({"DestinationData": {"sampleName": {"@max": 32}}})"),
    };
}

}  // namespace TestSupport
