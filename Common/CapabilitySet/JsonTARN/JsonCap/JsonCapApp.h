// Capability queries in the protocol's JSON form. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonCap/AlarmHostCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/AnalysisCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/AudioCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/FaceCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/SwitchCap.h"

namespace CapabilitySet
{

/// As in Queries.h, with these differences: only the SDK's 43 grows the buffer, its 1000 and 1001
/// are passed on unchanged, and 23 means that memory ran out. An answer that is not the document
/// leaves the record at its defaults and returns true.
class CAPABILITYSET_API JsonCapApp
{
public:
    /// Comparing the faces in pictures.
    /// GET /TARN/Intelligent/imagesComparision/face/capabilities?format=json
    static bool GetImagesComparisionCapability(ImagesComparisionCapbility& out, unsigned int& error,
                                               const int userID);
    /// Searching people by their features.
    /// GET /TARN/SDT/HFPD/capabilities?format=json
    static bool GetHFPDCapability(HFPDCapbility& out, unsigned int& error, const int userID);
    /// Parts of an alarm host.
    /// GET /TARN/SecurityCP/capabilities?format=json
    static bool GetAlarmHostTARNCapability(AlarmHostTARNCapability& out, unsigned int& error,
                                           const int userID);
    /// Commands that an alarm host accepts.
    /// GET /TARN/SecurityCP/control/capabilities?format=json
    static bool GetAlarmHostOperateCapability(AlarmHostOperateTARNCapability& out,
                                              unsigned int& error, const int userID);
    /// States that an alarm host reports.
    /// GET /TARN/SecurityCP/status/capabilities?format=json
    static bool GetAlarmHostStatusCapability(AlarmHostStatusTARNCapability& out,
                                             unsigned int& error, const int userID);
    /// Traffic analysis at an intersection. If the SDK cannot convert the channel: false with
    /// error 0, and nothing is sent.
    /// GET /TARN/Intelligent/channels/{channel}/intersectionAnalysis/capabilities?format=json
    static bool GetIntersectionAnalysisCap(IntersectionAnalysisCap& out, unsigned int& error,
                                           const unsigned int userID, const unsigned int channel);
    /// Fibre converters.
    /// GET /TARN/Transfers/FiberConvert/capabilities?format=json
    static bool getFiberConvertCapability(FiberConvertCap& out, unsigned int& error, int userID);
    /// Power over Ethernet. Has no error argument: see Keel::Error::GetLastError().
    /// GET /TARN/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json
    static bool GetPortPoeInfoListCap(PortPoeInfoListCap& out, int userID);
    /// Searching city management events.
    /// GET /TARN/Intelligent/cityManagement/search/capabilities?format=json
    static bool GetCityManagementCap(CityManagementCapability& out, unsigned int& error,
                                     const unsigned int userID);
    /// Searching the results of behaviour analysis.
    /// GET /TARN/SDT/Management/analysisResult/capabilities?format=json
    static bool getDeeplyThinkAnalysisCap(DeeplyThinkBehaviorCap& out, unsigned int& error,
                                          const unsigned int userID);
    /// Confirming or rejecting alarms.
    /// /TARN/Intelligent/misinfoFilter/confirmation/capabilities?format=json
    // Kept: the line is sent without a method and CR LF; a failure does not set the last error.
    static bool getmisinfoConfirmCap(MisinfoConfirmCap& out, unsigned int& error,
                                     const unsigned int userID);
    /// Searching detected sounds.
    /// GET /TARN/Intelligent/AIOpenPlatform/audioDetectionSearch/capabilities?format=json
    static bool GetAudioDetectionSearchCap(AudioDetectionSearchCapability& out, unsigned int& error,
                                           const unsigned int userID);
    /// Importing sounds into a library.
    /// GET /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib/capabilities?format=json
    static bool GetImportAudioLibCap(ImportAudioLibCap& out, unsigned int& error,
                                     const unsigned int userID);
};

}  // namespace CapabilitySet
