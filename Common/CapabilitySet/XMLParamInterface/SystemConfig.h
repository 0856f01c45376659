// How a device is found on the network, and how it is doing.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/XmlRecord.h"

namespace CapabilitySet
{

/// By which protocols a device can be found.
struct CAPABILITYSET_API DiscoveryMode : XmlRecord<DiscoveryMode>
{
    static constexpr const char* kElement = "DiscoveryMode";
    static constexpr const char* kVersion = "v2.0";

    bool ONVIFDiscoveryMode = false;
    bool TARNDiscoveryMode = false;  ///< the device protocol's own
    bool PcapMode = false;           ///< answers raw frames
    bool SADP = false;

    DiscoveryMode() = default;
    explicit DiscoveryMode(const std::string& text) { Parse(text); }
    explicit DiscoveryMode(_xmlNode* element) { Parse(element); }

    /// The same as createXml(), under the name that clients know.
    [[nodiscard]] std::string createString() const { return createXml(); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ONVIFDiscoveryMode", r.ONVIFDiscoveryMode);
        field("TARNDiscoveryMode", r.TARNDiscoveryMode);
        field("PcapMode", r.PcapMode);
        field("SADP", r.SADP);
    }
};

struct CAPABILITYSET_API TemperatureSensor : XmlRecord<TemperatureSensor>
{
    static constexpr const char* kElement = "Temperature";

    std::string tempSensorDescription;
    double temperature = 0;  ///< degrees Celsius

    TemperatureSensor() = default;
    explicit TemperatureSensor(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("tempSensorDescription", r.tempSensorDescription);
        field("temperature", r.temperature);
    }
};

struct CAPABILITYSET_API FanStatus : XmlRecord<FanStatus>
{
    static constexpr const char* kElement = "Fan";

    std::string fanDescription;
    int speed = 0;  ///< turns a minute

    FanStatus() = default;
    explicit FanStatus(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("fanDescription", r.fanDescription);
        field("speed", r.speed);
    }
};

struct CAPABILITYSET_API PressureSensor : XmlRecord<PressureSensor>
{
    static constexpr const char* kElement = "Pressure";

    std::string pressureSensorDescription;
    double pressure = 0;  ///< kilopascal

    PressureSensor() = default;
    explicit PressureSensor(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("pressureSensorDescription", r.pressureSensorDescription);
        field("pressure", r.pressure);
    }
};

/// How a device is doing.
struct CAPABILITYSET_API DeviceStatus : XmlRecord<DeviceStatus>
{
    static constexpr const char* kElement = "DeviceStatus";

    std::string currentDeviceTime;  ///< such as "2020-01-01T00:00:00+01:00"
    int deviceUpTime = 0;           ///< seconds
    std::vector<std::shared_ptr<TemperatureSensor>> TemperatureList;
    std::vector<std::shared_ptr<FanStatus>> FanList;
    std::vector<std::shared_ptr<PressureSensor>> PressureList;

    DeviceStatus() = default;
    explicit DeviceStatus(const std::string& text) { Parse(text); }
    explicit DeviceStatus(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("currentDeviceTime", r.currentDeviceTime);
        field("deviceUpTime", r.deviceUpTime);
        field("TemperatureList", r.TemperatureList, as::Items{"Temperature"});
        field("FanList", r.FanList, as::Items{"Fan"});
        field("PressureList", r.PressureList, as::Items{"Pressure"});
    }
};

}  // namespace CapabilitySet
