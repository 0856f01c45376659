// The capability records of events and of the stations that report them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/AlarmHostAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/IntercomAbility.h"
#include "CapabilitySet/SmartAbility.h"
#include "Catalog/Rows.h"

namespace CapabilitySet::catalog
{

template <class Row>
void EventRows(Row&& row)
{
    row("AlarmAbility", "alarm functions of a channel", &AlarmAbility::GetAlarmAbility, kChannel);
    row("AlarmForHelpAbility", "emergency help calls", &AlarmForHelpAbility::GetAlarmForHelpAbility,
        kChannel);
    row("EventAbility", "events, their thresholds and the reactions to them",
        &EventAbility::GetEventAbility, kChannel);
    row("EventTriggerCap", "trigger kinds and the reactions they allow",
        &EventTriggerCap::GetEventTriggerCapAbility, kChannel);
    row("VcaAbility", "video content analysis", &VcaAbility::GetVcaAbility, kChannel);
    row("SmartCap", "smart events", &SmartCap::GetSmartCapAbility, kChannel);
    row("RegionExitingCap", "detection of someone leaving a region",
        &RegionExitingCap::GetRegionExitingAbility, kChannel);
    row("RegionParkingCap", "detection of parking in a region",
        &RegionParkingCap::GetRegionParkingAbility, kChannel);
    row("RegionUnBaggageCap", "detection of unattended baggage",
        &RegionUnBaggageCap::GetRegionUnBaggageAbility, kChannel);
    row("RegionBaggageCap", "detection of removed baggage",
        &RegionBaggageCap::GetRegionBaggageAbility, kChannel);
    row("VehicleInfoResultCap", "what a device reports about a vehicle",
        &VehicleInfoResultCap::GetVehicleInfoResultCapAbility, kChannel);
    row("IntercomNoticeVideoAbility", "notices and videos of an intercom station",
        &IntercomNoticeVideoAbility::GetNoticeVideoCapability, kChannel);
    row("IntercomDeviceIpViewAbility", "cameras that an intercom station can view",
        &IntercomDeviceIpViewAbility::GetIntercomDeviceIpViewAbility, kChannel);
    row("EventTARNAbility", "kinds of event in the protocol's trigger document",
        parsed<EventTARNAbility>);
    row("ChannelEventAbility", "event types of a channel", parsed<ChannelEventAbility>);
}

}  // namespace CapabilitySet::catalog
