// What transmission equipment tells of itself: slots of fibre converters, power over Ethernet.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The slots of a fibre converter's crate.
struct CAPABILITYSET_API FiberConvertSlotList : JsonTree<FiberConvertSlotList>
{
    FiberConvertSlotList() = default;
    explicit FiberConvertSlotList(const std::string& text) { Parse(text); }
};

/// Power over Ethernet at each port of a switch.
struct CAPABILITYSET_API PortPoeInfoList : JsonRecord<PortPoeInfoList>
{
    static constexpr const char* kKey = "";

    std::vector<Json::Value> ports;  ///< one object a port, as the device tells it

    PortPoeInfoList() = default;
    explicit PortPoeInfoList(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PortPOEInfoList", r.ports, as::Wrapped{"PortPOEInfo"});
    }
};

}  // namespace CapabilitySet
