// Transmission equipment: slots of fibre converters, power over Ethernet.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/TransferConfig.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<FiberConvertSlotList>;
template struct JsonRecord<PortPoeInfoList>;

}  // namespace CapabilitySet
