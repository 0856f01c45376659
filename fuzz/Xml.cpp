// Any bytes as an XML document: every record against a reader of the plainest kind.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/Explain.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "support/AbilityRecords.h"
#include "support/ReferenceXml.h"
#include "support/XmlRecords.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;

template <class Record>
void Compare(const std::string& text)
{
    using namespace TestSupport::reference;
    const std::string name = TestSupport::RootOf<Record>();
    Record expected;
    const Document is = ReadDocument(text, name.c_str(), expected);
    if (is == Document::Endless) {
        return Require(HasEmptyItem(text), "hides that its reader would never end", name);
    }
    Require(Describe({}, Record(text)) == Describe({}, expected), "differs from the plain reading",
            name);
    for (const Untaken& untaken : Explain<Record>(name, text).untaken) {
        Require(!untaken.path.empty() && !untaken.reason.empty(), "passes over in silence", name);
    }
}

}  // namespace

void Xml(const std::string& text)
{
    const auto compare = [&]<class Record>() {
        if constexpr (requires { Record(text); }) {
            // Whatever its root, a text that does not hold the name is no document of the record.
            if (text.find(TestSupport::RootOf<Record>()) != std::string::npos) {
                Compare<Record>(text);
            }
        }
    };
    TestSupport::XmlRecords::ForEach(compare);
    TestSupport::AbilityRecords::ForEach(compare);
    if (text.find(BasicCapability::kRoot) == std::string::npos) {
        Compare<BasicCapability>(text);
    }
}

}  // namespace Fuzz
