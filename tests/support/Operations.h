// Every query operation of the library as a row of one table.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <span>
#include <string>

#include "support/ScriptedSdk.h"

namespace TestSupport
{

inline constexpr int kUser = 5;

/// What became of a query whose record was in use before.
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

}  // namespace TestSupport
