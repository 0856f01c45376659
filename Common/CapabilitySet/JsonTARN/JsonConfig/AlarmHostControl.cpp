// Commands to an alarm host.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostControl.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<OperateSubSystem>;

template struct JsonRecord<AlarmHostBypassCfg>;
template struct JsonRecord<AlarmHostOutputCfg>;
template struct JsonRecord<DetectorSilence>;

namespace
{

/// Devices accept any host name here.
constexpr const char* kLogMetaId = "log.tarn.example";

std::string SubSystemsBody(const OperateSubSystemsInfo& info, bool withArmType)
{
    return json::MakeText([&](Json::Value& document) {
        Json::Value& list = document["SubSysList"] = Json::Value(Json::arrayValue);
        for (const OperateSubSystem& subSystem : info.subSystems) {
            Json::Value& entry = list.append(Json::Value())["SubSys"];
            json::WriteFields(entry, subSystem);
            if (!withArmType) {
                entry.removeMember("armType");
            }
        }
    });
}

}  // namespace

std::string AlarmHostBypassCfg::Make() const
{
    return json::MakeText([this](Json::Value& document) { document["zone"] = zone; });
}

std::string AlarmHostOutputCfg::Make() const
{
    return ids.empty() ? std::string() : JsonRecord::Make();
}

std::string AlarmHostLogConditionDescription::Make() const
{
    return json::MakeText([this](Json::Value& document) {
        Json::Value& search = document["SearchDescription"];
        search["searchID"] = searchID;
        Json::Value& span = search["timeSpanList"][0]["timeSpan"];
        span["startTime"] = startTime;
        // Kept: devices expect these two misspelt keys, and the numbers as strings.
        span["endTIme"] = endTime;
        search["searchResultPostion"] = std::to_string(searchResultPosition);
        search["maxResults"] = std::to_string(maxResults);
        search["metaID"] = kLogMetaId;
    });
}

std::string OperateSubSystemsInfo::CreatArmJsonParser(const OperateSubSystemsInfo& info) const
{
    return SubSystemsBody(info, true);
}

std::string OperateSubSystemsInfo::CreatDisarmAndClearAlarmJsonParser(
    const OperateSubSystemsInfo& info) const
{
    return SubSystemsBody(info, false);
}

}  // namespace CapabilitySet
