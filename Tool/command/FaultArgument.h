// Faults of the served device on the command line.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Device/http/ServerFaults.h"

namespace Tool
{

/// Reads KIND[=VALUE][*TIMES][@PATH]: "delay=2s", "drip=10/100ms", "truncate=200",
/// "stall=200/10s", "reset", "storm", "stale*1", "5xx=503", "oversize=1M",
/// "refuse=deviceBusy*3@/TARN/System". Throws a usage failure if the text is wrong.
Device::Fault ParseFault(const std::string& text);

}  // namespace Tool
