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
    std::string sharedKey;      ///< the key, in clear text
    int wpaKeyLength = 0;       ///< length of the key, characters

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

/// Security settings of a wireless link.
struct CAPABILITYSET_API WirelessSecurity : XmlRecord<WirelessSecurity>
{
    static constexpr const char* kElement = "WirelessSecurity";

    std::string securityMode;  ///< such as "disable" or "WPA2-personal"
    WPA wpa;                   ///< keys of a WPA mode

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

    bool enabled = false;               ///< the link is on
    std::string wirelessNetworkMode;    ///< such as "802.11n"
    std::string channel;                ///< radio channel number, or "auto"
    std::string ssid;                   ///< network name
    bool wmmEnabled = false;            ///< Wi-Fi Multimedia: urgent traffic goes first
    WirelessSecurity wirelessSecurity;  ///< security settings
    std::string workScene;              ///< such as "pointToPoint"
    std::string protocol;               ///< protocol set, such as "802.11ac", or "auto"
    std::string protocolRealTime;       ///< protocol in use
    bool hideSsid = false;              ///< the network name is not broadcast
    std::string rate;                   ///< such as "54Mbps", or "auto"
    bool dialUpEnabled = false;         ///< dial-up is on
    int dialUpGroupNo = 0;              ///< dial-up group, as the device numbers it

    Wireless() = default;
    explicit Wireless(const std::string& text) { Parse(text); }
    explicit Wireless(_xmlNode* element) { Parse(element); }

    /// As in every record.
    // Kept: clients rely on this one not being const.
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

/// The region of a wireless bridge, which decides its channels and power.
struct CAPABILITYSET_API CBridgeRegion : XmlRecord<CBridgeRegion>
{
    static constexpr const char* kElement = "Region";
    static constexpr const char* kVersion = "v2.0";

    std::string region;                   ///< name of the region, such as "Europe"
    bool wifiEnhancementEnabled = false;  ///< Wi-Fi enhancement is on
    int countryID = 0;                    ///< country number, such as 276

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
