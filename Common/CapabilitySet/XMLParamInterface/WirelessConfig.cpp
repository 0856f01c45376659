// Settings of wireless links and bridges.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/WirelessConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

template struct XmlRecord<WPA>;
template struct XmlRecord<WirelessSecurity>;
template struct XmlRecord<Wireless>;
template struct XmlRecord<CBridgeRegion>;

}  // namespace CapabilitySet
