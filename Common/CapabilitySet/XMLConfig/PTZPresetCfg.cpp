// Presets, patterns and patrols of a pan-tilt-zoom channel.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"

#include <optional>
#include <thread>
#include <utility>

#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/xml/XmlFields.h"

namespace CapabilitySet
{
namespace
{

constexpr xml::RootRule kListRule{.prefix = "[pmv-v2.0.0]", .logsMismatch = false};

/// Reads the items among the children of a list's root.
template <class Item>
void ReadItems(std::vector<Item>& items, const char* itemName, xmlNode* firstChild)
{
    xmlNode* cursor = firstChild;
    while (xml::NextElementNamed(cursor, itemName)) {
        if (cursor->children != nullptr) {
            items.emplace_back(cursor->children);
            cursor = cursor->next;
        } else {
            // Kept: clients rely on this order of steps. An item without children is found again
            // and again; reading through a volatile pointer makes that loop well-defined.
            xmlNode* const volatile again = cursor;
            cursor = again;
            std::this_thread::yield();
        }
    }
}

template <class List, class Item>
void ParseList(const std::string& text, std::vector<Item>& items, const char* itemName,
               const log::Place& place)
{
    xml::WithRoot(
        text, List::kRoot, place,
        [&](xmlNode* root) { ReadItems(items, itemName, root->children); }, xml::Form::BlankFree,
        kListRule);
}

struct ListNames
{
    const char* root;
    const char* item;
};
constexpr ListNames kPresets{CVelTarnPTZPresetList::kRoot, "PTZPreset"};
constexpr ListNames kPatterns{CVelTarnPTZPatternList::kRoot, "PTZPattern"};
constexpr ListNames kPatrols{CVelTarnPTZPatrolList::kRoot, "PTZPatrol"};

bool HoldsEmptyItem(xmlNode* root, const ListNames& names)
{
    if (!xml::NextElementNamed(root, names.root)) {
        return false;
    }
    for (xmlNode* item = root->children; xml::NextElementNamed(item, names.item);
         item = item->next) {
        if (item->children == nullptr) {
            return true;
        }
    }
    return false;
}

constexpr const char* kTrackingTag = "[pmv-v2.0.1]";
// Kept: support staff search logs for the older tag if a channel cannot be converted for setting.
constexpr const char* kOldTrackingTag = "[pmv-v2.0.0]";

constexpr query::Policy kTracking{// The last size tried is the one before 16,384,000 bytes.
                                  .growth = {16384, 16384, 16384000 - 16384, false, false},
                                  .limit = query::LimitReport::Line,
                                  .failure = query::FailureReport::Line,
                                  .limitTag = kTrackingTag,
                                  .failureTag = kTrackingTag};
/// For the conversion of the channel, before setting the switch.
constexpr query::Policy kSetConversion{.growth = kTracking.growth,
                                       .failure = query::FailureReport::Line,
                                       .failureTag = kOldTrackingTag};

/// The request about the tracking switch of a channel; nothing if the channel cannot be converted.
std::optional<query::TransparentRequest> TrackingRequest(const query::Operation& operation,
                                                         const int userID, const int channel,
                                                         const char* method, std::string body)
{
    unsigned int err = 0;
    int protocolChannel = 0;
    if (!query::ToProtocolChannel(operation, userID, channel, protocolChannel, err,
                                  "ChannelToTARN")) {
        return std::nullopt;
    }
    return std::optional<query::TransparentRequest>(
        std::in_place, userID,
        method + std::string(" /TARN/PTZCtrl/channels/") + std::to_string(protocolChannel) +
            "/moveAutoTracking?format=json\r\n",
        std::move(body));
}

}  // namespace

bool HasEmptyItem(const std::string& text)
{
    try {
        xml::Problem problem;
        const xml::Document document = xml::ParseText(text, xml::Form::BlankFree, problem);
        if (document == nullptr) {
            return false;
        }
        xmlNode* const root = xmlDocGetRootElement(document.get());
        return HoldsEmptyItem(root, kPresets) || HoldsEmptyItem(root, kPatterns) ||
               HoldsEmptyItem(root, kPatrols);
    } catch (...) {  // out of memory: assume the worst
        return true;
    }
}

void CPTZPresetCfg::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void CPTZPresetListCfg::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE, xml::Form::Plain,
                       {.logsMismatch = false});
}

