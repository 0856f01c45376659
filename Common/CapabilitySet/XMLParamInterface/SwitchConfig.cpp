// Settings and states of managed switches.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

template struct XmlRecord<SwitchGateway>;
template struct XmlRecord<SwitchAddress>;
template struct XmlRecord<SwitchesBasicInfo>;
template struct XmlRecord<PortRate>;
template struct XmlRecord<PortRateList>;
template struct XmlRecord<PortInfo>;
template struct XmlRecord<PortInfoList>;
template struct XmlRecord<SwitchesWorkStateSearchCond>;

}  // namespace CapabilitySet
