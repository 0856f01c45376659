// The configuration, search and control operations of the protocol's JSON flavour.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostControl.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostInfo.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostStatus.h"
#include "CapabilitySet/JsonTARN/JsonConfig/FireControl.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"

namespace CapabilitySet
{

/// How every operation behaves: output records and the error slot are reset first. True means that
/// the device carried the request out or answered it, whatever the answer's status holds: look at
/// the JsonStatus. On false the error slot holds 43 (the answer is larger than 16,384,000 bytes),
/// 23 (memory ran out), or the SDK's own error number, and but for 43 and 23
/// Keel::Error::GetLastError() tells more; output records stay at their defaults. Channels are
/// given by the SDK's number; one that the SDK cannot convert is false with error 0, and nothing
/// is sent. Operations may be called from any thread.
class CAPABILITYSET_API JsonConfigApp
{
public:
    // Alarm hosts. `subSystemID` and `zoneID` are the host's own numbers.

    /// Arms a subsystem; `ways` is one of the ways that the host's capability lists.
    static bool SetDevArming(JsonStatus& status, const std::string ways, const int subSystemID,
                             unsigned int& error, const int userID);
    /// Disarms a subsystem.
    static bool SetDevDisArm(JsonStatus& status, const int subSystemID, unsigned int& error,
                             const int userID);
    /// Clears a subsystem's alarms.
    static bool SetDevClearAlarm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                 const int userID);
    /// Bypasses a zone, or with zone -1 the zones that `cfg` lists.
    static bool SetDevBypass(const AlarmHostBypassCfg& cfg, JsonStatus& status, unsigned int& error,
                             const int zoneID, const int userID);
    /// Takes a zone back from bypass, or with zone -1 the zones that `cfg` lists.
    static bool SetDevBypassRecover(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                    unsigned int& error, const int zoneID, const int userID);
    /// Switches an output, or with output -1 the outputs that `cfg` lists. Errors of single outputs
    /// are appended to `errors`, which is never cleared.
    static bool SetOutputControl(const AlarmHostOutputCfg& cfg, unsigned int& error,
                                 JsonErrorStatusList& errors, const int outputID, const int userID);
    /// How the host reaches its centre.
    static bool GetAlarmHostCommuniStatus(AlarmHostCommunicationStatus& out, unsigned int& error,
                                          const int userID);
    /// The host's zones.
    static bool GetAlarmHostZoneConfiguration(AlarmHostZoneConfig& out, unsigned int& error,
                                              const int userID);
    /// The host's subsystems.
    static bool GetSubSystemConfig(AlarmHostSubSystemConfig& out, unsigned int& error,
                                   const int userID);
    /// The host's outputs.
    static bool GetTriggerConfig(TriggerListConfig& out, unsigned int& error, const int userID);
    /// One page of the host's log.
    static bool GetAlarmHostDeviceLog(const AlarmHostLogConditionDescription& condition,
                                      AlarmHostDeviceLogResult& out, unsigned int& error,
                                      const int userID);

    // Fire detectors.

    /// The states of all detectors.
    static bool GetDetectorStates(DetectorStates& out, unsigned int& error, const int userID);
    /// Which commands detectors take.
    static bool GetDetectorSilenceCap(DetectorSilenceCap& out, unsigned int& error,
                                      const unsigned int userID);
    /// Commands a detector, or with a `second` that is not negative one of the detectors at it.
    static bool SetDetectorSilence(JsonStatus& status, DetectorSilence command, unsigned int& error,
                                   const int first, const int second, const int userID);
};

}  // namespace CapabilitySet
