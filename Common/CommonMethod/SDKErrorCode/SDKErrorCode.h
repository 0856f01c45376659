// The SDK's last error as module and code, the form of Keel's last-error record.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommonMethod/SDKErrorCode/DeviceModelError.h"
#include "Keel/CLog.h"
#include "Keel/CSingleton.h"
#include "Keel/Error.h"
#include "Keel/StringUtil.h"
#include "PelNetSDK/PelNetSDK.h"

namespace comm_method
{

/// Reads the calling thread's last SDK error. Call it right after the failed call, on the same
/// thread. A known device model error code gives `module` 72 and that code; anything else gives
/// `module` 50 and the SDK's error number. Logs both numbers at error level. The last argument has
/// no effect.
inline void getLastSDKError(int& module, int& code, bool /*unused*/ = false)
{
    using Keel::details::LogLevel;
    const int sdkError = static_cast<int>(NET_ORB_GetLastError());
    int modelCode = -1;
    int deviceCode = -1;
    NET_ORB_GetLastErrorModelCode(&modelCode, &deviceCode);

    auto& log = Keel::CSingleton<Keel::details::CLog>::Instance();
    if (log.IsEnabled(LogLevel::Error)) {
        const log4cxx::spi::LocationInfo here(
            __FILE__, log4cxx::spi::LocationInfo::calcShortFileName(__FILE__),
            static_cast<const char*>(__PRETTY_FUNCTION__), __LINE__);
        const auto line = [&](const std::string& text) { log.Error({}, text, here); };
        line(Keel::StringUtil::FormatString("NET_ORB_GetLastError: [%d]", sdkError));
        line(Keel::StringUtil::FormatString(
            "NET_ORB_GetLastErrorModelCode, ErrModelCode:[0x%x], MErrDevSelfEx:[0x%x].",
            static_cast<unsigned int>(modelCode), static_cast<unsigned int>(deviceCode)));
    }
    const bool known = isDeviceModelError(modelCode);
    module = known ? Keel::Error::kModuleDeviceModel : Keel::Error::kModuleSdk;
    code = known ? modelCode : sdkError;
}

}  // namespace comm_method
