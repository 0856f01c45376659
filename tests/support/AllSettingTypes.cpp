// The record types of Catalog/SettingRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/SettingRows.h"

#include "support/RecordTypeMaker.h"

namespace TestSupport
{

void AddSettingTypes(std::vector<RecordClass>& types)
{
    CapabilitySet::catalog::SettingRows(TypeMaker(types));
}

}  // namespace TestSupport
