// A JSON record without listed members: everything that the device says, and nothing else.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonRecord.h"

namespace CapabilitySet
{

/// A document whose members differ from device to device. They all stand in `root`, the key that
/// the document names itself by included, and `Make` writes `root` as it is.
template <class Record>
struct CAPABILITYSET_API JsonDocument : JsonRecord<Record>
{
    static constexpr const char* kKey = "";

    template <class Document, class Field>
    static void Fields([[maybe_unused]] Document& document, [[maybe_unused]] Field&& field)
    {
    }
};

}  // namespace CapabilitySet
