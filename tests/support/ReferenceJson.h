// A slow and plain reading of JSON records, which the library's own is compared with.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include <json/reader.h>
#include <json/value.h>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonCap/AlarmHostCap.h"
#include "CapabilitySet/JsonTARN/JsonConfig/FireControl.h"
#include "CapabilitySet/JsonTARN/JsonConfig/HumanFeatureSearch.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"

// What it shares with the library is the field lists. It looks one member up after the other, and
// leaves to JsonCpp what a value of the wrong kind does: the exception ends the reading.

namespace TestSupport::reference
{

namespace as = CapabilitySet::as;

/// Hands what a text holds to `read`, if it is JSON at all, and swallows what is thrown.
template <class ReadTree>
void WithJson(const std::string& text, ReadTree read)
{
    try {
        Json::Value document;
        if (!text.empty() && Json::Reader().parse(text, document)) {
            read(document);
        }
    } catch (const std::exception&) {  // the reading ends
    }
}

template <class Part>
void ReadMember(const Json::Value& value, Part& part);

template <class Record>
void ReadMembers(const Json::Value& object, Record& record);

template <class Record>
void ReadText(const std::string& text, Record& record);

inline void ReadMember(const Json::Value& value, bool& member)
{
    member = value.asBool();
}

inline void ReadMember(const Json::Value& value, int& member)
{
    member = value.asInt();
}

inline void ReadMember(const Json::Value& value, unsigned& member)
{
    member = value.asUInt();
}

inline void ReadMember(const Json::Value& value, double& member)
{
    member = value.asDouble();
}

inline void ReadMember(const Json::Value& value, std::string& member)
{
    member = value.asString();
}

inline void ReadMember(const Json::Value& value, Json::Value& member)
{
    member = value;
}

inline void ReadMember(const Json::Value& value, bool& member, as::TextFlag /*how*/)
{
    member = value.asString() == "true";
}

inline void ReadMember(const Json::Value& value, std::string& member, as::StyledText /*how*/)
{
    member = value.isNull() ? "" : value.toStyledString();
}

inline void ReadMember(const Json::Value& value, int& member, as::DecimalText /*how*/)
{
    std::istringstream stream(value.asString());
    stream.imbue(std::locale::classic());
    member = 0;
    stream >> member;
}

inline void ReadText(const std::string& text, CapabilitySet::OptJsonElement& element)
{
    WithJson(text, [&element](const Json::Value& root) {
        const Json::Value& options = root["@opt"];
        if (options.isNull()) {
            return;
        }
        element.capable = true;
        for (Json::ArrayIndex i = 0; i < options.size(); ++i) {
            element.opt.push_back(options[i].asString());
        }
    });
}

inline void ReadMember(const Json::Value& value, CapabilitySet::OptJsonElement& element)
{
    ReadText(value.toStyledString(), element);
}

template <class Item>
void ReadMember(const Json::Value& value, std::vector<Item>& items)
{
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
        Item item{};
        ReadMember(value[i], item);
        items.push_back(item);
    }
}

template <class Item>
void ReadMember(const Json::Value& value, std::vector<Item>& items, as::Wrapped how)
{
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
        const Json::Value& entry = value[i];
        Item item{};
        ReadMember(entry[how.key], item);
        items.push_back(item);
    }
}

inline void ReadMember(const Json::Value& value, CapabilitySet::HFPDProgress& progress)
{
    if (value.isNull()) {
        return;
    }
    progress.value = value.isObject() ? value["value"].asInt() : value.asInt();
    progress.present = true;
}

template <std::derived_from<CapabilitySet::DetectorSensor> Sensor>
void ReadMember(const Json::Value& value, Sensor& sensor)
{
    if (value.isNull()) {
        return;
    }
    if (value.isObject()) {
        ReadMembers(value, sensor);
    } else {
        sensor.status = value.asString();
    }
    sensor.present = true;
}

inline void ReadMember(const Json::Value& value, CapabilitySet::SubSysOperateCapability& part)
{
    part.root = value;
    part.present = !value.isNull();
}

/// A part without members of its own is all that stands there.
template <class Tree>
    requires std::derived_from<Tree, CapabilitySet::JsonTree<Tree>>
void ReadMember(const Json::Value& value, Tree& tree)
{
    ReadText(value.toStyledString(), tree);
}

template <class Part>
void ReadMember(const Json::Value& value, Part& part)
{
    // A record that can stand alone reads a text of its own.
    if constexpr (requires { Part::kKey; }) {
        return ReadText(value.toStyledString(), part);
    }
    if constexpr (requires { part.present; }) {
        if (value.isNull()) {
            return;
        }
    }
    ReadMembers(value, part);
    if constexpr (requires { part.present; }) {
        part.present = true;
    }
}

template <class Record>
void ReadMembers(const Json::Value& object, Record& record)
{
    Record::Fields(record, [&object](const char* name, auto& member, auto... how) {
        ReadMember(object[name], member, how...);
    });
}

/// Reads a document into a record.
template <class Record>
void ReadText(const std::string& text, Record& record)
{
    WithJson(text, [&record](const Json::Value& document) {
        const std::string key = Record::kKey;
        constexpr bool kMayLackKey = requires { Record::kMayLackKey; };
        Json::Value root;
        if (key.empty() || (kMayLackKey && document[key].isNull())) {
            root = document;
        } else {
            root = document[key];
        }
        if (!root.isObject() && !root.isNull()) {
            return;
        }
        record.root = root;
        ReadMembers(record.root, record);
    });
}

inline void ReadText(const std::string& text, CapabilitySet::JsonStatus& status)
{
    WithJson(text, [&status](const Json::Value& root) { ReadMembers(root, status); });
}

inline void ReadText(const std::string& text, CapabilitySet::MisinfoMinMaxElement& limits)
{
    ReadText(text, limits.status);
    WithJson(text, [&limits](const Json::Value& root) {
        limits.min = root["@min"].asInt();
        limits.max = root["@max"].asInt();
    });
}

inline void ReadText(const std::string& text, CapabilitySet::CVelTarnPTZAutoTracking& tracking)
{
    WithJson(text, [&tracking](const Json::Value& root) {
        const Json::Value& member = root["MoveAutoTracking"];
        if (!member.isNull()) {
            tracking.enabled = member["enabled"].asBool();
        }
    });
}

inline void ReadText(const std::string& text, CapabilitySet::JsonErrorStatusList& list)
{
    WithJson(text, [&list](const Json::Value& root) {
        const Json::Value& entries = root["ErrorList"];
        for (Json::ArrayIndex i = 0; i < entries.size(); ++i) {
            if (entries[i].isNull()) {
                continue;
            }
            CapabilitySet::JsonErrorStatus status;
            status.id = std::to_string(entries[i]["id"].asInt());
            // The word is dropped, and yet must be one.
            static_cast<void>(entries[i]["subStatusCode"].asString());
            list.errorList.push_back(status);
        }
    });
}

}  // namespace TestSupport::reference