void CVelTarnPTZPresetInfo::Parse(_xmlNode* firstChild)
{
    // By hand: the elements of the position are nested one level deeper than its members.
    xml::EndAtException([&] {
        xmlNode* cursor = firstChild;
        const auto next = [&cursor](const char* name, auto& member) {
            if (!xml::NextElementNamed(cursor, name)) {
                return;
            }
            xml::ReadValue(cursor, member, as::plain);
            cursor = cursor->next;
        };
        next("enabled", enabled);
        next("id", id);
        if (!xml::NextElementNamed(cursor, "AbsoluteHigh")) {
            return;
        }
        cursor = cursor->children;
        next("elevation", elevation);
        next("azimuth", azimuth);
        next("absoluteZoom", absoluteZoom);
    });
}

void CVelTarnPTZPresetList::Parse(const std::string& text)
{
    ParseList<CVelTarnPTZPresetList>(text, presets, kPresets.item, CAPABILITYSET_HERE);
}

void CVelTarnPTZPattern::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void CVelTarnPTZPatternList::Parse(const std::string& text)
{
    ParseList<CVelTarnPTZPatternList>(text, patterns, kPatterns.item, CAPABILITYSET_HERE);
}

void CVelTarnPTZPatrolPresetInfo::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void CVelTarnPTZPatrol::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE, xml::Form::BlankFree, kListRule);
}

void CVelTarnPTZPatrol::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void CVelTarnPTZPatrolList::Parse(const std::string& text)
{
    ParseList<CVelTarnPTZPatrolList>(text, patrols, kPatrols.item, CAPABILITYSET_HERE);
}

bool CVelTarnPTZAutoTracking::Parse(const std::string& text)
{
    bool read = false;
    json::WithRoot(text, [&](const Json::Value& root) {
        const Json::Value& tracking = json::MemberOf(root, "MoveAutoTracking");
        if (tracking.isNull()) {
            return;
        }
        enabled = json::MemberOf(tracking, "enabled").asBool();
        read = true;
    });
    return read;
}

bool CVelTarnPTZAutoTracking::SetAutoTrackingState(const int userID, const int channel, bool enable)
{
    const query::Operation operation{CAPABILITYSET_HERE, kTracking};
    unsigned int err = 0;
    return query::Guarded(err, [&] {
        log::Info(operation.place, "%sSetAutoTrackingState start.", kTrackingTag);
        return query::Exchange(
            operation, err,
            [&] {
                Json::Value body;
                body["MoveAutoTracking"]["enabled"] = enable;
                return TrackingRequest({operation.place, kSetConversion}, userID, channel, "PUT",
                                       json::StyledText(body));
            },
            [](auto&&...) { return true; });
    });
}

bool CVelTarnPTZAutoTracking::GetAutoTrackingState(const int userID, const int channel,
                                                   CVelTarnPTZAutoTracking& out)
{
    const query::Operation operation{CAPABILITYSET_HERE, kTracking};
    unsigned int err = 0;
    return query::Guarded(err, [&] {
        log::Info(operation.place, "%sGetAutoTrackingState start.", kTrackingTag);
        return query::Exchange(
            operation, err, [&] { return TrackingRequest(operation, userID, channel, "GET", {}); },
            [&](const query::ReceiveBuffer& answer, auto&) {
                return out.Parse(std::string(answer.Text()));
            });
    });
}

}  // namespace CapabilitySet
