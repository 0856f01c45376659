// Settings and states of managed switches.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/XmlRecord.h"

namespace CapabilitySet
{

/// The gateway of a switch.
struct CAPABILITYSET_API SwitchGateway : XmlRecord<SwitchGateway>
{
    static constexpr const char* kElement = "DefaultGateway";

    std::string ipAddress;  ///< address of the gateway

    SwitchGateway() = default;
    explicit SwitchGateway(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ipAddress", r.ipAddress);
    }
};

/// The network address of a switch.
struct CAPABILITYSET_API SwitchAddress : XmlRecord<SwitchAddress>
{
    static constexpr const char* kElement = "IPAddress";

    std::string ipVersion;         ///< "v4", "v6" or "dual"
    std::string addressingType;    ///< "static" or "dynamic"
    std::string ipAddress;         ///< address of the switch
    std::string subnetMask;        ///< such as "255.255.255.0"
    SwitchGateway DefaultGateway;  ///< the gateway

    SwitchAddress() = default;
    explicit SwitchAddress(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ipVersion", r.ipVersion);
        field("addressingType", r.addressingType);
        field("ipAddress", r.ipAddress);
        field("subnetMask", r.subnetMask);
        field("DefaultGateway", r.DefaultGateway);
    }
};

/// Type and settings of a switch.
struct CAPABILITYSET_API SwitchesBasicInfo : XmlRecord<SwitchesBasicInfo>
{
    static constexpr const char* kElement = "SwitchesBasicInfo";
    static constexpr const char* kVersion = "v2.0";

    int devType = 0;             ///< type number, as the maker assigns it
    std::string strDevTypeName;  ///< name of the type
    int portNum = 0;             ///< number of ports
    int macAging = 0;            ///< seconds an idle address stays in the table
    int manageVlan = 0;          ///< VLAN of the management address
    SwitchAddress IPAddress;     ///< network address

    SwitchesBasicInfo() = default;
    explicit SwitchesBasicInfo(const std::string& text) { Parse(text); }
    explicit SwitchesBasicInfo(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("devType", r.devType);
        field("strDevTypeName", r.strDevTypeName);
        field("portNum", r.portNum);
        field("macAging", r.macAging);
        field("manageVlan", r.manageVlan);
        field("IPAddress", r.IPAddress);
    }
};

/// The rate limits of one port.
struct CAPABILITYSET_API PortRate : XmlRecord<PortRate>
{
    static constexpr const char* kElement = "PortRate";

    int id = 0;            ///< port number, from 1
    int uplinkRate = 0;    ///< into the switch, kbit/s; 0: no limit
    int downlinkRate = 0;  ///< out of the switch, kbit/s; 0: no limit

    PortRate() = default;
    explicit PortRate(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("uplinkRate", r.uplinkRate);
        field("downlinkRate", r.downlinkRate);
    }
};

/// The rate limits of all ports.
struct CAPABILITYSET_API PortRateList : XmlRecord<PortRateList>
{
    static constexpr const char* kElement = "PortRateList";
    static constexpr const char* kVersion = "v2.0";

    std::vector<std::shared_ptr<PortRate>> portRate;  ///< one per port

    PortRateList() = default;
    explicit PortRateList(const std::string& text) { Parse(text); }
    explicit PortRateList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PortRate", r.portRate, as::repeated);
    }
};

/// Name and link of one port.
struct CAPABILITYSET_API PortInfo : XmlRecord<PortInfo>
{
    static constexpr const char* kElement = "PortInfo";

    int id = 0;            ///< port number, from 1
    std::string portName;  ///< name shown to users
    std::string speed;     ///< such as "1000M", or "down"
    std::string portType;  ///< such as "electric" or "optical"

    PortInfo() = default;
    explicit PortInfo(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("portName", r.portName);
        field("speed", r.speed);
        field("portType", r.portType);
    }
};

/// Name and link of all ports.
struct CAPABILITYSET_API PortInfoList : XmlRecord<PortInfoList>
{
    static constexpr const char* kElement = "PortInfoList";

    std::vector<std::shared_ptr<PortInfo>> portInfo;  ///< one per port

    PortInfoList() = default;
    explicit PortInfoList(const std::string& text) { Parse(text); }
    explicit PortInfoList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PortInfo", r.portInfo, as::repeated);
    }
};

/// Which page of the switches' work states to search.
struct CAPABILITYSET_API SwitchesWorkStateSearchCond : XmlRecord<SwitchesWorkStateSearchCond>
{
    static constexpr const char* kElement = "SwitchesWorkStateSearchCond";
    static constexpr const char* kVersion = "v2.0";

    std::string searchID;           ///< chosen by the client, the same for all pages
    int maxMatchResults = 0;        ///< page size
    int searchResultsPosition = 0;  ///< index of the first result wanted, from 0

    SwitchesWorkStateSearchCond() = default;
    explicit SwitchesWorkStateSearchCond(const std::string& text) { Parse(text); }
    explicit SwitchesWorkStateSearchCond(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("searchID", r.searchID);
        field("maxMatchResults", r.maxMatchResults);
        field("searchResultsPosition", r.searchResultsPosition);
    }
};

/// One page of the switches' work states.
struct CAPABILITYSET_API SwitchesWorkStateSearchResult
    : AbilityRecord<SwitchesWorkStateSearchResult>
{
    static constexpr const char* kRoot = "SwitchesWorkStateSearchResult";

    using AbilityRecord::AbilityRecord;
};

}  // namespace CapabilitySet
