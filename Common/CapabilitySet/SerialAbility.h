// Serial port abilities of a device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/OptionTypes.h"

namespace CapabilitySet
{

/// The serial ability document, root "SerialAbility". The client fetches it itself.
struct CAPABILITYSET_API SerialAbility : AbilityDocument
{
    static constexpr const char* kRoot = "SerialAbility";

    std::vector<WorkModeType> workMode;          ///< from the first "workMode" at any depth
    std::vector<OutPutDataType> outputDataType;  ///< from the first "outputDataType" at any depth

    SerialAbility() = default;
    explicit SerialAbility(const std::string& text) { Parse(text); }
    explicit SerialAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

private:
    void NoteMembers();
};

}  // namespace CapabilitySet
