// How a device is found on the network, and how it is doing.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

template struct XmlRecord<DiscoveryMode>;
template struct XmlRecord<TemperatureSensor>;
template struct XmlRecord<FanStatus>;
template struct XmlRecord<PressureSensor>;
template struct XmlRecord<DeviceStatus>;

}  // namespace CapabilitySet
