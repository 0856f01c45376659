// Reads the kinds of fields that are not worth inlining.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlFields.h"

#include "CapabilitySet/private/ParseToSDK.h"

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
    if (options.opt.size() == 1) {
        value = options.opt.front() == "true";
    }
    return options.capable;
}

bool ReadValue(xmlNode* node, bool& value, as::FirstOption /*how*/)
{
    const OptElement<std::string> options(node);
    value = !options.opt.empty() && options.opt.front() == "true";
    return options.capable;
}

bool ReadValue(xmlNode* node, bool& value, as::TextFlag /*how*/)
{
    std::string spare;
    value = TextOf(node, spare) == "true";
    return true;
}

bool ReadValue(xmlNode* node, bool& value, as::TrueOrFalse /*how*/)
{
    std::string spare;
    const std::string_view text = TextOf(node, spare);
    if (text == "true" || text == "false") {
        value = text == "true";
    }
    return true;
}

bool ReadValue(xmlNode* node, unsigned int& value, as::Quiet /*how*/)
{
    value = GetNodeUInt(node);
    return false;
}

bool ReadValue(xmlNode* node, std::vector<int>& codes, as::Codes how)
{
    const OptElement<std::string> options(node);
    codes.clear();
    ForEachCode(how.table, options, [&codes](int code) { codes.push_back(code); });
    return options.capable;
}

bool ReadValue(xmlNode* node, std::vector<AlarmHandleType::HandleType>& types, as::HandleTypes how)
{
    const OptElement<std::string> options(node);
    // Only an alarm query lends its login: an event query asks the device for nothing else.
    ConvertHandleTypeFromXmlStr(types, options, how.withAlarmLogin ? AlarmQueryHandle() : -1);
    return options.capable;
}

}  // namespace CapabilitySet::xml
