// Queries and settings of switches, wireless links and systems.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"

#include "CapabilitySet/XMLParamInterface/private/RecordRequests.h"

namespace CapabilitySet
{

using ParseXmlHelper::GetRecord;
using ParseXmlHelper::InterfaceRet;
using ParseXmlHelper::SearchRecord;
using ParseXmlHelper::SetRecord;

InterfaceRet ParamInterface::GetSwitchesBasicInfo(SwitchesBasicInfo& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/Transfers/Switches/basicInfo\r\n", CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::SetSwitchesBasicInfo(const SwitchesBasicInfo& info, const int userID)
{
    return SetRecord(info, userID, "PUT /TARN/Transfers/Switches/basicInfo\r\n");
}

// Kept: switches answer this path only with its trailing slash.
InterfaceRet ParamInterface::GetPortRates(PortRateList& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/Transfers/Switches/portCfg/portRate/\r\n",
                     CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::SetPortRates(const PortRateList& rates, const int userID)
{
    return SetRecord(rates, userID, "PUT /TARN/Transfers/Switches/portCfg/portRate/\r\n");
}

InterfaceRet ParamInterface::GetPortInfo(PortInfoList& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/Transfers/Switches/portCfg/portInfo\r\n",
                     CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::SearchSwitchesWorkState(const SwitchesWorkStateSearchCond& condition,
                                                     SwitchesWorkStateSearchResult& out,
                                                     const int userID)
{
    return SearchRecord(condition, out, userID,
                        "POST /TARN/Transfers/Switches/workState/search\r\n", CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::GetWireless(Wireless& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/Transfers/Switches/wireless\r\n", CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::SetWireless(const Wireless& wireless, const int userID)
{
    return SetRecord(wireless, userID, "PUT /TARN/Transfers/Switches/wireless\r\n");
}

InterfaceRet ParamInterface::GetBridgeRegion(CBridgeRegion& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/Transfers/Switches/region\r\n", CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::SetBridgeRegion(const CBridgeRegion& region, const int userID)
{
    return SetRecord(region, userID, "PUT /TARN/Transfers/Switches/region\r\n");
}

InterfaceRet ParamInterface::GetDiscoveryMode(DiscoveryMode& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/System/discoveryMode\r\n", CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::SetDiscoveryMode(const DiscoveryMode& mode, const int userID)
{
    return SetRecord(mode, userID, "PUT /TARN/System/discoveryMode\r\n");
}

InterfaceRet ParamInterface::GetDeviceStatus(DeviceStatus& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/System/status\r\n", CAPABILITYSET_HERE);
}

InterfaceRet ParamInterface::GetApps(AppList& out, const int userID)
{
    return GetRecord(out, userID, "GET /TARN/System/App\r\n", CAPABILITYSET_HERE);
}

}  // namespace CapabilitySet
