// Any bytes as an XML document: the records against a reader of the plainest kind.
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>

#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"
#include "CapabilitySet/private/XmlExplain.h"
#include "fuzz/Targets.h"
#include "support/ReferenceXml.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;

template <class Record>
constexpr const char* RootOf()
{
    if constexpr (requires { Record::kRoot; })
        return Record::kRoot;
    else
        return Record::kElement;
}

template <class Record>
void Compare(const std::string& text)
{
    using namespace TestSupport::reference;
    Record expected;
    const Document is = ReadDocument(text, RootOf<Record>(), expected);
    const std::string name = RootOf<Record>();
    if (is == Document::Endless && !HasEmptyItem(text))
        throw std::logic_error(name + " hides that its reader would never end");
    if (is != Document::Endless && Describe({}, Record(text)) != Describe({}, expected))
        throw std::logic_error(name + " differs from the plain reading");
}

template <class Record>
void CompareAndExplain(const std::string& text)
{
    Compare<Record>(text);
    xml::Explain<Record>(text, RootOf<Record>());
}

}  // namespace

void Xml(const std::string& text)
{
    CompareAndExplain<BasicCapability>(text);
    CompareAndExplain<EventAbility>(text);
    CompareAndExplain<EventTriggerCap>(text);
    CompareAndExplain<AlarmAbility>(text);
    CompareAndExplain<DeviceStatus>(text);
    Compare<PTZAbility>(text);
    Compare<CVelTarnPTZPresetList>(text);
    Compare<CVelTarnPTZPatrolList>(text);
}

}  // namespace Fuzz
