// Searching face libraries: what to look for, one page of what was found, the package of it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// Whose attendance to search, and when.
struct CAPABILITYSET_API FDLibAttendanceSearch : JsonPart<FDLibAttendanceSearch>
{
    std::vector<int> dayOfWeek;  ///< days that count, 1 (Monday) to 7 (Sunday)
    std::string FDID;            ///< the face library
    std::string PID;             ///< the person in it
    /// Working hours, as the device's capability lists the form.
    Json::Value Schedules{Json::arrayValue};
    /// When two faces count as one, likewise.
    Json::Value MatchFace{Json::objectValue};

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("dayOfWeek", r.dayOfWeek);
        field("FDID", r.FDID);
        field("PID", r.PID);
        field("Schedules", r.Schedules);
        field("MatchFace", r.MatchFace);
    }
};

/// Whom to look for in face libraries. What else the device takes (libraries, likeness, the
/// picture) stands in `root`.
struct CAPABILITYSET_API FDLibSearchDescription : JsonRecord<FDLibSearchDescription>, SearchPage
{
    static constexpr const char* kKey = "FDLibSearchDescription";

    int maxResultNumber = 0;  ///< how many results all pages together may hold
    std::string searchType;   ///< kind of the search; "attendance" makes `Attendance` part of it

    // Written only on demand.
    bool hasTimeRange = false;  ///< `startTime` and `endTime` are part of the search
    std::string startTime;      ///< "2020-01-01T00:00:00", without a zone
    std::string endTime;        ///< likewise, not before `startTime`
    FDLibAttendanceSearch Attendance;

    FDLibSearchDescription() = default;
    explicit FDLibSearchDescription(const std::string& text) { Parse(text); }

    /// The request body. Times get "+08:00" appended whatever the zone here or there is. Empty when
    /// memory ran out.
    [[nodiscard]] std::string Make() const;
    [[nodiscard]] std::string CreatJsonParser() const { return Make(); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchPage::Fields(r, field);
        field("maxResultNumber", r.maxResultNumber);
        field("searchType", r.searchType);
    }
};

/// Days on which a person came, or did not.
struct CAPABILITYSET_API FDLibCheckInDays
{
    int checkInDay = 0;
    int nocheckInDay = 0;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("checkInDay", r.checkInDay, as::decimalText);
        field("nocheckInDay", r.nocheckInDay, as::decimalText);
    }
};

/// The same in an object of its own.
struct CAPABILITYSET_API FDLibCheckIn : JsonPart<FDLibCheckIn>, FDLibCheckInDays
{
};

/// How often a person came in time, late and so on.
struct CAPABILITYSET_API FDLibAttendStatus : JsonPart<FDLibAttendStatus>
{
    int normal = 0;
    int late = 0;
    int leaveEarly = 0;
    int absenteeism = 0;
    int withOutAttend = 0;  ///< days without attendance recorded

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("normal", r.normal, as::decimalText);
        field("late", r.late, as::decimalText);
        field("leaveEarly", r.leaveEarly, as::decimalText);
        field("absenteeism", r.absenteeism, as::decimalText);
        field("withOutAttend", r.withOutAttend, as::decimalText);
    }
};

/// A person's attendance over the time searched. Devices tell the days of check-in in `CheckIn` or
/// beside it.
struct CAPABILITYSET_API FDLibAttendance : JsonPart<FDLibAttendance>, FDLibCheckInDays
{
    int totalNumbers = 0;   ///< days counted
    Json::Value dailyList;  ///< key "DaliyList": day by day, as the device tells it
    FDLibCheckIn CheckIn;
    FDLibAttendStatus AttendStatus;
    std::string
        abnormalRate;  ///< key "abnormalRate ": share of irregular days, as the device writes it

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("totalNumbers", r.totalNumbers, as::decimalText);
        // Kept: devices misspell this key.
        field("DaliyList", r.dailyList);
        field("CheckIn", r.CheckIn);
        FDLibCheckInDays::Fields(r, field);
        field("AttendStatus", r.AttendStatus);
        // Kept: devices send this key with a trailing blank.
        field("abnormalRate ", r.abnormalRate);
    }
};

/// One face of a person in a library.
struct CAPABILITYSET_API FDLibFace : JsonPart<FDLibFace>
{
    std::string bl_picurl;  ///< where the library's picture is to be fetched

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("bl_picurl", r.bl_picurl);
    }
};

/// One person of a library that a face was found to be like.
struct CAPABILITYSET_API FDLibHuman : JsonPart<FDLibHuman>
{
    std::string human_name;
    std::string FDID;  ///< the face library
    FDLibAttendance Attendance;
    std::string abnormalRate;  ///< as that of `Attendance`, which some devices send here
    std::vector<FDLibFace> face_data;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("human_name", r.human_name);
        field("FDID", r.FDID);
        field("Attendance", r.Attendance);
        // Kept: the trailing blank, as above.
        field("abnormalRate ", r.abnormalRate);
        field("face_data", r.face_data);
    }
};

/// One captured face with the persons it is like.
struct CAPABILITYSET_API FDLibMatch : JsonPart<FDLibMatch>
{
    std::string face_picurl;  ///< where the captured picture is to be fetched
    std::string monitorId;    ///< the camera that captured it
    std::string alarm_date;   ///< when it was captured
    std::vector<FDLibHuman> human_data;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("face_picurl", r.face_picurl);
        field("monitorId", r.monitorId);
        field("alarm_date", r.alarm_date);
        field("human_data", r.human_data);
    }
};

/// One page of faces found.
struct CAPABILITYSET_API FDLibSearchResult : JsonRecord<FDLibSearchResult>, SearchResultPage
{
    static constexpr const char* kKey = "FDLibSearchResult";

    std::vector<FDLibMatch> MatchList;

    FDLibSearchResult() = default;
    explicit FDLibSearchResult(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchResultPage::Fields(r, field);
        field("MatchList", r.MatchList);
    }
};

/// The task that packs the result of a search.
struct CAPABILITYSET_API FDLibFCSearchPackageByJsonResult
    : JsonRecord<FDLibFCSearchPackageByJsonResult>
{
    static constexpr const char* kKey = "";

    std::string taskID;

    FDLibFCSearchPackageByJsonResult() = default;
    explicit FDLibFCSearchPackageByJsonResult(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("taskID", r.taskID);
    }
};

/// How far such a task is.
struct CAPABILITYSET_API FDLibFCSearchPackageByTaskID : JsonRecord<FDLibFCSearchPackageByTaskID>
{
    static constexpr const char* kKey = "";

    int progress = 0;  ///< percent
    std::string URL;   ///< where the package is to be fetched, once it is whole

    FDLibFCSearchPackageByTaskID() = default;
    explicit FDLibFCSearchPackageByTaskID(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("progress", r.progress);
        field("URL", r.URL);
    }
};

}  // namespace CapabilitySet
