// Further alarm host documents, which the client fetches itself.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// Siren settings.
struct CAPABILITYSET_API AlarmSirenCfg : JsonTree<AlarmSirenCfg>
{
    AlarmSirenCfg() = default;
    explicit AlarmSirenCfg(const std::string& text) { Parse(text); }
};

/// Contact ID reporting settings.
struct CAPABILITYSET_API AlarmHostCIDAlarmCfg : JsonTree<AlarmHostCIDAlarmCfg>
{
    AlarmHostCIDAlarmCfg() = default;
    explicit AlarmHostCIDAlarmCfg(const std::string& text) { Parse(text); }
};

/// State of a siren.
struct CAPABILITYSET_API AlarmSirenStatus : JsonTree<AlarmSirenStatus>
{
    AlarmSirenStatus() = default;
    explicit AlarmSirenStatus(const std::string& text) { Parse(text); }
};

/// State of the subsystems.
struct CAPABILITYSET_API AlarmHostSubSystemsInfo : JsonTree<AlarmHostSubSystemsInfo>
{
    AlarmHostSubSystemsInfo() = default;
    explicit AlarmHostSubSystemsInfo(const std::string& text) { Parse(text); }
};

/// State of the output modules.
struct CAPABILITYSET_API AlarmHostOutputsModulesInfo : JsonTree<AlarmHostOutputsModulesInfo>
{
    AlarmHostOutputsModulesInfo() = default;
    explicit AlarmHostOutputsModulesInfo(const std::string& text) { Parse(text); }
};

/// State of the zones.
struct CAPABILITYSET_API AlarmHostZonesInfo : JsonTree<AlarmHostZonesInfo>
{
    AlarmHostZonesInfo() = default;
    explicit AlarmHostZonesInfo(const std::string& text) { Parse(text); }
};

/// State of the sirens.
struct CAPABILITYSET_API AlarmHostSirensInfo : JsonTree<AlarmHostSirensInfo>
{
    AlarmHostSirensInfo() = default;
    explicit AlarmHostSirensInfo(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
