// The receive progress of the calling thread's requests.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace PelNet
{

/// Calls what the thread has installed with NET_ORB_SetReceiveProgress, if anything. `total` is 0
/// if it is unknown.
void ReportReceived(unsigned long long received, unsigned long long total);

}  // namespace PelNet
