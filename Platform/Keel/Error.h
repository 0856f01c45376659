// The last error of the calling thread.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Keel/Export.h"

namespace Keel::Error
{

/// Module of an SDK error number.
inline constexpr int kModuleSdk = 50;
/// Module of a device model error code.
inline constexpr int kModuleDeviceModel = 72;

/// The last failure.
struct ErrorCode
{
    int module = 0;           ///< kModuleSdk or kModuleDeviceModel
    int code = 0;             ///< SDK error number or device model error code
    std::string description;  ///< left empty by this library
};

/// Sets the calling thread's last error. It stays until the next call on this thread.
KEEL_API void SetLastError(const ErrorCode& error);

/// The calling thread's last error; all zero if none was set.
KEEL_API const ErrorCode& GetLastError();

}  // namespace Keel::Error
