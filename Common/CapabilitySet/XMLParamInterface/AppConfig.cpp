// Applications installed on a device.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/AppConfig.h"

#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

template struct XmlRecord<App>;
template struct XmlRecord<AppList>;

}  // namespace CapabilitySet
