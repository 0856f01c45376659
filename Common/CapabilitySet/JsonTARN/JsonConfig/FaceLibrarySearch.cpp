// Searching face libraries: what to look for, one page of what was found, the package of it.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/FaceLibrarySearch.h"

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

std::string FDLibSearchDescription::Make() const
{
    return json::MakeText([this](Json::Value& document) {
        Json::Value& search = json::WriteRecord(document, *this);
        if (hasTimeRange) {
            // Kept: devices take the times for this zone, whatever the client's is.
            constexpr const char* kZone = "+08:00";
            search["startTime"] = startTime + kZone;
            search["endTime"] = endTime + kZone;
        }
        if (searchType == "attendance") {
            json::WriteFields(search["Attendance"], Attendance);
        }
    });
}

}  // namespace CapabilitySet
