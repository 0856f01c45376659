// The configuration, search and control operations of the protocol's JSON flavour.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"

#include "CapabilitySet/private/JsonOperation.h"

namespace CapabilitySet
{
namespace
{

using query::AskJson;
using query::BodyForm;

constexpr query::JsonOptions kPaddedBody{.bodyForm = BodyForm::Padded};
/// Switching outputs takes a host longer than it takes to answer.
constexpr query::JsonOptions kOutputControl{.timeout = 20000, .bodyForm = BodyForm::Padded};
/// The number that stands for "the ones that the body lists".
constexpr int kBatch = -1;

}  // namespace

bool JsonConfigApp::SetDevArming(JsonStatus& status, const std::string ways, const int subSystemID,
                                 unsigned int& error, const int userID)
{
    // Kept: devices expect the angle brackets, here and below.
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/arm/<", subSystemID, ">?ways=<", &ways,
                    ">&format=json\r\n"});
}

bool JsonConfigApp::SetDevDisArm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                 const int userID)
{
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/disarm/<", subSystemID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetDevClearAlarm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                     const int userID)
{
    return AskJson(
        status, error, userID, CAPABILITYSET_HERE,
        {"POST /TARN/SecurityCP/control/clearAlarm/<", subSystemID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetDevBypass(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                 unsigned int& error, const int zoneID, const int userID)
{
    if (zoneID == kBatch)
        return AskJson(
            status, error, userID, CAPABILITYSET_HERE,
            {"POST /TARN/SecurityCP/control/bypass?format=json\r\n"}, [&] { return cfg.Make(); },
            kPaddedBody);
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/bypass/<", zoneID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetDevBypassRecover(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                        unsigned int& error, const int zoneID, const int userID)
{
    if (zoneID == kBatch)
        return AskJson(
            status, error, userID, CAPABILITYSET_HERE,
            {"POST /TARN/SecurityCP/control/bypassRecover?format=json\r\n"},
            [&] { return cfg.Make(); }, kPaddedBody);
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/bypassRecover/<", zoneID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetOutputControl(const AlarmHostOutputCfg& cfg, unsigned int& error,
                                     JsonErrorStatusList& errors, const int outputID,
                                     const int userID)
{
    const auto body = [&] { return cfg.Make(); };
    if (outputID == kBatch)
        return AskJson(errors, error, userID, CAPABILITYSET_HERE,
                       {"POST /TARN/SecurityCP/control/outputs?format=json\r\n"}, body,
                       kOutputControl);
    return AskJson(errors, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/SecurityCP/control/outputs/", outputID, "?format=json\r\n"}, body,
                   kOutputControl);
}

bool JsonConfigApp::GetAlarmHostCommuniStatus(AlarmHostCommunicationStatus& out,
                                              unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/status/communication?format=json\r\n"});
}

bool JsonConfigApp::GetAlarmHostZoneConfiguration(AlarmHostZoneConfig& out, unsigned int& error,
                                                  const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/Configuration/zones?format=json\r\n"});
}

bool JsonConfigApp::GetSubSystemConfig(AlarmHostSubSystemConfig& out, unsigned int& error,
                                       const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/Configuration/subSys?format=json\r\n"});
}

bool JsonConfigApp::GetTriggerConfig(TriggerListConfig& out, unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/Configuration/outputs?format=json\r\n"});
}

bool JsonConfigApp::GetAlarmHostDeviceLog(const AlarmHostLogConditionDescription& condition,
                                          AlarmHostDeviceLogResult& out, unsigned int& error,
                                          const int userID)
{
    return AskJson(
        out, error, userID, CAPABILITYSET_HERE,
        {"POST /TARN/SecurityCP/Log/search?format=json\r\n"}, [&] { return condition.Make(); },
        kPaddedBody);
}

bool JsonConfigApp::GetDetectorStates(DetectorStates& out, unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/FireControl/Status/detectorStatus?format=json\r\n"});
}

bool JsonConfigApp::GetDetectorSilenceCap(DetectorSilenceCap& out, unsigned int& error,
                                          const unsigned int userID)
{
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"GET /TARN/FireControl/Control/detectorAlarm/capabilities?format=json\r\n"});
}

bool JsonConfigApp::SetDetectorSilence(JsonStatus& status, DetectorSilence command,
                                       unsigned int& error, const int first, const int second,
                                       const int userID)
{
    const auto body = [&] { return command.Make(); };
    if (second < 0)
        return AskJson(status, error, userID, CAPABILITYSET_HERE,
                       {"PUT /TARN/FireControl/Control/detectorAlarm/", first, "?format=json\r\n"},
                       body, kPaddedBody);
    return AskJson(
        status, error, userID, CAPABILITYSET_HERE,
        {"PUT /TARN/FireControl/Control/detectorAlarm/", first, "/", second, "?format=json\r\n"},
        body, kPaddedBody);
}

}  // namespace CapabilitySet
