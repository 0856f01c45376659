// Settings of wireless links and bridges.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/XmlRecord.h"

namespace CapabilitySet
{

/// Keys of a protected network.
struct CAPABILITYSET_API WPA : XmlRecord<WPA>
{
    static constexpr const char* kElement = "WPA";

    std::string algorithmType;  ///< "TKIP", "AES" or "TKIP/AES"
    std::string sharedKey;
    int wpaKeyLength = 0;  ///< characters of the shared key

    WPA() = default;
    explicit WPA(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("algorithmType", r.algorithmType);
        field("sharedKey", r.sharedKey);
        field("wpaKeyLength", r.wpaKeyLength);
    }
};

struct CAPABILITYSET_API WirelessSecurity : XmlRecord<WirelessSecurity>
{
    static constexpr const char* kElement = "WirelessSecurity";

    std::string securityMode;  ///< such as "disable", "WPA-personal", "WPA2-personal"
    WPA wpa;

    WirelessSecurity() = default;
    explicit WirelessSecurity(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("securityMode", r.securityMode);
        field("WPA", r.wpa);
    }
};

/// The wireless link of a device.
struct CAPABILITYSET_API Wireless : XmlRecord<Wireless>
{
    static constexpr const char* kElement = "Wireless";
    static constexpr const char* kVersion = "v2.0";

    bool enabled = false;
    std::string wirelessNetworkMode;  ///< such as "802.11n"
    std::string channel;              ///< a number, or "auto"
    std::string ssid;
    bool wmmEnabled = false;  ///< preference of urgent traffic
    WirelessSecurity wirelessSecurity;
    std::string workScene;
    std::string protocol;          ///< as it is set
    std::string protocolRealTime;  ///< as it is in use
    bool hideSsid = false;
    std::string rate;  ///< such as "54Mbps", or "auto"
    bool dialUpEnabled = false;
    int dialUpGroupNo = 0;

    Wireless() = default;
    explicit Wireless(const std::string& text) { Parse(text); }
    explicit Wireless(_xmlNode* element) { Parse(element); }

    /// As every record's, but not const: clients call it so.
    [[nodiscard]] _xmlNode* CreateXmlNodePtr() { return XmlRecord::CreateXmlNodePtr(); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
        field("wirelessNetworkMode", r.wirelessNetworkMode);
        field("channel", r.channel);
        field("ssid", r.ssid);
        field("wmmEnabled", r.wmmEnabled);
        field("WirelessSecurity", r.wirelessSecurity);
        field("workScene", r.workScene);
        field("protocol", r.protocol);
        field("protocolRealTime", r.protocolRealTime);
        field("hideSsid", r.hideSsid);
        field("rate", r.rate);
        field("dialUpEnabled", r.dialUpEnabled);
        field("dialUpGroupNo", r.dialUpGroupNo);
    }
};

/// Where a wireless bridge is used, which decides its channels and power.
struct CAPABILITYSET_API CBridgeRegion : XmlRecord<CBridgeRegion>
{
    static constexpr const char* kElement = "Region";
    static constexpr const char* kVersion = "v2.0";

    std::string region;
    bool wifiEnhancementEnabled = false;
    int countryID = 0;

    CBridgeRegion() = default;
    explicit CBridgeRegion(const std::string& text) { Parse(text); }
    explicit CBridgeRegion(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("region", r.region);
        field("wifiEnhancementEnabled", r.wifiEnhancementEnabled);
        field("countryID", r.countryID);
    }
};

}  // namespace CapabilitySet
