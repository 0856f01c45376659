// Applications installed on a device.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/AppConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_XML_RECORD(App);
CAPABILITYSET_XML_RECORD(AppList);

}  // namespace CapabilitySet
