// Any bytes as an XML document: the records against a reader of the plainest kind.
// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>
#include <type_traits>

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

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;

template <class Record>
void ReadPlainly(Record& record, xmlNode* firstChild);

/// Reads each field from where the cursor finds it, one search after the other.
class PlainReader
{
public:
    explicit PlainReader(xmlNode* firstChild) : cursor_(firstChild) {}

    template <class Member, class How = as::Plain>
    void operator()(const char* name, Member& member, How how = {})
    {
        if (!xml::NextElementNamed(cursor_, name))
            return;
        if constexpr (xml::IsRecord<Member>)
            ReadPlainly(member, cursor_->children);
        else
            xml::ReadValue(cursor_, member, how);
        cursor_ = cursor_->next;
        while (std::is_same_v<How, as::Repeated> && xml::NextElementNamed(cursor_, name))
            cursor_ = cursor_->next;
    }

private:
    xmlNode* cursor_;
};

template <class Record>
void ReadPlainly(Record& record, xmlNode* firstChild)
{
    PlainReader reader(firstChild);
    Record::Fields(record, reader);
}

template <class Record>
constexpr const char* RootOf()
{
    if constexpr (requires { Record::kRoot; })
        return Record::kRoot;
    else
        return Record::kElement;
}

template <class Record>
void Compare(const std::string& text, xmlNode* root)
{
    if (!xml::NextElementNamed(root, RootOf<Record>()))
        return;
    Record expected;
    ReadPlainly(expected, root->children);
    if (!SameFields(Record(text), expected))
        throw std::logic_error(std::string(RootOf<Record>()) + " differs from the plain reading");
    xml::Explain<Record>(text, RootOf<Record>());
}

}  // namespace

void Xml(const std::string& text)
{
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
    xmlNode* const root = document == nullptr ? nullptr : xmlDocGetRootElement(document.get());
    Compare<BasicCapability>(text, root);
    Compare<EventAbility>(text, root);
    Compare<EventTriggerCap>(text, root);
    Compare<AlarmAbility>(text, root);
    Compare<DeviceStatus>(text, root);
    if (root == nullptr && !SameFields(BasicCapability(text), BasicCapability()))
        throw std::logic_error("a text that is no document was read");
    const PTZAbility ability(text);
    const bool isAbility = root != nullptr && xml::XmlCharToString(root->name) == PTZAbility::kRoot;
    if (ability.Capable() != isAbility || static_cast<bool>(ability.root) != isAbility)
        throw std::logic_error("an ability document was taken for another, or not taken");
    if (!HasEmptyItem(text)) {  // what lists with one do, they do for ever
        const CVelTarnPTZPresetList presets(text);
        const CVelTarnPTZPatrolList patrols(text);
    }
}

}  // namespace Fuzz
