// Any bytes as an XML document: every record against a reader of the plainest kind.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "Catalog/Catalog.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "support/AllRecords.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;
using TestSupport::RecordClass;
using TestSupport::RecordKind;
using TestSupport::RecordPointer;
using TestSupport::Verdict;

/// The catalogue's entry that reads a type; null for a part of another record.
const catalog::RecordEntry* EntryOf(const RecordClass& type)
{
    const auto all = catalog::AllRecords();
    const auto found = std::ranges::find(all, type.name, &catalog::RecordEntry::type);
    return found == all.end() ? nullptr : &*found;
}

void Compare(const RecordClass& type, const std::string& text)
{
    const RecordPointer expected = type.make();
    if (type.readPlainly(text, *expected) == Verdict::Endless) {
        return Require(HasEmptyItem(text), "hides that its reader would never end", type.name);
    }
    Require(type.Read(text)->Describe() == expected->Describe(), "differs from the plain reading",
            type.name);
    if (const catalog::RecordEntry* const entry = EntryOf(type)) {
        for (const Untaken& untaken : entry->read(text).untaken) {
            Require(!untaken.path.empty() && !untaken.reason.empty() && untaken.count > 0,
                    "passes over in silence", type.name);
        }
    }
}

}  // namespace

void Xml(const std::string& text)
{
    for (const RecordClass& type : TestSupport::AllRecordTypes()) {
        const bool isDocument =
            type.kind == RecordKind::XmlDocument || type.kind == RecordKind::XmlTree;
        // Whatever its root, a text that does not hold the name is no document of the record.
        if (isDocument &&
            (text.find(type.root) != std::string::npos || type.name == "BasicCapability")) {
            Compare(type, text);
        }
    }
}

}  // namespace Fuzz
