// The XML records that travel over the protocol's own paths: settings, states, lists.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"
#include "Catalog/Rows.h"

namespace CapabilitySet::catalog
{

// The query has its record last and reports no error number.
inline bool GetAutoTracking(CVelTarnPTZAutoTracking& out, int userID, int channel)
{
    return CVelTarnPTZAutoTracking::GetAutoTrackingState(userID, channel, out);
}

template <class Row>
void SettingRows(Row&& row)
{
    row("PTZPresetList", "stored positions of a PTZ channel",
        PtzList<CVelTarnPTZPresetList>{"presets"}, kChannel);
    row("PTZPatrolList", "tours of presets", PtzList<CVelTarnPTZPatrolList>{"patrols"}, kChannel);
    row("PTZPatternList", "recorded movements", PtzList<CVelTarnPTZPatternList>{"patterns"},
        kChannel);
    row(DeviceStatus::kElement, "time, temperatures, fans", &ParamInterface::GetDeviceStatus);
    row(AppList::kElement, "applications on the device", &ParamInterface::GetApps);
    row(DiscoveryMode::kElement, "how the device is found", &ParamInterface::GetDiscoveryMode);
    row(SwitchesBasicInfo::kElement, "what a switch is and how it is reached",
        &ParamInterface::GetSwitchesBasicInfo);
    row(PortInfoList::kElement, "ports of a switch", &ParamInterface::GetPortInfo);
    row(PortRateList::kElement, "rate limits of a switch's ports", &ParamInterface::GetPortRates);
    row(Wireless::kElement, "wireless link", &ParamInterface::GetWireless);
    row(CBridgeRegion::kElement, "region of a wireless bridge", &ParamInterface::GetBridgeRegion);
    row("PTZAutoTracking", "whether a channel follows moving targets by itself", &GetAutoTracking,
        kChannel);
    row("PTZPresetNames", "names of the stored positions", parsed<CPTZPresetListCfg>);
    row("PTZPatrol", "one tour of presets", parsed<CVelTarnPTZPatrol>);
    row(CMSearchDescription::kElement, "search for recordings", parsed<CMSearchDescription>);
    row("CMSearchResult", "recordings that a search found", parsed<CMSearchResult>);
    row(SwitchesWorkStateSearchCond::kElement, "search for the state of a switch",
        parsed<SwitchesWorkStateSearchCond>);
    row("SwitchesWorkStateSearchResult", "states of a switch that a search found",
        parsed<SwitchesWorkStateSearchResult>);
}

}  // namespace CapabilitySet::catalog
