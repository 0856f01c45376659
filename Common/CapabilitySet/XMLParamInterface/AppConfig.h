// Applications installed on a device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/XmlRecord.h"

namespace CapabilitySet
{

/// An application installed on a device.
struct CAPABILITYSET_API App : XmlRecord<App>
{
    static constexpr const char* kElement = "App";
    static constexpr const char* kVersion = "2.0";

    int id = 0;         ///< its place in the list, from 1
    std::string AppID;  ///< its name in the whole world
    std::string packageName;
    std::string softVersion;
    std::string runStatus;      ///< such as "running" or "stopped"
    std::string licenseStatus;  ///< such as "licensed", "trial" or "expired"
    std::string expireTime;     ///< of the licence; empty: never
    int cpuUtilization = 0;     ///< percent
    double memoryUsage = 0;     ///< megabytes
    double diskUsage = 0;       ///< megabytes

    App() = default;
    explicit App(const std::string& text) { Parse(text); }
    explicit App(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("AppID", r.AppID);
        field("packageName", r.packageName);
        field("softVersion", r.softVersion);
        field("runStatus", r.runStatus);
        field("licenseStatus", r.licenseStatus);
        field("expireTime", r.expireTime);
        field("cpuUtilization", r.cpuUtilization);
        field("memoryUsage", r.memoryUsage);
        field("diskUsage", r.diskUsage);
    }
};

struct CAPABILITYSET_API AppList : XmlRecord<AppList>
{
    static constexpr const char* kElement = "AppList";
    static constexpr const char* kVersion = "2.0";

    std::vector<std::shared_ptr<App>> app;

    AppList() = default;
    explicit AppList(const std::string& text) { Parse(text); }
    explicit AppList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("App", r.app, as::repeated);
    }
};

}  // namespace CapabilitySet
