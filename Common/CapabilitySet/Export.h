// Marks the symbols that the library exports.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#if defined(__GNUC__)
#define CAPABILITYSET_API __attribute__((visibility("default")))
#else
#define CAPABILITYSET_API
#endif
