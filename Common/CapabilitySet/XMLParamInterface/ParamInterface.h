// Settings and states of switches, wireless links and systems, asked for and set.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/XMLParamInterface/AppConfig.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"
#include "CapabilitySet/XMLParamInterface/WirelessConfig.h"

namespace CapabilitySet
{

/// Requests through SDKInterfaceManager, whose callbacks hear of what the SDK or the device refuse.
///
/// A query resets `out` first; it stays at its defaults on failure. Error 23 of type 2 stands for
/// an answer that is no document of the record asked for, for memory that ran out, and for a
/// setting that could not be written; the callbacks do not hear of these. A setting is sent whole,
/// each member as it stands, in the record's version: a client that changes one member asks for the
/// others first. Every operation may be called from any thread.
class CAPABILITYSET_API ParamInterface
{
public:
    static ParseXmlHelper::InterfaceRet GetSwitchesBasicInfo(SwitchesBasicInfo& out,
                                                             const int userID);
    static ParseXmlHelper::InterfaceRet SetSwitchesBasicInfo(const SwitchesBasicInfo& info,
                                                             const int userID);
    static ParseXmlHelper::InterfaceRet GetPortRates(PortRateList& out, const int userID);
    static ParseXmlHelper::InterfaceRet SetPortRates(const PortRateList& rates, const int userID);
    static ParseXmlHelper::InterfaceRet GetPortInfo(PortInfoList& out, const int userID);
    static ParseXmlHelper::InterfaceRet SearchSwitchesWorkState(
        const SwitchesWorkStateSearchCond& condition, SwitchesWorkStateSearchResult& out,
        const int userID);
    static ParseXmlHelper::InterfaceRet GetWireless(Wireless& out, const int userID);
    static ParseXmlHelper::InterfaceRet SetWireless(const Wireless& wireless, const int userID);
    static ParseXmlHelper::InterfaceRet GetBridgeRegion(CBridgeRegion& out, const int userID);
    static ParseXmlHelper::InterfaceRet SetBridgeRegion(const CBridgeRegion& region,
                                                        const int userID);
    static ParseXmlHelper::InterfaceRet GetDiscoveryMode(DiscoveryMode& out, const int userID);
    static ParseXmlHelper::InterfaceRet SetDiscoveryMode(const DiscoveryMode& mode,
                                                         const int userID);
    static ParseXmlHelper::InterfaceRet GetDeviceStatus(DeviceStatus& out, const int userID);
    static ParseXmlHelper::InterfaceRet GetApps(AppList& out, const int userID);
};

}  // namespace CapabilitySet
