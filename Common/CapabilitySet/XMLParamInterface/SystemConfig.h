// Discovery settings and system status of a device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/XmlRecord.h"

namespace CapabilitySet
{

/// The protocols by which a device can be discovered.
struct CAPABILITYSET_API DiscoveryMode : XmlRecord<DiscoveryMode>
{
    static constexpr const char* kElement = "DiscoveryMode";
    static constexpr const char* kVersion = "v2.0";

    bool ONVIFDiscoveryMode = false;  ///< ONVIF discovery
    bool TARNDiscoveryMode = false;   ///< the device protocol's own discovery
    bool PcapMode = false;            ///< discovery by raw frames
    bool SADP = false;                ///< the device discovery protocol

    DiscoveryMode() = default;
    explicit DiscoveryMode(const std::string& text) { Parse(text); }
    explicit DiscoveryMode(_xmlNode* element) { Parse(element); }

    /// The same as createXml(), under the name that clients use.
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

/// One temperature sensor.
struct CAPABILITYSET_API TemperatureSensor : XmlRecord<TemperatureSensor>
{
    static constexpr const char* kElement = "Temperature";

    std::string tempSensorDescription;  ///< where the sensor is
    double temperature = 0;             ///< degrees Celsius

    TemperatureSensor() = default;
    explicit TemperatureSensor(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("tempSensorDescription", r.tempSensorDescription);
        field("temperature", r.temperature);
    }
};

/// One fan.
struct CAPABILITYSET_API FanStatus : XmlRecord<FanStatus>
{
    static constexpr const char* kElement = "Fan";

    std::string fanDescription;  ///< which fan it is
    int speed = 0;               ///< revolutions per minute

    FanStatus() = default;
    explicit FanStatus(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("fanDescription", r.fanDescription);
        field("speed", r.speed);
    }
};

/// One pressure sensor.
struct CAPABILITYSET_API PressureSensor : XmlRecord<PressureSensor>
{
    static constexpr const char* kElement = "Pressure";

    std::string pressureSensorDescription;  ///< where the sensor is
    double pressure = 0;                    ///< kPa

    PressureSensor() = default;
    explicit PressureSensor(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("pressureSensorDescription", r.pressureSensorDescription);
        field("pressure", r.pressure);
    }
};

/// The system status of a device.
struct CAPABILITYSET_API DeviceStatus : XmlRecord<DeviceStatus>
{
    static constexpr const char* kElement = "DeviceStatus";

    std::string currentDeviceTime;  ///< ISO 8601, such as "2020-01-01T00:00:00+01:00"
    int deviceUpTime = 0;           ///< seconds since the device started
    std::vector<std::shared_ptr<TemperatureSensor>> TemperatureList;  ///< temperature sensors
    std::vector<std::shared_ptr<FanStatus>> FanList;                  ///< fans
    std::vector<std::shared_ptr<PressureSensor>> PressureList;        ///< pressure sensors

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
