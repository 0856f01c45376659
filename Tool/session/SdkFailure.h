// Failed SDK calls in words: what went wrong, and what the user can do about it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

namespace Tool
{

/// Why a call of the SDK failed.
struct SdkFailure
{
    unsigned int error = 0;
    std::string text;    ///< the number in words
    std::string detail;  ///< what the SDK knows beyond the number; may be empty
};

/// The calling thread's last failure, as that of an operation which returned `error`.
SdkFailure LastFailure(unsigned int error);

/// "error 23: the device does not support this (...)".
std::string Told(const SdkFailure& failure);

/// {"number": 23, "text": "..."}.
Json::Value ErrorToJson(const SdkFailure& failure);

/// What the user can do about it, after a semicolon; empty when there is nothing.
std::string Hint(const SdkFailure& failure);

/// True if the device does not know what it was asked for.
bool MeansUnsupported(unsigned int error);

/// True if asking the device for anything else would fail too.
bool MeansUnreachable(unsigned int error);

}  // namespace Tool
