// Which company a MAC address belongs to.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"

#include <utility>

#include "CapabilitySet/private/JsonReading.h"
#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/MacCompanyTexts.h"

namespace CapabilitySet
{

CMacCompanyHelper::CMacCompanyHelper()
{
    initialTable();
}

void CMacCompanyHelper::initialTable()
{
    if (shared_ != nullptr)
        return;
    const auto loadTexts = [this] {
        for (const std::string& text : MacCompanyTexts())
            convertStringToMap(text);
    };
    try {
        if (!own_.empty()) {
            loadTexts();
            return;
        }
        // The first object loads what all share; when that fails, the next one tries. It is never
        // destroyed: a client's static objects may be the last to use it.
        static const Companies* const table = [&] {
            loadTexts();
            return new Companies(std::move(own_));
        }();
        shared_ = table;
    } catch (...)  // out of memory: what is loaded stays
    {
    }
}

void CMacCompanyHelper::convertStringToMap(const std::string& text)
{
    Json::Value root;
    if (!json::ParseText(text, root) || !root.isObject())
        return;
    const Json::Value& members = root;
    own_.reserve(own_.size() + members.size());
    const auto end = members.end();
    for (auto member = members.begin(); member != end; ++member) {
        const char* labelBegin = nullptr;
        const char* labelEnd = nullptr;
        if (!member->getString(&labelBegin, &labelEnd))
            continue;  // no text
        const char* prefixEnd = nullptr;
        const char* const prefixBegin = member.memberName(&prefixEnd);
        // A prefix that is there keeps its label.
        own_.try_emplace(std::string(prefixBegin, prefixEnd), labelBegin, labelEnd);
    }
}

const std::string& CMacCompanyHelper::LabelOf(std::string&& prefix)
{
    if (shared_ != nullptr) {
        if (const auto known = shared_->find(prefix); known != shared_->end())
            return known->second;
    }
    // Kept: an unknown prefix is added with an empty label.
    return own_[std::move(prefix)];
}

std::string CMacCompanyHelper::getCompanyNameByMAc(std::string prefix)
{
    std::string label;
    try {
        label = LabelOf(std::move(prefix));
        log::Info(CAPABILITYSET_HERE, "CMacCompanyHelper::getCompanyNameByMAc: strCompanyName [%s]",
                  label.c_str());
    } catch (...)  // out of memory: the label, when it was found, is still told
    {
    }
    return label;
}

}  // namespace CapabilitySet
