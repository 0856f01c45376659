// How devices are discovered on the network, and their status.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_XML_RECORD(DiscoveryMode);
CAPABILITYSET_XML_RECORD(TemperatureSensor);
CAPABILITYSET_XML_RECORD(FanStatus);
CAPABILITYSET_XML_RECORD(PressureSensor);
CAPABILITYSET_XML_RECORD(DeviceStatus);

}  // namespace CapabilitySet
