// Search in face libraries: the description, one page of results, the package of results.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// Whose attendance to search for, and when.
struct CAPABILITYSET_API FDLibAttendanceSearch : JsonPart<FDLibAttendanceSearch>
{
    std::vector<int> dayOfWeek;  ///< days that count, 1 (Monday) to 7 (Sunday)
    std::string FDID;            ///< face library
    std::string PID;             ///< person in the library
    /// Working hours, in the form that the device's capability lists.
    Json::Value Schedules{Json::arrayValue};
    /// When two faces count as the same, likewise.
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

/// Whom to search for in face libraries. Put other conditions, such as libraries, similarity or the
/// picture, in `root`.
struct CAPABILITYSET_API FDLibSearchDescription : JsonRecord<FDLibSearchDescription>, SearchPage
{
    static constexpr const char* kKey = "FDLibSearchDescription";

    int maxResultNumber = 0;  ///< most results in all pages
    std::string searchType;   ///< "attendance" sends `Attendance` as well

    // Sent only if `hasTimeRange` or `searchType` asks for it, whatever was parsed.
    bool hasTimeRange = false;         ///< sends `startTime` and `endTime`; Parse leaves it alone
    std::string startTime;             ///< "2020-01-01T00:00:00", without a zone
    std::string endTime;               ///< likewise, not before `startTime`
    FDLibAttendanceSearch Attendance;  ///< conditions of an attendance search

    FDLibSearchDescription() = default;
    explicit FDLibSearchDescription(const std::string& text) { Parse(text); }

    /// The request body. Empty when memory ran out.
    // Kept: times are sent with "+08:00" appended, whatever the time zone.
    [[nodiscard]] std::string Make() const;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchPage::Fields(r, field);
        field("maxResultNumber", r.maxResultNumber);
        field("searchType", r.searchType);
    }

private:
    friend JsonRecord<FDLibSearchDescription>;

    /// Reads the times and `Attendance` from `root`.
    void ReadOnDemand();
};

/// Days on which a person checked in, or did not.
struct CAPABILITYSET_API FDLibCheckInDays
{
    int checkInDay = 0;    ///< days with a check-in
    int nocheckInDay = 0;  ///< days without one

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

/// Days of each kind of attendance.
struct CAPABILITYSET_API FDLibAttendStatus : JsonPart<FDLibAttendStatus>
{
    int normal = 0;         ///< days in time
    int late = 0;           ///< days late
    int leaveEarly = 0;     ///< days left early
    int absenteeism = 0;    ///< days absent
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

/// A person's attendance over the time searched. Devices send the check-in days in `CheckIn` or
/// beside it.
struct CAPABILITYSET_API FDLibAttendance : JsonPart<FDLibAttendance>, FDLibCheckInDays
{
    int totalNumbers = 0;            ///< days counted
    Json::Value dailyList;           ///< "DaliyList": the single days, in the device's form
    FDLibCheckIn CheckIn;            ///< check-in days
    FDLibAttendStatus AttendStatus;  ///< days of each kind
    std::string abnormalRate;        ///< "abnormalRate ": share of irregular days

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
    std::string bl_picurl;  ///< URL of the library's picture

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("bl_picurl", r.bl_picurl);
    }
};

/// One person of a library who resembles the captured face.
struct CAPABILITYSET_API FDLibHuman : JsonPart<FDLibHuman>
{
    std::string human_name;            ///< name of the person
    std::string FDID;                  ///< face library
    FDLibAttendance Attendance;        ///< attendance, in an attendance search
    std::string abnormalRate;          ///< "abnormalRate ": some devices send it here
    std::vector<FDLibFace> face_data;  ///< faces of the person

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("human_name", r.human_name);
        field("FDID", r.FDID);
        field("Attendance", r.Attendance);
        // Kept: with a trailing blank, as above.
        field("abnormalRate ", r.abnormalRate);
        field("face_data", r.face_data);
    }
};

/// One captured face with the people it resembles.
struct CAPABILITYSET_API FDLibMatch : JsonPart<FDLibMatch>
{
    std::string face_picurl;             ///< URL of the captured picture
    std::string monitorId;               ///< camera that captured it
    std::string alarm_date;              ///< time of the capture, in the device's form
    std::vector<FDLibHuman> human_data;  ///< people it resembles

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("face_picurl", r.face_picurl);
        field("monitorId", r.monitorId);
        field("alarm_date", r.alarm_date);
        field("human_data", r.human_data);
    }
};

/// One page of a face library search.
struct CAPABILITYSET_API FDLibSearchResult : JsonRecord<FDLibSearchResult>, SearchResultPage
{
    static constexpr const char* kKey = "FDLibSearchResult";

    std::vector<FDLibMatch> MatchList;  ///< captured faces

    FDLibSearchResult() = default;
    explicit FDLibSearchResult(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchResultPage::Fields(r, field);
        field("MatchList", r.MatchList);
    }
};

/// The task that packs the results of a search.
struct CAPABILITYSET_API FDLibFCSearchPackageByJsonResult
    : JsonRecord<FDLibFCSearchPackageByJsonResult>
{
    static constexpr const char* kKey = "";

    std::string taskID;  ///< identifier for GetFDLibFCSearchDataPackage

    FDLibFCSearchPackageByJsonResult() = default;
    explicit FDLibFCSearchPackageByJsonResult(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("taskID", r.taskID);
    }
};

/// Progress of such a task.
struct CAPABILITYSET_API FDLibFCSearchPackageByTaskID : JsonRecord<FDLibFCSearchPackageByTaskID>
{
    static constexpr const char* kKey = "";

    int progress = 0;  ///< percent
    std::string URL;   ///< URL of the package once it is complete

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
