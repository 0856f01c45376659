// The known error codes of device models.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace comm_method
{

/// Whether a device model error code is known. Clients rely on the gaps: a code in a gap is not.
constexpr bool isDeviceModelError(int code)
{
    /// A range of known codes.
    struct Codes
    {
        int first;  ///< lowest code
        int last;   ///< highest code
    };
    constexpr Codes kKnown[] = {
        {0x100001, 0x100007},   {0x100100, 0x100105}, {0x200001, 0x20000E}, {0x300001, 0x300005},
        {0x400001, 0x40001A},   {0x500001, 0x500009}, {0x50000C, 0x50000E}, {0x500025, 0x500028},
        {0x500030, 0x500030},   {0x500032, 0x50003D}, {0x500060, 0x50007E}, {0x500080, 0x500083},
        {0x600001, 0x600003},   {0x600005, 0x600005}, {0x600007, 0x600007}, {0x60000A, 0x60000D},
        {0x600010, 0x600012},   {0x700001, 0x700005}, {0x700007, 0x700014}, {0x800001, 0x800001},
        {0x900001, 0x900004},   {0xA00001, 0xA00003}, {0xB00001, 0xB00001}, {0xC00001, 0xC00002},
        {0xD00001, 0xD00001},   {0xE00001, 0xE00002}, {0xF00001, 0xF00011}, {0x1100001, 0x1100002},
        {0x1400001, 0x1400009},
    };
    for (const Codes& codes : kKnown) {
        if (code >= codes.first && code <= codes.last) {
            return true;
        }
    }
    return false;
}

}  // namespace comm_method
