// Settings and states of switches, wireless links and systems.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/XMLParamInterface/AppConfig.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"
#include "CapabilitySet/XMLParamInterface/WirelessConfig.h"

namespace CapabilitySet
{

/// Requests sent through SDKInterfaceManager, which reports errors of the SDK and refusals of the
/// device to its callbacks.
///
/// A query resets `out` first; `out` stays at its defaults on failure. Error 23 of type 2 means
/// that the answer is not the record asked for, that memory ran out, or that a setting could not be
/// written; the callbacks are not told of these. Settings are sent whole, in the record's version:
/// to change one member, get the record first. Every operation may be called from any thread.
class CAPABILITYSET_API ParamInterface
{
public:
    /// Type and settings of a switch.
    /// GET /TARN/Transfers/Switches/basicInfo
    static ParseXmlHelper::InterfaceRet GetSwitchesBasicInfo(SwitchesBasicInfo& out,
                                                             const int userID);
    /// Changes the settings of a switch.
    /// PUT /TARN/Transfers/Switches/basicInfo
    static ParseXmlHelper::InterfaceRet SetSwitchesBasicInfo(const SwitchesBasicInfo& info,
                                                             const int userID);
    /// Rate limits of the ports.
    /// GET /TARN/Transfers/Switches/portCfg/portRate/
    // Kept: switches answer this path only with its trailing slash, here and below.
    static ParseXmlHelper::InterfaceRet GetPortRates(PortRateList& out, const int userID);
    /// Changes the rate limits of the ports.
    /// PUT /TARN/Transfers/Switches/portCfg/portRate/
    static ParseXmlHelper::InterfaceRet SetPortRates(const PortRateList& rates, const int userID);
    /// Name and link of the ports.
    /// GET /TARN/Transfers/Switches/portCfg/portInfo
    static ParseXmlHelper::InterfaceRet GetPortInfo(PortInfoList& out, const int userID);
    /// One page of the switches' work states.
    /// POST /TARN/Transfers/Switches/workState/search, with the condition as body
    static ParseXmlHelper::InterfaceRet SearchSwitchesWorkState(
        const SwitchesWorkStateSearchCond& condition, SwitchesWorkStateSearchResult& out,
        const int userID);
    /// The wireless link.
    /// GET /TARN/Transfers/Switches/wireless
    static ParseXmlHelper::InterfaceRet GetWireless(Wireless& out, const int userID);
    /// Changes the wireless link.
    /// PUT /TARN/Transfers/Switches/wireless
    static ParseXmlHelper::InterfaceRet SetWireless(const Wireless& wireless, const int userID);
    /// Region of a wireless bridge.
    /// GET /TARN/Transfers/Switches/region
    static ParseXmlHelper::InterfaceRet GetBridgeRegion(CBridgeRegion& out, const int userID);
    /// Changes the region of a wireless bridge.
    /// PUT /TARN/Transfers/Switches/region
    static ParseXmlHelper::InterfaceRet SetBridgeRegion(const CBridgeRegion& region,
                                                        const int userID);
    /// Protocols by which the device can be discovered.
    /// GET /TARN/System/discoveryMode
    static ParseXmlHelper::InterfaceRet GetDiscoveryMode(DiscoveryMode& out, const int userID);
    /// Changes these protocols.
    /// PUT /TARN/System/discoveryMode
    static ParseXmlHelper::InterfaceRet SetDiscoveryMode(const DiscoveryMode& mode,
                                                         const int userID);
    /// System status.
    /// GET /TARN/System/status
    static ParseXmlHelper::InterfaceRet GetDeviceStatus(DeviceStatus& out, const int userID);
    /// Installed applications.
    /// GET /TARN/System/App
    static ParseXmlHelper::InterfaceRet GetApps(AppList& out, const int userID);
};

}  // namespace CapabilitySet
