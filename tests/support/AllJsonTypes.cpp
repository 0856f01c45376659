// The record types of Catalog/JsonRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/JsonRows.h"

#include "support/RecordTypeMaker.h"

namespace TestSupport
{

void AddJsonTypes(std::vector<RecordClass>& types)
{
    CapabilitySet::catalog::JsonRows(TypeMaker(types));
}

}  // namespace TestSupport
