// Marks the symbols that the Keel library exports.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#if defined(__GNUC__)
#define KEEL_API __attribute__((visibility("default")))
#define KEEL_PRINTF(text, first) __attribute__((__format__(__printf__, text, first)))
#else
#define KEEL_API
#define KEEL_PRINTF(text, first)
#endif
