// Short debug traces.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Keel/Export.h"

/// Writes a printf-style trace at debug level to the logger "Vsk". Formats nothing if that level is
/// off.
extern "C" KEEL_API void VSK_OutputDebug(const char* format, ...) KEEL_PRINTF(1, 2);
