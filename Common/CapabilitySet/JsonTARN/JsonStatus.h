// The protocol's JSON response status: the answer to a request that changes something.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "CapabilitySet/Export.h"

namespace Json
{
class Value;
}

namespace CapabilitySet
{

/// What a device says about a request it carried out or refused. Operations do not judge it: they
/// return true whenever the device answered.
struct CAPABILITYSET_API JsonStatus
{
    std::string requestURL;       ///< target of the request
    std::int32_t statusCode = 0;  ///< 1: success; 0: the device sent none
    std::string statusString;     ///< status in words
    // Kept: text beside two numbers, because devices send a word.
    std::string subStatusCode;   ///< reason, a word such as "badParameters"
    std::int32_t errorCode = 0;  ///< error number, as the device defines it
    std::string errorMsg;        ///< error in words

    JsonStatus() = default;
    /// Reads an answer; an empty text gives the defaults.
    explicit JsonStatus(const std::string& text);

    /// Resets the record, then reads an answer. Reading ends at a member of the wrong kind: members
    /// before it keep what was read, the others their defaults. Never throws.
    void Parse(const std::string& text);

    /// Always empty: a status is never sent.
    [[nodiscard]] std::string Make() const { return {}; }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("requestURL", r.requestURL);
        field("statusCode", r.statusCode);
        field("statusString", r.statusString);
        field("subStatusCode", r.subStatusCode);
        field("errorCode", r.errorCode);
        field("errorMsg", r.errorMsg);
    }
};

/// One entry of the error list of a batch request.
struct CAPABILITYSET_API JsonErrorStatus
{
    std::string id;             ///< number of the entry that failed, in decimal
    std::string subStatusCode;  ///< always empty after Parse

    JsonErrorStatus() = default;
    /// Reads one entry, as Parse does.
    explicit JsonErrorStatus(const Json::Value& value);

    /// Reads one entry of the list; null reads nothing. Throws what JsonCpp throws for a member of
    /// the wrong kind.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("subStatusCode", r.subStatusCode);
    }
};

/// "ErrorList" in the answer to a batch request.
struct CAPABILITYSET_API JsonErrorStatusList
{
    // Kept: never cleared, so that one list can collect the errors of several requests.
    static constexpr bool kAppendsAnswers = true;

    std::vector<JsonErrorStatus> errorList;  ///< entries, in the device's order

    JsonErrorStatusList() = default;
    explicit JsonErrorStatusList(const std::string& text) { Parse(text); }

    /// Appends the entries of an answer. Never throws.
    void Parse(const std::string& text);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ErrorList", r.errorList);
    }
};

}  // namespace CapabilitySet
