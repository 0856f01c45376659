// Sends and fetches whole records through the process-wide manager.
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

/// The result when a request cannot be built, memory runs out, or the answer is not a document of
/// the record asked for.
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

/// Reads an answer into `out`; false, with a log line that says why, if its root is another.
template <class Record>
bool ReadAnswer(Record& out, const std::string& answer, const log::Place& place)
{
    // A half-read record is no success: running out of memory has to reach the guard.
    const ThrowScope scope;
    bool isRecord = false;
    xml::WithRoot(answer, RootOf<Record>(), place, [&](xmlNode* root) {
        out.Parse(root);
        isRecord = true;
    });
    return isRecord;
}

/// Resets `out`, runs `ask` with the manager and a string for the answer, and reads the answer.
template <class Record, class Ask>
InterfaceRet FetchRecord(Record& out, const log::Place& place, Ask&& ask)
{
    InterfaceRet result = kNoRecord;
    unsigned int err = 0;
    query::Fill(out, err, [&] {
        std::string answer;
        const InterfaceRet sent = ask(SDKInterfaceManager::instance(), answer);
        if (!sent.success || ReadAnswer(out, answer, place)) {
            result = sent;
        }
        return result.success;
    });
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

/// POST: a search; the record is what the device found.
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

/// PUT: sends a setting to a path.
template <class Setting>
InterfaceRet SetRecord(const Setting& setting, const int userID, const char* line)
{
    InterfaceRet result = kNoRecord;
    unsigned int err = 0;
    query::Guarded(err, [&] {
        const std::string body = setting.createXml();
        if (!body.empty()) {
            std::string noStatus = "0";
            result = SDKInterfaceManager::instance().TransparentRequsetPUT(userID, line, body,
                                                                           noStatus, 0, false);
        }
        return result.success;
    });
    return result;
}

}  // namespace CapabilitySet::ParseXmlHelper
