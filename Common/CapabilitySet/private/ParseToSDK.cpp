// Converts the option strings of capability documents to enumerations and codes.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/ParseToSDK.h"

#include <algorithm>
#include <atomic>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/Limits.h"
#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/ThrowScope.h"

namespace CapabilitySet
{
namespace
{

constexpr std::string_view kUploadFtp = "uploadftp";

constexpr OptionCodes::Entry kHandleTypesEntries[] = {
    {"monitor", AlarmHandleType::Monitor},   {"audio", AlarmHandleType::Audio},
    {"center", AlarmHandleType::Center},     {"alarmout", AlarmHandleType::AlarmOut},
    {"picture", AlarmHandleType::Picture},   {"wirelesslight", AlarmHandleType::WirelessLight},
    {kUploadFtp, AlarmHandleType::UploadFtp}};
constexpr std::string_view kHandleTypesUncoded[] = {"record", "focus", "ptztrack", "norecord"};
const OptionCodes kHandleTypes{"alarmHandleType", kHandleTypesEntries, kHandleTypesUncoded};

constexpr OptionCodes::Entry kRecordTypesEntries[] = {
    {"timing", RecordType::Timing},
    {"motion", RecordType::Motion},
    {"alarm", RecordType::Alarm},
    {"motionOrAlarm", RecordType::MotionOrAlarm},
    {"motionAndAlarm", RecordType::MotionAndAlarm},
    {"vca", RecordType::Vca},
    {"manual", RecordType::Manual}};
const OptionCodes kRecordTypes{"RecordType", kRecordTypesEntries};

constexpr OptionCodes::Entry kCaptureTypesEntries[] = {
    {"timing", CaptureType::Timing},
    {"motion", CaptureType::Motion},
    {"alarm", CaptureType::Alarm},
    {"motionOrAlarm", CaptureType::MotionOrAlarm},
    {"motionAndAlarm", CaptureType::MotionAndAlarm},
    {"vca", CaptureType::Vca}};
const OptionCodes kCaptureTypes{"CaptureType", kCaptureTypesEntries};

constexpr OptionCodes::Entry kWorkModesEntries[] = {{"narrowBand", NarrowBand},
                                                    {"console", Console},
                                                    {"transparentChan", TransparentChan},
                                                    {"transparent", TransparentChan},
                                                    {"inquestSensor", InquestSensor}};
const OptionCodes kWorkModes{"WorkModeType", kWorkModesEntries};

constexpr OptionCodes::Entry kOutputDataTypesEntries[] = {{"cardNo", CardNo},
                                                          {"employeeNo", EmployeeNo}};
// Kept: support staff search logs for this spelling, which differs from the type's.
const OptionCodes kOutputDataTypes{"OutputDataType", kOutputDataTypesEntries};

template <class Type>
bool Convert(const OptionCodes& table, std::vector<Type>& out, const OptElement<std::string>& in)
{
    out.clear();
    return ForEachCode(table, in, [&out](int code) { out.push_back(static_cast<Type>(code)); });
}

/// Logs an unknown option, unless the document has had limits::kOptionLines of them.
void LogUnknownOption(const log::Place& place, const std::string& option, const char* table)
{
    constinit thread_local struct
    {
        unsigned int document = 0;
        unsigned int lines = 0;
    } logged;
    if (!ThrowScope::Active() || logged.document != ThrowScope::Outermost()) {
        logged = {ThrowScope::Outermost(), 0};
    }
    if (++logged.lines <= limits::kOptionLines) {
        log::Error(place, "[%s] is not exist in '%s'.", option.c_str(), table);
    } else if (logged.lines == limits::kOptionLines + 1) {
        log::Error(place,
                   "The document has more than %u unknown options; the others are not logged.",
                   limits::kOptionLines);
    }
}

std::atomic<int> alarmQueryHandle{-1};

}  // namespace

const int* CodeOf(const OptionCodes& table, const std::string& option)
{
    for (const OptionCodes::Entry& entry : table.entries) {
        if (entry.option == option) {
            return &entry.code;
        }
    }
    if (std::find(table.uncoded.begin(), table.uncoded.end(), option) == table.uncoded.end()) {
        LogUnknownOption(CAPABILITYSET_HERE, option, table.name);
    }
    return nullptr;
}

bool ConvertHandleTypeFromXmlStr(std::vector<AlarmHandleType::HandleType>& out,
                                 const OptElement<std::string>& in, int loginHandle)
{
    if (!Convert(kHandleTypes, out, in)) {
        return false;
    }
    // A device may support FTP upload without listing it.
    if (loginHandle != -1 && std::find(in.opt.begin(), in.opt.end(), kUploadFtp) == in.opt.end()) {
        BasicCapability basic;
        unsigned int err = 0;
        BasicCapability::GetBasicCapability(basic, err, loginHandle);
        if (basic.software.UploadFTP) {
            out.push_back(AlarmHandleType::UploadFtp);
        }
    }
    return true;
}

bool ConvertRecordTypeFromXmlStr(std::vector<RecordType::Type>& out,
                                 const OptElement<std::string>& in)
{
    return Convert(kRecordTypes, out, in);
}

bool ConvertCaptureTypeFromXmlStr(std::vector<CaptureType::Type>& out,
                                  const OptElement<std::string>& in)
{
    return Convert(kCaptureTypes, out, in);
}

bool ConvertWorkModeTypeFormXmlStr(std::vector<WorkModeType>& out,
                                   const OptElement<std::string>& in)
{
    return Convert(kWorkModes, out, in);
}

bool ConvertOutputDataTypeFormXmlStr(std::vector<OutPutDataType>& out,
                                     const OptElement<std::string>& in)
{
    return Convert(kOutputDataTypes, out, in);
}

int AlarmQueryHandle()
{
    return alarmQueryHandle.load(std::memory_order_relaxed);
}

void SetAlarmQueryHandle(int loginHandle)
{
    alarmQueryHandle.store(loginHandle, std::memory_order_relaxed);
}

}  // namespace CapabilitySet
