// Converts the option strings of capability documents to enumerations and codes.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "CapabilitySet/OptionTypes.h"

namespace CapabilitySet
{

/// Option strings and their codes, compared byte for byte in this order.
struct OptionCodes
{
    struct Entry
    {
        std::string_view option;
        int code;
    };

    const char* name;  ///< of the table, in log lines
    std::span<const Entry> entries;
    std::span<const std::string_view> uncoded = {};  ///< known options that have no code
};

/// Calls `append` with the code of each option in order. An unknown option is logged and skipped.
/// False if there are no options.
template <class Append>
bool ForEachCode(const OptionCodes& table, const OptElement<std::string>& in, Append&& append);

/// The code of an option; null if it has none or, after an error line, if it is unknown.
const int* CodeOf(const OptionCodes& table, const std::string& option);

// Each conversion clears `out` first and returns false only if there are no options.

/// Appends AlarmHandleType::UploadFtp if "uploadftp" is not listed, the handle is not -1 and the
/// basic capability of that device announces FTP upload.
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

/// The login handle of the last alarm ability query, used to convert the handling options of its
/// answer; -1 before the first query. There is one for the process: callers query the alarm ability
/// of one device at a time.
int AlarmQueryHandle();
void SetAlarmQueryHandle(int loginHandle);

}  // namespace CapabilitySet
