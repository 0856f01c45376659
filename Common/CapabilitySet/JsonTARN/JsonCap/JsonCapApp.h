// The capability queries of the protocol's JSON flavour.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonCap/AlarmHostCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/AnalysisCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/AudioCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/FaceCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/SwitchCap.h"

namespace CapabilitySet
{

/// How every query behaves: the record and the error slot are reset first. True means that the
/// device answered; an answer that is no such document leaves the record at its defaults. On false
/// the error slot holds 43 (the answer is larger than 16,384,000 bytes), 23 (memory ran out), or
/// the SDK's own error number, and but for 43 and 23 Keel::Error::GetLastError() tells more; the
/// record stays at its defaults. Queries may be called from any thread.
class CAPABILITYSET_API JsonCapApp
{
public:
    /// Comparing two pictures of faces.
    static bool GetImagesComparisionCapability(ImagesComparisionCapbility& out, unsigned int& error,
                                               const int userID);
    /// Searching people by their features.
    static bool GetHFPDCapability(HFPDCapbility& out, unsigned int& error, const int userID);
    /// What an alarm host has.
    static bool GetAlarmHostTARNCapability(AlarmHostTARNCapability& out, unsigned int& error,
                                           const int userID);
    /// Commands that an alarm host takes.
    static bool GetAlarmHostOperateCapability(AlarmHostOperateTARNCapability& out,
                                              unsigned int& error, const int userID);
    /// States that an alarm host tells.
    static bool GetAlarmHostStatusCapability(AlarmHostStatusTARNCapability& out,
                                             unsigned int& error, const int userID);
    /// Analysis of the traffic at the crossing that a channel shows.
    /// The channel is the SDK's number; one that the SDK cannot convert is false with error 0, and
    /// nothing is sent.
    static bool GetIntersectionAnalysisCap(IntersectionAnalysisCap& out, unsigned int& error,
                                           const unsigned int userID, const unsigned int channel);
    /// Fibre converters.
    static bool getFiberConvertCapability(FiberConvertCap& out, unsigned int& error, int userID);
    /// Power over Ethernet. Tells no error number: see Keel::Error::GetLastError().
    static bool GetPortPoeInfoListCap(PortPoeInfoListCap& out, int userID);
    /// Searching city management events.
    static bool GetCityManagementCap(CityManagementCapability& out, unsigned int& error,
                                     const unsigned int userID);
    /// Searching the results of behaviour analysis.
    static bool getDeeplyThinkAnalysisCap(DeeplyThinkBehaviorCap& out, unsigned int& error,
                                          const unsigned int userID);
    /// Confirming alarms. A failure leaves the last error as it was.
    static bool getmisinfoConfirmCap(MisinfoConfirmCap& out, unsigned int& error,
                                     const unsigned int userID);
    /// Searching detected sounds.
    static bool GetAudioDetectionSearchCap(AudioDetectionSearchCapability& out, unsigned int& error,
                                           const unsigned int userID);
    /// Importing sounds into a library.
    static bool GetImportAudioLibCap(ImportAudioLibCap& out, unsigned int& error,
                                     const unsigned int userID);
};

}  // namespace CapabilitySet
