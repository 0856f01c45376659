// From the option strings of capability documents to enumerations and codes.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "CapabilitySet/OptionTypes.h"

namespace CapabilitySet
{

/// Option strings and the codes they stand for, compared byte for byte in this order.
struct OptionCodes
{
    struct Entry
    {
        std::string_view option;
        int code;
    };

    const char* name;  ///< as the log names the table
    std::span<const Entry> entries;
    std::span<const std::string_view> uncoded = {};  ///< known options that have no code
};

/// Calls `append` with the code of each option in the document's order; an option that is in no
/// list is one error line and skipped. False when there are no options at all.
template <class Append>
bool ForEachCode(const OptionCodes& table, const OptElement<std::string>& in, Append&& append);

/// The code of an option; null after the error line for an unknown one, and for one without code.
const int* CodeOf(const OptionCodes& table, const std::string& option);

// Each conversion clears `out` first and returns false only for an empty option list.

/// Unless "uploadftp" is among the options, a device that is logged in (any handle but -1) and
/// whose basic capability announces FTP upload gets AlarmHandleType::UploadFtp as well.
bool ConvertHandleTypeFromXmlStr(std::vector<AlarmHandleType::HandleType>& out,
                                 const OptElement<std::string>& in, int loginHandle);
bool ConvertRecordTypeFromXmlStr(std::vector<RecordType::Type>& out,
                                 const OptElement<std::string>& in);
bool ConvertCaptureTypeFromXmlStr(std::vector<CaptureType::Type>& out,
                                  const OptElement<std::string>& in);
bool ConvertWorkModeTypeFormXmlStr(std::vector<WorkModeType>& out,
                                   const OptElement<std::string>& in);
bool ConvertOutputDataTypeFormXmlStr(std::vector<OutPutDataType>& out,
                                     const OptElement<std::string>& in);

template <class Append>
bool ForEachCode(const OptionCodes& table, const OptElement<std::string>& in, Append&& append)
{
    for (const std::string& option : in.opt) {
        if (const int* const code = CodeOf(table, option)) {
            append(*code);
        }
    }
    return !in.opt.empty();
}

/// The login handle of the alarm ability query in progress, which the records of its answer
/// convert their handling options with; -1 before the first. One for the process: callers query
/// one device's alarm ability at a time.
int AlarmQueryHandle();
void SetAlarmQueryHandle(int loginHandle);

}  // namespace CapabilitySet
