// The record types of Catalog/JsonBodyRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/JsonBodyRows.h"

#include "support/RecordTypeMaker.h"

namespace TestSupport
{

void AddJsonBodyTypes(std::vector<RecordClass>& types)
{
    CapabilitySet::catalog::JsonBodyRows(TypeMaker(types));
}

}  // namespace TestSupport
