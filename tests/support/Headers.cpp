// The unit for which the headers that tests share are precompiled.
// SPDX-License-Identifier: Apache-2.0
