// The last error of the calling thread.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Keel/Export.h"

namespace Keel::Error
{

/// Class of an SDK error number.
inline constexpr int kModuleSdk = 50;
/// Class of a device model's error code.
inline constexpr int kModuleDeviceModel = 72;

/// What went wrong last.
struct ErrorCode
{
    int module = 0;  ///< kModuleSdk or kModuleDeviceModel
    int code = 0;    ///< the SDK's error number or the model's error code
    std::string description;
};

/// Stores the calling thread's last error; it stays until the next call on this thread.
KEEL_API void SetLastError(const ErrorCode& error);

/// The calling thread's last error; all zero when none was set.
KEEL_API const ErrorCode& GetLastError();

}  // namespace Keel::Error
