// Every query operation of the library as a row of one table.
// SPDX-License-Identifier: Apache-2.0
#include "support/Operations.h"

#include <vector>

#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/AlarmHostAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/IntercomAbility.h"
#include "CapabilitySet/RecordAbility.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/SmartAbility.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/ThermalAbility.h"
#include "support/AllocationFaults.h"

namespace TestSupport
{
namespace
{

using namespace CapabilitySet;

template <class Record>
auto& FlagOf(Record& record)
{
    if constexpr (requires { record.valid; }) {
        return record.valid;
    } else {
        return record.capable;
    }
}

template <class Record, class Query>
Answered AskInto(Query query)
{
    Record record;
    FlagOf(record) = true;
    Answered answered{.err = 77};
    answered.result = query(record, answered.err);
    const NoAllocationFaults pause;
    answered.isAtDefaults = SameFields(record, Record());
    answered.isRead = FlagOf(record);
    return answered;
}

/// Created in advance: an argument's memory is the caller's, not the operation's.
const std::vector<int> kTwoChannels{4, 2};

constexpr Policy kDevice{8192, 8192, 81920};
constexpr Policy kStandard{16384, 16384, 163840};
constexpr Policy kTransparent{16384, 16384, 16384000};

std::string Bytes(unsigned channel)
{
    return {reinterpret_cast<const char*>(&channel), sizeof channel};
}

/// The row of a query in a file, with its arguments; any element fills its record.
#define ROW(file_, Record, query, arguments, kind_, code_, request_, policy_, tag)                 \
    OperationRow                                                                                   \
    {                                                                                              \
        .name = #Record "::" #query, .file = #file_ ".cpp", .kind = SdkCall::kind_, .code = code_, \
        .request = request_, .document = "<" #Record "><a/></" #Record ">", .policy = policy_,     \
        .ask =                                                                                     \
            [] {                                                                                   \
                return AskInto<Record>(                                                            \
                    [](Record& out, unsigned& err) { return Record::query arguments; });           \
            },                                                                                     \
        .limitTrace = tag #query, .needsFlag = SdkCall::kind_ == SdkCall::Transparent              \
    }
#define DEVICE_ROW(file, Record, query, arguments, code, request) \
    ROW(file, Record, query, arguments, DeviceAbility, code, request, kDevice, "[dwn]")
#define STANDARD_ROW(file, Record, query, arguments, code, channel) \
    ROW(file, Record, query, arguments, StandardAbility, code, Bytes(channel), kStandard, "[dwn]")
#define TRANSPARENT_ROW(file, Record, query, arguments, line) \
    ROW(file, Record, query, arguments, Transparent, 0, line, kTransparent, "[kelvar]")

/// A row that differs from the others.
template <class Change>
OperationRow But(OperationRow row, Change change)
{
    change(row);
    return row;
}

OperationRow ByValue(OperationRow row)
{
    row.errByValue = true;
    return row;
}

const std::vector<OperationRow>& Rows()
{
    static const std::vector<OperationRow> rows{
        But(DEVICE_ROW(BasicCapability, BasicCapability, GetBasicCapability, (out, err, kUser), 1,
                       ""),
            [](OperationRow& row) {
                row.document =
                    "<BasicCapability><HardwareCapability><USBNum>2</USBNum></"
                    "HardwareCapability></BasicCapability>";
                row.limitLine = "[DWN]";
            }),
        But(DEVICE_ROW(AlarmAbility, AlarmAbility, GetAlarmAbility, (out, err, kUser, 3), 10,
                       R"(<AlarmAbility version="2.0"><channelID>35</channelID></AlarmAbility>)"),
            [](OperationRow& row) {
                row.document =
                    "<AlarmAbility><channelEntry><channelID>1</channelID></channelEntry></"
                    "AlarmAbility>";
            }),
        DEVICE_ROW(
            ChannelAbility, AudioVideoCompressInfo, GetAudioVideoCompressInfo,
            (out, err, kUser, 1, 2, 3), 8,
            R"(<AudioVideoCompressInfo><AudioChannelNumber>1</AudioChannelNumber><VoiceTalkChannelNumber>2</VoiceTalkChannelNumber><VideoChannelNumber>3</VideoChannelNumber></AudioVideoCompressInfo>)"),
        DEVICE_ROW(
            ChannelAbility, CameraPara, GetCameraParam, (out, err, kUser, kTwoChannels), 9,
            R"(<CAMERAPARA><ChannelNumber>4</ChannelNumber><ChannelNumber>2</ChannelNumber></CAMERAPARA>)"),
        DEVICE_ROW(ChannelAbility, CameraPara, GetCameraParam, (out, err, kUser, {}), 9,
                   R"(<CAMERAPARA><ChannelNumber>0xff</ChannelNumber></CAMERAPARA>)"),
        DEVICE_ROW(AlarmHostAbility, AlarmHostAbility, GetAlarmHostAbility, (out, err, kUser, true),
                   17, R"(<AlarmHostAbility version="2.0"></AlarmHostAbility>)"),
        DEVICE_ROW(
            ChannelAbility, ChannelInputAbility, GetChannelInputAbility,
            (out, err, kUser, 7, "type"), 17,
            R"(<ChannelInputAbility version="2.0"><channelNO>7</channelNO></ChannelInputAbility>)"),
        DEVICE_ROW(ChannelAbility, ChannelInputAbility, GetChannelInputAbility,
                   (out, err, kUser, -1, ""), 17,
                   R"(<ChannelInputAbility version="2.0"></ChannelInputAbility>)"),
        DEVICE_ROW(
            DisplayAbility, CodeSubSystemAbility, GetCodeSubSystemAbility,
            (out, err, kUser, 4000000000U, "type"), 17,
            R"(<VideoPlatformAbility version="2.0"><channelNO>4000000000</channelNO></VideoPlatformAbility>)"),
        DEVICE_ROW(RecordAbility, CVRAbility, GetCVRAbility, (out, err, kUser), 17,
                   R"(<CVRAbility version="2.0"></CVRAbility>)"),
        DEVICE_ROW(SystemAbility, SecurityAbility, GetSecurityAbility, (out, err, kUser), 17,
                   R"(<SecurityAbility version="2.0"><channelNO>1</channelNO></SecurityAbility>)"),
        DEVICE_ROW(RecordAbility, RecordAbility, GetRecordAbility, (out, err, kUser), 17,
                   R"(<RecordAbility version="2.0"></RecordAbility>)"),
        DEVICE_ROW(SmartAbility, VcaAbility, GetVcaAbility, (out, err, kUser, 0), 17,
                   R"(<VcaChanAbility version="2.0"><channelNO>0</channelNO></VcaChanAbility>)"),
        DEVICE_ROW(DisplayAbility, VideoPlatformAbility, GetVideoPlatformAbility,
                   (out, err, kUser, "Scene"), 17,
                   R"(<VideoPlatformAbility version="2.0"><Scene/></VideoPlatformAbility>)"),
        But(DEVICE_ROW(ChannelAbility, PTZAbility, GetPTZAbility, (out, err, kUser, 9), 17,
                       R"(<PTZAbility version="2.0"><channelNO>9</channelNO></PTZAbility>)"),
            [](OperationRow& row) {
                row.policy = {1024, 1024, 1024000, false, false};
            }),
        But(DEVICE_ROW(ChannelAbility, PTZAbility, GetPTZAbility, (out, err, kUser, -1), 17,
                       R"(<PTZAbility version="2.0"><channelNO>0xff</channelNO></PTZAbility>)"),
            [](OperationRow& row) {
                row.policy = {1024, 1024, 1024000, false, false};
            }),
        DEVICE_ROW(DisplayAbility, DecoderAbility, GetDecoderAbility, (out, err, kUser), 609,
                   R"(<DecoderAbility version="2.0"></DecoderAbility>)"),
        DEVICE_ROW(
            DynChannelAbility, DynChannelAbility, GetDynChannelAbility, (out, err, kUser, 6), 11,
            R"(<DynChannelAbility version="2.0"><channelNO>6</channelNO></DynChannelAbility>)"),
        DEVICE_ROW(
            ChannelAbility, FishEyeAbility, GetFishEyeAbility, (out, err, kUser, 8, "V5"), 1792,
            R"(<FishEyeIPCAbility version="2.0"><channelNO>8</channelNO></FishEyeIPCAbility>)"),
        DEVICE_ROW(
            IntercomAbility, IntercomNoticeVideoAbility, GetNoticeVideoCapability,
            (out, err, kUser, 2), 20,
            R"(<IntercomNoticeVideoAbility version="2.0"><channelNO>2</channelNO></IntercomNoticeVideoAbility>)"),
        DEVICE_ROW(
            IntercomAbility, IntercomDeviceIpViewAbility, GetIntercomDeviceIpViewAbility,
            (out, err, kUser, 2), 20,
            R"(<IpViewDevAbility version="2.0"><channelNO>2</channelNO></IpViewDevAbility>)"),
        DEVICE_ROW(SystemAbility, UserAbility, GetUserAbility, (out, err, kUser, "Account"), 12,
                   R"(<UserAbility version="2.0"><Account/></UserAbility>)"),
        DEVICE_ROW(SystemAbility, NetAppAbility, GetNetAppAbility, (out, err, kUser, ""), 13,
                   R"(<NetAppAbility version="2.0"></NetAppAbility>)"),
        DEVICE_ROW(ChannelAbility, VideoPicAbility, GetVideoPicAbility,
                   (out, err, kUser, 1, "type"), 14,
                   R"(<VideoPicAbility version="2.0"><channelNO>1</channelNO></VideoPicAbility>)"),
        DEVICE_ROW(
            DisplayAbility, WallAbility, GetWallAbility, (out, err, kUser, 1, 2), 530,
            R"(<WallAbility version="2.0"><wallNO>1</wallNO><channelNO>2</channelNO></WallAbility>)"),
        But(DEVICE_ROW(EventAbility, EventAbility, GetEventAbility, (out, err, kUser, 3), 17,
                       R"(<EventAbility version="2.0"><channelNO>3</channelNO></EventAbility>)"),
            [](OperationRow& row) {
                row.document =
                    "<EventAbility><ExceptionAlarm><exceptionType "
                    "opt=\"diskFull,diskfull,diskError\"/></ExceptionAlarm></EventAbility>";
                row.limitTrace = "[DWN]GetEventAbility";
                row.limitLine = "[DWN]";
                row.failedCall = "NET_ORB_STDXMLConfig";
            }),
        But(STANDARD_ROW(ChannelAbility, ChannelInfoAbility, GetChannelInfoAbility,
                         (out, err, kUser, 3, "type"), 4360, 3),
            [](OperationRow& row) {
                row.limitLine =
                    "[DWN],failure to CCapabilityApp::GetChannelInfoAbility, userID = [5], error "
                    "code = [43]";
            }),
        ByValue(STANDARD_ROW(AlarmHostAbility, AlarmForHelpAbility, GetAlarmForHelpAbility,
                             (out, err, kUser, 1), 2222, 1)),
        But(STANDARD_ROW(EventTriggerCapAbility, EventTriggerCap, GetEventTriggerCapAbility,
                         (out, err, kUser, 1), 3501, 1),
            [](OperationRow& row) {
                row.document =
                    "<EventTriggersCap><IOTriggerCap><isSupportIO>true</isSupportIO></"
                    "IOTriggerCap></EventTriggersCap>";
                row.policy = kTransparent;
                row.limitTrace = "[dwn]GetScurityAbility";
                row.needsFlag = true;
                row.errByValue = true;
                row.failedCall = "NET_ORB_STDXMLConfig";
            }),
        STANDARD_ROW(SmartAbility, SmartCap, GetSmartCapAbility, (out, err, kUser, 4000000000U),
                     3500, 4000000000U),
        ByValue(STANDARD_ROW(SmartAbility, RegionExitingCap, GetRegionExitingAbility,
                             (out, err, kUser, 2), 3511, 2)),
        ByValue(STANDARD_ROW(SmartAbility, RegionParkingCap, GetRegionParkingAbility,
                             (out, err, kUser, 2), 3547, 2)),
        ByValue(STANDARD_ROW(SmartAbility, RegionUnBaggageCap, GetRegionUnBaggageAbility,
                             (out, err, kUser, 2), 3556, 2)),
        ByValue(STANDARD_ROW(SmartAbility, RegionBaggageCap, GetRegionBaggageAbility,
                             (out, err, kUser, 2), 3565, 2)),
        STANDARD_ROW(ThermalAbility, ThermalCap, GetThermalCapability, (out, err, kUser, 2), 3634,
                     2),
        STANDARD_ROW(SmartAbility, VehicleInfoResultCap, GetVehicleInfoResultCapAbility,
                     (out, err, kUser, 2), 3951, 2),
        STANDARD_ROW(ThermalAbility, ManualThermometryCap, GetManualThermometryAbility,
                     (out, err, kUser, 2), 6707, 2),
        TRANSPARENT_ROW(SystemAbility, DeviceCap, GetDeviceCapability, (out, err, kUser),
                        "GET /TARN/System/capabilities\r\n"),
        But(TRANSPARENT_ROW(SystemAbility, SystemDeviceCap, GetSystemDeviceAbility,
                            (out, err, kUser), "GET /TARN/System/capabilities\r\n"),
            [](OperationRow& row) {
                row.document = "<DeviceCap><a/></DeviceCap>";
                row.policy = {16384, 16384, 16384000, false, false};
            }),
        TRANSPARENT_ROW(SystemAbility, ClusterCapability, GetClusterCap, (out, err, kUser),
                        "GET /TARN/ContentMgmt/Cluster/capabilities\r\n"),
        TRANSPARENT_ROW(SystemAbility, DiscoveryModeCap, getDiscoveryModeAbility, (out, err, kUser),
                        "GET /TARN/System/discoveryMode/capabilities"),
        TRANSPARENT_ROW(ChannelAbility, CustomStreamCap, GetCustomStreamAbility,
                        (out, err, kUser, 101),
                        "GET /TARN/Streaming/channels/101/customStream/capabilities\r\n"),
    };
    return rows;
}

}  // namespace

std::span<const OperationRow> Operations()
{
    return Rows();
}

}  // namespace TestSupport
