// What fibre converters and the ports of a network switch can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/SwitchCap.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<FiberConvertCap>;
template struct JsonRecord<PortPoeInfoCap>;
template struct JsonRecord<PortPoeInfoListCap>;

}  // namespace CapabilitySet
