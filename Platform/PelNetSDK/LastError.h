// The calling thread's last failure.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace PelNet
{

/// A failure as the interface reports it.
struct Failure
{
    unsigned error = 0;  ///< NET_ORB_ number
    int modelCode = 0;   ///< the device's model error code, 0: none
    int deviceCode = 0;  ///< the device's own extended code, 0: none
};

/// Records the calling thread's last failure. A success does not clear it.
void SetLastFailure(const Failure& failure) noexcept;
[[nodiscard]] Failure LastFailure() noexcept;

/// A sentence about the failure that the thread is about to record, cut to 255 bytes.
void SetFailureDetail(std::string_view detail) noexcept;
[[nodiscard]] const char* LastFailureDetail() noexcept;

}  // namespace PelNet
