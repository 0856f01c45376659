// The device's response status in JSON: the answer to a request that changes something.
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

/// What a device says of a request it carried out or refused. The library never judges it: an
/// operation that was answered returns true whatever the status holds.
struct CAPABILITYSET_API JsonStatus
{
    std::string requestURL;
    std::int32_t statusCode = 0;  ///< 1 stands for success; 0 when the device sent none
    std::string statusString;
    // Kept: devices send words here, so it is text beside two numbers.
    std::string subStatusCode;
    std::int32_t errorCode = 0;
    std::string errorMsg;

    JsonStatus() = default;
    explicit JsonStatus(const std::string& text);

    /// Resets the record, then reads an answer. At a member of the wrong kind reading ends: those
    /// before it keep what was read, those after it their defaults. Never throws.
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
    std::string id;             ///< decimal number of the entry that failed
    std::string subStatusCode;  ///< always empty

    JsonErrorStatus() = default;
    explicit JsonErrorStatus(const Json::Value& value);

    /// Reads one element of the list; null reads nothing. Throws what JsonCpp throws for a member
    /// of the wrong kind.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("subStatusCode", r.subStatusCode);
    }
};

/// "ErrorList" of a batch request's answer, in the device's order.
struct CAPABILITYSET_API JsonErrorStatusList
{
    // Kept: clients collect the errors of several requests in one list.
    static constexpr bool kAppendsAnswers = true;

    std::vector<JsonErrorStatus> errorList;

    JsonErrorStatusList() = default;
    explicit JsonErrorStatusList(const std::string& text) { Parse(text); }

    /// Appends the entries of an answer to the list, which is never cleared. Never throws.
    void Parse(const std::string& text);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ErrorList", r.errorList);
    }
};

}  // namespace CapabilitySet
