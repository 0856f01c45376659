// An SDK that answers from a script and records every call; linked instead of the bundled one.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "PelNetSDK/PelNetSDK.h"

namespace TestSupport
{

/// One call as the SDK saw it.
struct SdkCall
{
    enum Kind
    {
        DeviceAbility,
        StandardAbility,
        Transparent,
        Channel
    };
    Kind kind = DeviceAbility;
    int userID = 0;
    unsigned code = 0;        ///< ability code, or the channel to be converted
    bool hasInput = false;    ///< an input pointer was passed
    std::string input{};      ///< request XML, condition bytes or body
    std::string line{};       ///< request line
    unsigned size = 0;        ///< of the answer buffer
    unsigned statusSize = 0;  ///< of the status buffer
    unsigned timeout = 0;
    int flag = 0;
    bool isZeroed = false;     ///< the answer buffer was all zero
    bool isWellFilled = true;  ///< the structures' size fields, and everything unused zero
};

/// The answer to a call: an error or a text.
struct SdkStep
{
    unsigned error = 0;
    std::string answer{};
    std::string status{};       ///< goes to the status buffer, if there is one
    bool fills = false;         ///< fills the buffer to its last byte, without a NUL
    unsigned returnedSize = 0;  ///< the size that the SDK reports
    bool needsRoom =
        false;  ///< returns 43 and its size, without taking a step, until the answer fits
    bool isFault = false;  ///< counted in `struck` once it has reached the caller
};

/// The script. Set it before calls are made; calls may come from many threads.
struct ScriptedSdk
{
    std::vector<SdkStep> steps;  ///< one per call; the last one answers all further calls
    std::map<unsigned, std::string> texts;  ///< answers by ability code, before any step
    std::map<int, unsigned> userErrors;  ///< calls of these users fail with this, before any step
    std::function<void()> onCall;        ///< runs at the end of each call that took a step
    std::optional<int> modelCode;        ///< none: leaves the outputs of the model code unchanged
    int deviceCode = 7;
    int channelStep = 32;        ///< added by the channel conversion
    unsigned channelError = 0;   ///< the conversion fails with this
    std::vector<SdkCall> calls;  ///< kept only while `keepsCalls`
    bool keepsCalls = true;
    bool countsModelCodes = false;  ///< a query for the model code counts as a fault
    unsigned struck = 0;            ///< faults so far, of steps and of the channel conversion

    static ScriptedSdk& Instance();
    /// Resets the script.
    static ScriptedSdk& Fresh();
};

}  // namespace TestSupport
