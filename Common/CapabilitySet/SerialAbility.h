// What the serial ports of a device can do.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/OptionTypes.h"

namespace CapabilitySet
{

/// The serial ability document, which the client fetches itself.
struct CAPABILITYSET_API SerialAbility : AbilityDocument
{
    static constexpr const char* kRoot = "SerialAbility";

    std::vector<WorkModeType> workMode;          ///< options of the first "workMode" at any depth
    std::vector<OutPutDataType> outputDataType;  ///< of the first "outputDataType" at any depth

    SerialAbility() = default;
    explicit SerialAbility(const std::string& text) { Parse(text); }
    explicit SerialAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document; an empty text reads nothing.
    void Parse(const std::string& text);
    /// Reads the record's own element; null reads nothing.
    void Parse(_xmlNode* element);

private:
    void NoteMembers();
};

}  // namespace CapabilitySet
