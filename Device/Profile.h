// A profile as its manifest states it: who may log in, which channels there are, what is answered.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <json/value.h>

#include "Device/DeviceModel.h"
#include "Device/ParsedRequest.h"
#include "Device/StatusDocument.h"
#include "Device/ValueLimits.h"
#include "Device/search/JsonSearch.h"
#include "Device/search/Recordings.h"

namespace Device
{

/// How a document that lists things is given out in pages.
struct Paging
{
    std::string item;      ///< the element that a page holds some of
    std::string position;  ///< of the request: index of the first item wanted
    std::string size;      ///< of the request: how many items at most
};

/// One entry of a manifest's "answers".
struct Answer
{
    std::string request;                ///< as the manifest writes it
    std::string method;                 ///< empty for a setting
    std::vector<std::string> path;      ///< segments; "{channel}", "{sdkChannel}" and "{any}" match
    std::vector<Parameter> parameters;  ///< those a request must carry; it may carry more
    std::string root;                   ///< root of the request's body; empty: any, or no body
    std::string channelName;            ///< element of the body that names a channel; empty: any
    std::vector<int> channels;          ///< the only ones that have this answer; empty: all
    bool setting = false;               ///< GET reads it, PUT replaces it
    std::vector<ValueLimit> limits;     ///< of the values in a request's body
    std::string mergedItem;             ///< of a setting: PUT replaces only the items it holds
    std::string mergedKey;              ///< the child by which those items are told apart
    std::optional<Paging> paging;
    std::optional<SearchRules> search;
    std::optional<Status> status;  ///< answered with a status document instead of a file

    std::string contentType;
    std::string document;
    bool namesChannel = false;       ///< the document holds "{channel}"
    std::vector<std::string> roots;  ///< of a setting: XML root, or members of the JSON object
    bool json = false;               ///< of a setting: its form
};

struct Profile
{
    std::string name;
    std::string description;
    std::map<std::string, std::string, std::less<>> users;  ///< name to password
    std::map<int, int> channels;                            ///< SDK's number to the protocol's
    std::vector<Answer> answers;
    std::optional<RecordedPast> past;  ///< without one the device searches no content
    std::map<std::string, Json::Value, std::less<>> state;  ///< what behaviours start from

    [[nodiscard]] bool HasProtocolChannel(int channel) const;
};

/// Reads a profile. On failure false and a sentence in `error` that names the manifest's faulty
/// entry.
bool ReadProfile(const ProfileFiles& files, Profile& profile, std::string& error);

}  // namespace Device
