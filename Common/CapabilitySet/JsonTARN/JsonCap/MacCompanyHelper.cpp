// Which company a MAC address belongs to.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"

#include <atomic>
#include <memory>
#include <utility>

#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/MacCompanyTexts.h"
#include "CapabilitySet/private/json/JsonReading.h"

namespace CapabilitySet
{
namespace
{

// Outlives the table, so that it can tell when the table is destroyed.
constinit std::atomic<bool> sharedIsGone{false};

/// The table that all objects share while the library is loaded. Static objects of a client may
/// outlive it: they keep what they use, and later ones load a table of their own.
template <class Companies>
struct Shared
{
    explicit Shared(std::shared_ptr<const Companies> table) : companies(std::move(table)) {}
    ~Shared() { sharedIsGone = true; }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;

    std::shared_ptr<const Companies> companies;
};

}  // namespace

CMacCompanyHelper::CMacCompanyHelper()
{
    initialTable();
}

void CMacCompanyHelper::initialTable()
{
    if (shared_ != nullptr) {
        return;
    }
    try {
        if (!own_.empty() || sharedIsGone) {
            LoadTexts();
            return;
        }
        // The first object loads the shared table; if that fails, the next one tries.
        static const Shared<Companies> table([&] {
            LoadTexts();
            return std::make_shared<Companies>(std::move(own_));
        }());
        shared_ = table.companies;
    } catch (...)  // out of memory: what is loaded stays
    {
    }
}

void CMacCompanyHelper::LoadTexts()
{
    for (const std::string_view text : MacCompanyTexts()) {
        convertStringToMap(text);
    }
}

void CMacCompanyHelper::convertStringToMap(std::string_view text)
{
    Json::Value root;
    if (!json::ParseText(text, root) || !root.isObject()) {
        return;
    }
    const Json::Value& members = root;
    own_.reserve(own_.size() + members.size());
    const auto end = members.end();
    for (auto member = members.begin(); member != end; ++member) {
        const char* labelBegin = nullptr;
        const char* labelEnd = nullptr;
        if (!member->getString(&labelBegin, &labelEnd)) {
            continue;  // not a string
        }
        const char* prefixEnd = nullptr;
        const char* const prefixBegin = member.memberName(&prefixEnd);
        // A prefix that is already there keeps its label.
        own_.try_emplace(std::string(prefixBegin, prefixEnd), labelBegin, labelEnd);
    }
}

const std::string& CMacCompanyHelper::LabelOf(std::string&& prefix)
{
    if (shared_ != nullptr) {
        if (const auto known = shared_->find(prefix); known != shared_->end()) {
            return known->second;
        }
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
    } catch (...)  // out of memory: a label that was found is still returned
    {
    }
    return label;
}

}  // namespace CapabilitySet
