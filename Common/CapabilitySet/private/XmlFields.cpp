// The ways of reading a field that are not worth inlining.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/XmlFields.h"

namespace CapabilitySet::xml
{

bool ReadValue(xmlNode* node, long long& value, as::Plain /*how*/)
{
    std::string spare;
    value = StringToInt64(TextOf(node, spare));
    return true;
}

bool ReadValue(xmlNode* node, float& value, as::Plain /*how*/)
{
    std::string spare;
    value = StringToFloat(TextOf(node, spare));
    return true;
}

bool ReadValue(xmlNode* node, double& value, as::Plain /*how*/)
{
    std::string spare;
    value = StringToDouble(TextOf(node, spare));
    return true;
}

bool ReadValue(xmlNode* node, bool& value, as::EnabledFlag /*how*/)
{
    const OptElement<std::string> options(node);
    if (options.opt.size() == 1)
        value = options.opt.front() == "true";
    return options.capable;
}

}  // namespace CapabilitySet::xml
