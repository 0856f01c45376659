// The receive progress of the calling thread's requests.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace PelNet
{

/// Calls what the thread has installed with NET_ORB_SetReceiveProgress, if anything. `total` is 0
/// if it is unknown. False if the callback threw an exception: the request must end with
/// NET_ORB_CALLBACK_FAILED, and the failure's detail is set.
[[nodiscard]] bool ReportReceived(unsigned long long received, unsigned long long total) noexcept;

}  // namespace PelNet
