// What the serial ports of a device can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/SerialAbility.h"

#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet
{
namespace
{

/// The first element of this name under `element` in document order, or null.
const AbilityElement* FirstNamed(const AbilityElement& element, const char* name)
{
    for (const AbilityElement& child : element.children) {
        if (child.name == name) {
            return &child;
        }
        if (const AbilityElement* const found = FirstNamed(child, name)) {
            return found;
        }
    }
    return nullptr;
}

template <class Type>
void NoteOptions(const AbilityElement& root, const char* name, std::vector<Type>& types,
                 bool (*convert)(std::vector<Type>&, const OptElement<std::string>&))
{
    if (const AbilityElement* const element = FirstNamed(root, name)) {
        OptElement<std::string> options;
        xml::SplitOptions(options.opt, element->Attribute("opt"));
        convert(types, options);
    }
}

}  // namespace

void SerialAbility::Parse(const std::string& text)
{
    xml::WithRoot(text, kRoot, CAPABILITYSET_HERE, [this](xmlNode* element) { Parse(element); });
}

void SerialAbility::Parse(_xmlNode* element)
{
    xml::EndAtException([&] {
        ParseElement(element);
        NoteMembers();
    });
}

void SerialAbility::NoteMembers()
{
    NoteOptions(root, "workMode", workMode, ConvertWorkModeTypeFormXmlStr);
    NoteOptions(root, "outputDataType", outputDataType, ConvertOutputDataTypeFormXmlStr);
}

}  // namespace CapabilitySet
