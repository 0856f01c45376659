// The capability queries of the protocol's JSON flavour.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"

#include "CapabilitySet/private/query/JsonOperation.h"

namespace CapabilitySet
{

using query::AskJson;

bool JsonCapApp::GetImagesComparisionCapability(ImagesComparisionCapbility& out,
                                                unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/imagesComparision/face/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetHFPDCapability(HFPDCapbility& out, unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SDT/HFPD/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetAlarmHostTARNCapability(AlarmHostTARNCapability& out, unsigned int& error,
                                            const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetAlarmHostOperateCapability(AlarmHostOperateTARNCapability& out,
                                               unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/control/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetAlarmHostStatusCapability(AlarmHostStatusTARNCapability& out,
                                              unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/status/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetIntersectionAnalysisCap(IntersectionAnalysisCap& out, unsigned int& error,
                                            const unsigned int userID, const unsigned int channel)
{
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/channels/", query::SdkChannel{static_cast<int>(channel)},
                    "/intersectionAnalysis/capabilities?format=json\r\n"});
}

bool JsonCapApp::getFiberConvertCapability(FiberConvertCap& out, unsigned int& error, int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Transfers/FiberConvert/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetPortPoeInfoListCap(PortPoeInfoListCap& out, int userID)
{
    unsigned int error = 0;
    return AskJson(
        out, error, userID, CAPABILITYSET_HERE,
        {"GET /TARN/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetCityManagementCap(CityManagementCapability& out, unsigned int& error,
                                      const unsigned int userID)
{
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/cityManagement/search/capabilities?format=json\r\n"});
}

bool JsonCapApp::getDeeplyThinkAnalysisCap(DeeplyThinkBehaviorCap& out, unsigned int& error,
                                           const unsigned int userID)
{
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"GET /TARN/SDT/Management/analysisResult/capabilities?format=json\r\n"});
}

bool JsonCapApp::getmisinfoConfirmCap(MisinfoConfirmCap& out, unsigned int& error,
                                      const unsigned int userID)
{
    // Kept: the line without a method, and the bare tag that support staff search logs for.
    static constexpr query::Policy kPolicy{.growth = query::kJson.growth,
                                           .limit = query::LimitReport::Silent,
                                           .failure = query::FailureReport::Tag,
                                           .failureTag = "quorbel58"};
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"/TARN/Intelligent/misinfoFilter/confirmation/capabilities?format=json"},
                   query::NoBody(), kPolicy);
}

bool JsonCapApp::GetAudioDetectionSearchCap(AudioDetectionSearchCapability& out,
                                            unsigned int& error, const unsigned int userID)
{
    return AskJson(
        out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
        {"GET /TARN/Intelligent/AIOpenPlatform/audioDetectionSearch/capabilities?format=json\r\n"});
}

bool JsonCapApp::GetImportAudioLibCap(ImportAudioLibCap& out, unsigned int& error,
                                      const unsigned int userID)
{
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/AIOpenPlatform/audioDetection/",
                    "importAudioLib/capabilities?format=json\r\n"});
}

}  // namespace CapabilitySet
