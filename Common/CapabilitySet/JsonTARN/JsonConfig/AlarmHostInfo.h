// What an alarm host tells beyond the library's own queries: the client fetches these itself.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonTARN/JsonRecord.h"

namespace CapabilitySet
{

// Members bear the names of their keys.

/// Siren settings. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmSirenCfg : JsonRecord<AlarmSirenCfg>
{
    static constexpr const char* kKey = "";

    AlarmSirenCfg() = default;
    explicit AlarmSirenCfg(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// Contact-ID reporting settings. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmHostCIDAlarmCfg : JsonRecord<AlarmHostCIDAlarmCfg>
{
    static constexpr const char* kKey = "";

    AlarmHostCIDAlarmCfg() = default;
    explicit AlarmHostCIDAlarmCfg(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// State of a siren. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmSirenStatus : JsonRecord<AlarmSirenStatus>
{
    static constexpr const char* kKey = "";

    AlarmSirenStatus() = default;
    explicit AlarmSirenStatus(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// State of the subsystems. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmHostSubSystemsInfo : JsonRecord<AlarmHostSubSystemsInfo>
{
    static constexpr const char* kKey = "";

    AlarmHostSubSystemsInfo() = default;
    explicit AlarmHostSubSystemsInfo(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// State of the output modules. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmHostOutputsModulesInfo : JsonRecord<AlarmHostOutputsModulesInfo>
{
    static constexpr const char* kKey = "";

    AlarmHostOutputsModulesInfo() = default;
    explicit AlarmHostOutputsModulesInfo(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// State of the zones. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmHostZonesInfo : JsonRecord<AlarmHostZonesInfo>
{
    static constexpr const char* kKey = "";

    AlarmHostZonesInfo() = default;
    explicit AlarmHostZonesInfo(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// State of the sirens. The members are the device's own: see `root`.
struct CAPABILITYSET_API AlarmHostSirensInfo : JsonRecord<AlarmHostSirensInfo>
{
    static constexpr const char* kKey = "";

    AlarmHostSirensInfo() = default;
    explicit AlarmHostSirensInfo(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

}  // namespace CapabilitySet
