// Algorithm models of the AI open platform.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The models on the device.
struct CAPABILITYSET_API GetAIOPAlgorithmModel : JsonTree<GetAIOPAlgorithmModel>
{
    GetAIOPAlgorithmModel() = default;
    explicit GetAIOPAlgorithmModel(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
