// The capability queries of the protocol's JSON flavour, as rows.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "support/JsonOperations.h"

namespace TestSupport
{

using namespace CapabilitySet;

std::vector<JsonOperationRow> JsonCapabilityRows()
{
    constexpr const char* kFile = "JsonCap/JsonCapApp.cpp";
    return {
        {.name = "JsonCapApp::GetImagesComparisionCapability",
         .file = kFile,
         .line = "GET /TARN/Intelligent/imagesComparision/face/capabilities?format=json\r\n",
         .answer = R"({"imagesComparision": {"dataType": {"@opt": ["URL", "binary"]}}})",
         .ask = ASK_JSON(ImagesComparisionCapbility,
                         JsonCapApp::GetImagesComparisionCapability(out, err, kUser))},
        {.name = "JsonCapApp::GetHFPDCapability",
         .file = kFile,
         .line = "GET /TARN/SDT/HFPD/capabilities?format=json\r\n",
         .answer = R"({"HFPDCap": {"occurrences": {"@min": 1, "@max": 90, "@def": 3}}})",
         .ask = ASK_JSON(HFPDCapbility, JsonCapApp::GetHFPDCapability(out, err, kUser))},
        {.name = "JsonCapApp::GetAlarmHostTARNCapability",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/capabilities?format=json\r\n",
         .answer = R"({"SecurityCPCap": {"partitionNum": 8}})",
         .ask = ASK_JSON(AlarmHostTARNCapability,
                         JsonCapApp::GetAlarmHostTARNCapability(out, err, kUser))},
        {.name = "JsonCapApp::GetAlarmHostOperateCapability",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/control/capabilities?format=json\r\n",
         .answer = R"({"HostControlCap": {"SubSysCap": {"isSptArm": true},
                                          "ZoneCap": {"isSptBypassRecover": true}}})",
         .ask = ASK_JSON(AlarmHostOperateTARNCapability,
                         JsonCapApp::GetAlarmHostOperateCapability(out, err, kUser))},
        {.name = "JsonCapApp::GetAlarmHostStatusCapability",
         .file = kFile,
         .line = "GET /TARN/SecurityCP/status/capabilities?format=json\r\n",
         .answer = R"({"HostStatusCap": {"isSptAllHost": true}})",
         .ask = ASK_JSON(AlarmHostStatusTARNCapability,
                         JsonCapApp::GetAlarmHostStatusCapability(out, err, kUser))},
        {.name = "JsonCapApp::GetIntersectionAnalysisCap",
         .file = kFile,
         .line = "GET /TARN/Intelligent/channels/35/intersectionAnalysis/capabilities"
                 "?format=json\r\n",
         .answer = R"({"IntersectionAnalysisCap": {"TagID": {"isSupportIDPoint": "true"}}})",
         .ask = ASK_JSON(IntersectionAnalysisCap,
                         JsonCapApp::GetIntersectionAnalysisCap(out, err, kUser, 3)),
         .convertsChannel = true},
        {.name = "JsonCapApp::getFiberConvertCapability",
         .file = kFile,
         .line = "GET /TARN/Transfers/FiberConvert/capabilities?format=json\r\n",
         .answer = R"({"FiberConvertCap": {"isSupportCrateSlotStatus": true}})",
         .ask = ASK_JSON(FiberConvertCap, JsonCapApp::getFiberConvertCapability(out, err, kUser))},
        {.name = "JsonCapApp::GetPortPoeInfoListCap",
         .file = kFile,
         .line = "GET /TARN/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json\r\n",
         .answer = R"({"PortPOEInfoListCap": {"PortPOEInfo": {"power": {"@max": 30}}}})",
         .ask = ASK_JSON(PortPoeInfoListCap, JsonCapApp::GetPortPoeInfoListCap(out, kUser)),
         .tellsError = false},
        {.name = "JsonCapApp::GetCityManagementCap",
         .file = kFile,
         .line = "GET /TARN/Intelligent/cityManagement/search/capabilities?format=json\r\n",
         .answer = R"({"SearchDescription": {"maxResults": {"@max": 50}, "channelID": 2}})",
         .ask =
             ASK_JSON(CityManagementCapability, JsonCapApp::GetCityManagementCap(out, err, kUser))},
        {.name = "JsonCapApp::getDeeplyThinkAnalysisCap",
         .file = kFile,
         .line = "GET /TARN/SDT/Management/analysisResult/capabilities?format=json\r\n",
         .answer = R"({"SearchCap": {"endTime": {"@min": 1}, "CountByTask": {"enabled": true}}})",
         .ask = ASK_JSON(DeeplyThinkBehaviorCap,
                         JsonCapApp::getDeeplyThinkAnalysisCap(out, err, kUser))},
        {.name = "JsonCapApp::getmisinfoConfirmCap",
         .file = kFile,
         .line = "/TARN/Intelligent/misinfoFilter/confirmation/capabilities?format=json",
         .answer = R"({"misinfoConfirmCap": {"state": {"@opt": ["correct", "misinfo"]}}})",
         .ask = ASK_JSON(MisinfoConfirmCap, JsonCapApp::getmisinfoConfirmCap(out, err, kUser)),
         .onlyLine = "quorbel58"},
        {.name = "JsonCapApp::GetAudioDetectionSearchCap",
         .file = kFile,
         .line = "GET /TARN/Intelligent/AIOpenPlatform/audioDetectionSearch/capabilities"
                 "?format=json\r\n",
         .answer = R"({"anything": [1]})",
         .ask = ASK_JSON(AudioDetectionSearchCapability,
                         JsonCapApp::GetAudioDetectionSearchCap(out, err, kUser))},
        {.name = "JsonCapApp::GetImportAudioLibCap",
         .file = kFile,
         .line = "GET /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib/capabilities"
                 "?format=json\r\n",
         .answer = R"({"DestinationData": {"sampleName": {"@max": 32}}})",
         .ask = ASK_JSON(ImportAudioLibCap, JsonCapApp::GetImportAudioLibCap(out, err, kUser))},
    };
}

}  // namespace TestSupport
