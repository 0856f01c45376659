// Which company a MAC address belongs to.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"

#include <atomic>
#include <memory>
#include <string_view>
#include <utility>

#include "CapabilitySet/private/JsonReading.h"
#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/MacCompanyTexts.h"

namespace CapabilitySet
{
namespace
{

using Companies = std::map<std::string, std::string>;

// What the first object of the process loaded, for the later ones to copy. Never destroyed: a
// client's static objects may outlive any that is.
constinit std::atomic<const Companies*> loadedCompanies{nullptr};

void KeepForLaterObjects(const Companies& companies)
{
    auto kept = std::make_unique<const Companies>(companies);
    const Companies* none = nullptr;
    if (loadedCompanies.compare_exchange_strong(none, kept.get(), std::memory_order_acq_rel))
        static_cast<void>(kept.release());
}

}  // namespace

CMacCompanyHelper::CMacCompanyHelper()
{
    initialTable();
}

void CMacCompanyHelper::initialTable()
{
    const bool isFirstLoad = companies_.empty();
    try {
        const Companies* const loaded = loadedCompanies.load(std::memory_order_acquire);
        if (isFirstLoad && loaded != nullptr) {
            companies_ = *loaded;
            return;
        }
        for (const std::string& text : MacCompanyTexts())
            convertStringToMap(text);
        if (isFirstLoad)
            KeepForLaterObjects(companies_);
    } catch (...)  // out of memory: what is loaded stays
    {
    }
}

void CMacCompanyHelper::convertStringToMap(std::string text)
{
    Json::Value root;
    if (!json::ParseText(text, root) || !root.isObject())
        return;
    const Json::Value& members = root;
    auto place = companies_.begin();
    for (auto member = members.begin(); member != members.end(); ++member) {
        const char* labelBegin = nullptr;
        const char* labelEnd = nullptr;
        if (!member->isString() || !member->getString(&labelBegin, &labelEnd))
            continue;
        const char* prefixEnd = nullptr;
        const char* const prefixBegin = member.memberName(&prefixEnd);
        const std::string_view prefix(prefixBegin, prefixEnd);
        // Members come in the map's own order: one walk over both finds every place.
        while (place != companies_.end() && place->first < prefix)
            ++place;
        if (place == companies_.end() || place->first != prefix)
            place = companies_.emplace_hint(place, prefix, std::string(labelBegin, labelEnd));
    }
}

std::string CMacCompanyHelper::getCompanyNameByMAc(std::string prefix)
{
    std::string label;
    try {
        // Kept: a prefix that is not there is added with an empty label.
        label = companies_[std::move(prefix)];
        log::Info(CAPABILITYSET_HERE, "CMacCompanyHelper::getCompanyNameByMAc: strCompanyName [%s]",
                  label.c_str());
    } catch (...)  // out of memory: the label, when it was found, is still told
    {
    }
    return label;
}

}  // namespace CapabilitySet
