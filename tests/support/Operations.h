// Every query operation of the library as a row of one table.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Keel/Error.h"
#include "support/ScriptedSdk.h"

namespace TestSupport
{

inline constexpr int kUser = 5;

/// The result of a query whose record was used before.
struct Answered
{
    bool result = false;
    unsigned err = 0;
    bool isAtDefaults = false;
    bool isRead = false;  ///< the record's flag is up
};

struct Policy
{
    unsigned start;
    unsigned step;
    unsigned limit;
    bool growsOn1001 = true;
    bool maps1000 = true;
};

struct OperationRow
{
    const char* name;  ///< "BasicCapability::GetBasicCapability"
    const char* file;  ///< of its log lines, under Common/CapabilitySet
    SdkCall::Kind kind;
    unsigned code;
    std::string request;   ///< request XML, request line, or the condition's bytes
    const char* document;  ///< one that raises the record's flag
    Policy policy;
    std::function<Answered()> ask;
    const char* limitTrace = nullptr;  ///< tag and name in the trace of a reached limit
    const char* limitLine = nullptr;   ///< the log line of a reached limit
    bool needsFlag = false;
    bool errByValue = false;
    const char* failedCall = nullptr;  ///< in the failure line; null: the call that failed
};

std::span<const OperationRow> Operations();

/// Module and code of the last error.
inline constexpr std::pair kUntouched{1, 2};

inline std::pair<int, int> LastError()
{
    const auto& last = Keel::Error::GetLastError();
    return {last.module, last.code};
}

/// Runs a check on every operation, each with a new SDK that answers `steps`.
template <class Rows, class Check>
void ForEachRow(const Rows& rows, const std::vector<SdkStep>& steps, Check check)
{
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.name) + " " + row.request);
        ScriptedSdk& sdk = ScriptedSdk::Fresh();
        sdk.steps = steps;
        Keel::Error::SetLastError({kUntouched.first, kUntouched.second, {}});
        check(row, sdk);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

}  // namespace TestSupport
