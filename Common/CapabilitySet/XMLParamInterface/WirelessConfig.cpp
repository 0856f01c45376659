// Settings of wireless links and bridges.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/WirelessConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_XML_RECORD(WPA);
CAPABILITYSET_XML_RECORD(WirelessSecurity);
CAPABILITYSET_XML_RECORD(Wireless);
CAPABILITYSET_XML_RECORD(CBridgeRegion);

}  // namespace CapabilitySet
