// Comparing the faces in pictures.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

// Kept: devices spell it "Comparision".

/// The pictures to compare. Put them in `root`, in the form that `dataType` names.
struct CAPABILITYSET_API ImagesCmpDescription : JsonRecord<ImagesCmpDescription>
{
    static constexpr const char* kKey = "imagesComparision";

    std::string dataType;  ///< a form from ImagesComparisionCapbility

    ImagesCmpDescription() = default;
    explicit ImagesCmpDescription(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("dataType", r.dataType);
    }
};

/// How similar the faces are.
struct CAPABILITYSET_API ImagesCmpResult : JsonTree<ImagesCmpResult>
{
    ImagesCmpResult() = default;
    explicit ImagesCmpResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
