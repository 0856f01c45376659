// Telling the thread that asked how much of an answer has come.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace PelNet
{

/// Calls what the thread has set with NET_ORB_SetReceiveProgress, if anything. `total` is 0 when it
/// is not known.
void TellReceived(unsigned long long received, unsigned long long total);

}  // namespace PelNet
