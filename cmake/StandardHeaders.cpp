// The unit for which the standard headers are precompiled.
// SPDX-License-Identifier: Apache-2.0
