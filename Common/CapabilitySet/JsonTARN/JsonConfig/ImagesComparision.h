// Comparing the faces of pictures.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

// Kept: "Comparision" is how devices spell it.

/// Which pictures to compare; they stand in `root`, in the form that `dataType` names.
struct CAPABILITYSET_API ImagesCmpDescription : JsonRecord<ImagesCmpDescription>
{
    static constexpr const char* kKey = "imagesComparision";

    std::string dataType;  ///< one of ImagesComparisionCapbility's

    ImagesCmpDescription() = default;
    explicit ImagesCmpDescription(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("dataType", r.dataType);
    }
};

/// How alike the faces are.
struct CAPABILITYSET_API ImagesCmpResult : JsonTree<ImagesCmpResult>
{
    ImagesCmpResult() = default;
    explicit ImagesCmpResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
