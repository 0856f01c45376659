// Settings and states of managed switches.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"

#include "CapabilitySet/private/xml/AbilityRecordMembers.h"
#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_XML_RECORD(SwitchGateway);
CAPABILITYSET_XML_RECORD(SwitchAddress);
CAPABILITYSET_XML_RECORD(SwitchesBasicInfo);
CAPABILITYSET_XML_RECORD(PortRate);
CAPABILITYSET_XML_RECORD(PortRateList);
CAPABILITYSET_XML_RECORD(PortInfo);
CAPABILITYSET_XML_RECORD(PortInfoList);
CAPABILITYSET_XML_RECORD(SwitchesWorkStateSearchCond);
CAPABILITYSET_ABILITY_RECORD(SwitchesWorkStateSearchResult);

}  // namespace CapabilitySet
