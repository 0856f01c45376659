// Requests through the process-wide manager that send and fetch whole records.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>

#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet::ParseXmlHelper
{

/// How a request ends that could not be built, that ran out of memory, or whose answer is no
/// document of the record asked for.
inline constexpr InterfaceRet kNoRecord{false, 2, static_cast<int>(query::kNotSupported)};

/// The name of a record's root element.
template <class Record>
constexpr const char* RootOf()
{
    if constexpr (requires { Record::kRoot; }) {
        return Record::kRoot;
    } else {
        return Record::kElement;
    }
}

/// Reads an answer into `out`; false, after the line that says why, when its root is another.
template <class Record>
bool ReadAnswer(Record& out, const std::string& answer, const log::Place& place)
{
    // Here a failed allocation inside Parse reaches the guard: no half-read record is a success.
    const xml::ReadingLevel level;
    bool isRecord = false;
    xml::WithRoot(answer, RootOf<Record>(), place, [&](xmlNode* root) {
        out.Parse(root);
        isRecord = true;
    });
    return isRecord;
}

/// Runs `request` with the manager; whatever it throws becomes error 23.
template <class Request>
InterfaceRet RunGuarded(Request&& request)
{
    InterfaceRet result = kNoRecord;
    unsigned int err = 0;
    query::Guarded(err, [&] {
        result = request(SDKInterfaceManager::instance());
        return true;
    });
    return result;
}

/// Resets `out`, runs `ask`, which gets the manager and the answer's text, and reads the answer.
template <class Record, class Ask>
InterfaceRet FetchRecord(Record& out, const log::Place& place, Ask&& ask)
{
    const InterfaceRet result = RunGuarded([&](SDKInterfaceManager& manager) {
        out = Record();
        std::string answer;
        const InterfaceRet sent = ask(manager, answer);
        return !sent.success || ReadAnswer(out, answer, place) ? sent : kNoRecord;
    });
    if (!result.success) {
        out = Record();
    }
    return result;
}

/// GET: the record at a path.
template <class Record>
InterfaceRet GetRecord(Record& out, const int userID, const char* line, const log::Place& place)
{
    return FetchRecord(out, place, [&](SDKInterfaceManager& manager, std::string& answer) {
        std::string noStatus = "0";
        return manager.TransparentRequsetGET(userID, line, answer, noStatus, 0, false);
    });
}

/// POST: what a device finds by a condition.
template <class Condition, class Record>
InterfaceRet SearchRecord(const Condition& condition, Record& out, const int userID,
                          const char* line, const log::Place& place)
{
    return FetchRecord(out, place, [&](SDKInterfaceManager& manager, std::string& answer) {
        const std::string body = condition.createXml();
        if (body.empty()) {
            return kNoRecord;
        }
        std::string noStatus = "0";
        return manager.TransparentRequsetPOSTInq(userID, line, body, answer, noStatus, 0, false);
    });
}

/// PUT: makes a setting the record at a path.
template <class Setting>
InterfaceRet SetRecord(const Setting& setting, const int userID, const char* line)
{
    return RunGuarded([&](SDKInterfaceManager& manager) {
        const std::string body = setting.createXml();
        if (body.empty()) {
            return kNoRecord;
        }
        std::string noStatus = "0";
        return manager.TransparentRequsetPUT(userID, line, body, noStatus, 0, false);
    });
}

}  // namespace CapabilitySet::ParseXmlHelper
