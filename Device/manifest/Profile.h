// A profile as its manifest describes it: users, channels, answers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <json/value.h>

#include "Device/manifest/ProfileFiles.h"
#include "Device/manifest/SearchRules.h"
#include "Device/manifest/ValueLimits.h"
#include "Device/message/ParsedRequest.h"
#include "Device/message/StatusDocument.h"

namespace Device
{

/// How an XML list is split into pages.
struct Paging
{
    std::string item;      ///< element that is repeated in the list
    std::string position;  ///< element of the request: index of the first item wanted
    std::string size;      ///< element of the request: number of items at most
};

/// The recordings that a device claims to have.
struct RecordedPast
{
    std::int64_t start = 0;  ///< seconds since 1970
    int days = 0;
    std::string uri;  ///< where tracks are played back
};

/// One entry of a manifest's "answers".
struct Answer
{
    std::string request;                ///< as written in the manifest
    std::string method;                 ///< empty for a setting
    std::vector<std::string> path;      ///< segments; "{channel}", "{sdkChannel}", "{any}" match
    std::vector<Parameter> parameters;  ///< that a request must have; it may have more
    std::string root;                   ///< root of the request's body; empty: any, or no body
    std::string channelName;            ///< element of the body that names a channel; empty: any
    std::vector<int> channels;          ///< channels that have this answer; empty: all
    bool setting = false;               ///< GET reads the document, PUT replaces it
    std::vector<ValueLimit> limits;     ///< for the values in a request's body
    std::string mergedItem;             ///< of a setting: PUT replaces only the items it contains
    std::string mergedKey;              ///< child element that identifies those items
    std::optional<Paging> paging;
    std::optional<SearchRules> search;
    std::optional<Status> status;  ///< answer with a status document instead of a file

    std::string contentType;
    std::string document;
    bool namesChannel = false;       ///< the document contains "{channel}"
    std::vector<std::string> roots;  ///< of a setting: XML root, or members of the JSON object
    bool json = false;               ///< of a setting: its form

    /// The document with the channel filled in.
    [[nodiscard]] std::string DocumentFor(int channel) const;
};

struct Profile
{
    std::string name;
    std::string description;
    std::map<std::string, std::string, std::less<>> users;  ///< name to password
    std::map<int, int> channels;                            ///< SDK's number to the protocol's
    std::vector<Answer> answers;
    std::optional<RecordedPast> past;  ///< without it the device has no content search
    std::map<std::string, Json::Value, std::less<>> state;  ///< initial state of behaviours

    [[nodiscard]] bool HasProtocolChannel(int channel) const;
};

/// Reads a profile. On failure returns false and sets `error` to a message that names the faulty
/// entry of the manifest.
bool ReadProfile(const ProfileFiles& files, Profile& profile, std::string& error);

}  // namespace Device
