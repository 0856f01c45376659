// Searching face libraries: conditions, a page of results, and the data package.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/FaceLibrarySearch.h"

#include <string_view>

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<FDLibAttendanceSearch>;
template struct JsonPart<FDLibCheckIn>;
template struct JsonPart<FDLibAttendStatus>;
template struct JsonPart<FDLibAttendance>;
template struct JsonPart<FDLibFace>;
template struct JsonPart<FDLibHuman>;
template struct JsonPart<FDLibMatch>;

template struct JsonRecord<FDLibSearchDescription>;
template struct JsonRecord<FDLibSearchResult>;
template struct JsonRecord<FDLibFCSearchPackageByJsonResult>;
template struct JsonRecord<FDLibFCSearchPackageByTaskID>;

namespace
{

// Kept: times are sent with this offset, whatever the client's time zone is.
constexpr std::string_view kZone = "+08:00";

std::string WithoutZone(std::string time)
{
    if (time.ends_with(kZone)) {
        time.resize(time.size() - kZone.size());
    }
    return time;
}

}  // namespace

void FDLibSearchDescription::ReadOnDemand()
{
    startTime = WithoutZone(json::MemberOf(root, "startTime").asString());
    endTime = WithoutZone(json::MemberOf(root, "endTime").asString());
    Attendance = FDLibAttendanceSearch();
    Attendance.Parse(json::MemberOf(root, "Attendance"));
}

std::string FDLibSearchDescription::Make() const
{
    return json::MakeText([this](Json::Value& document) {
        Json::Value& search = json::WriteRecord(document, *this);
        if (hasTimeRange) {
            search["startTime"] = startTime + std::string(kZone);
            search["endTime"] = endTime + std::string(kZone);
        } else {
            search.removeMember("startTime");
            search.removeMember("endTime");
        }
        if (searchType == "attendance") {
            json::WriteFields(search["Attendance"], Attendance);
        } else {
            search.removeMember("Attendance");
        }
    });
}

}  // namespace CapabilitySet
