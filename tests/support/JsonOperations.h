// The JSON operations as rows of tables.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/AllocationFaults.h"
#include "support/Operations.h"
#include "support/SameRecord.h"

namespace TestSupport
{

/// The result of an operation whose record was used before.
struct JsonAnswered
{
    bool result = false;
    unsigned err = 0;
    bool isAtDefaults = false;
    bool isFilled = false;  ///< the record holds what it held before
};

struct JsonOperationRow
{
    const char* name;     ///< "JsonCapApp::GetHFPDCapability"
    std::string request;  ///< the line, with 32 added to the channel where the SDK converts it
    const char* answer;   ///< one that changes the record
    std::function<JsonAnswered(const char* before)> ask;  ///< with a record read from `before`
    std::string body{};
    bool padsBody = false;  ///< the body is sent in 8,192 zeroed bytes
    unsigned timeout = 0;
    bool convertsChannel = false;
    bool tellsError = true;          ///< there is an error slot
    bool keepsRecord = false;        ///< neither reset nor cleared: answers are appended
    const char* onlyLine = nullptr;  ///< the only line of a failure, which sets no last error
};

template <class Record, class Query>
JsonAnswered AskJsonInto(const char* before, Query query)
{
    Record record;
    {
        const NoAllocationFaults pause;
        record = Record(std::string(before));
    }
    JsonAnswered answered{.err = 77};
    answered.result = query(record, answered.err);
    const NoAllocationFaults pause;
    answered.isAtDefaults = IsSame(record, Record());
    answered.isFilled = IsSame(record, Record(std::string(before)));
    return answered;
}

/// A row's `ask`: a call with `out` for the record and `err` for the error slot.
#define ASK_JSON(Record, call)                                                         \
    [](const char* before) {                                                           \
        return TestSupport::AskJsonInto<Record>(                                       \
            before, [](Record& out, [[maybe_unused]] unsigned& err) { return call; }); \
    }

/// A row that sends the body, a JSON text, in styled form, and converts the channel 3 if the
/// request names the channel 35.
JsonOperationRow JsonRow(const char* name, std::function<JsonAnswered(const char*)> ask,
                         std::string request, const char* answer, const std::string& body = {});

/// A row: record, arguments in parentheses, request, answer, body.
#define JSON_ROW(App, operation, Record, arguments, ...)                                   \
    TestSupport::JsonRow(#App "::" #operation, ASK_JSON(Record, App::operation arguments), \
                         __VA_ARGS__)

/// The same for an operation that takes only the user.
#define JSON_QUERY_ROW(App, operation, Record, ...) \
    JSON_ROW(App, operation, Record, (out, err, kUser), __VA_ARGS__)

// One table per file.
std::vector<JsonOperationRow> JsonCapabilityRows();
std::vector<JsonOperationRow> AlarmHostRows();
std::vector<JsonOperationRow> JsonConfigRows();

/// All of them.
const std::vector<JsonOperationRow>& JsonOperations();

}  // namespace TestSupport
