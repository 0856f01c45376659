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

/// One application installed on a device.
struct CAPABILITYSET_API App : XmlRecord<App>
{
    static constexpr const char* kElement = "App";
    static constexpr const char* kVersion = "2.0";

    int id = 0;                 ///< place in the list, from 1
    std::string AppID;          ///< identifier, unique worldwide
    std::string packageName;    ///< name of the package
    std::string softVersion;    ///< version, such as "V1.4.0"
    std::string runStatus;      ///< such as "running" or "stopped"
    std::string licenseStatus;  ///< such as "licensed", "trial" or "expired"
    std::string expireTime;     ///< ISO 8601, end of the licence; empty if it does not end
    int cpuUtilization = 0;     ///< percent
    double memoryUsage = 0;     ///< MB
    double diskUsage = 0;       ///< MB

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

/// The applications installed on a device.
struct CAPABILITYSET_API AppList : XmlRecord<AppList>
{
    static constexpr const char* kElement = "AppList";
    static constexpr const char* kVersion = "2.0";

    std::vector<std::shared_ptr<App>> app;  ///< one per application

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
