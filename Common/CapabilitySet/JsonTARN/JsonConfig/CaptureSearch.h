// Searching captured faces: what to look for, and one page of what was found.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// What a face looks like: the filters of a search, and what the device saw. Words are those that
/// the device's capability lists; an empty one in a search filters nothing.
struct CAPABILITYSET_API FaceAttributes
{
    std::string ageGroup;         ///< "child", "young", "middle", "old" and the like
    std::string gender;           ///< "male", "female", "unknown"
    std::string glasses;          ///< "yes", "no", "unknown"
    std::string smile;            ///< "yes", "no", "unknown"
    std::string mask;             ///< "yes", "no", "unknown"
    std::string beard;            ///< "yes", "no", "unknown"
    std::string faceExpression;   ///< "neutral", "happy" and the like
    std::string ethnic;           ///< as the capability lists it
    std::string isInLibrary;      ///< whether the person is known: "yes", "no"
    std::string thermometryUnit;  ///< "celsius", "fahrenheit", "kelvin"
    double currTemperature = 0;   ///< of the skin, in that unit
    std::string
        temperatureCondition;  ///< "normal", "abnormal"; of a search also "greater" and such

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ageGroup", r.ageGroup);
        field("gender", r.gender);
        field("glasses", r.glasses);
        field("smile", r.smile);
        field("mask", r.mask);
        field("beard", r.beard);
        field("faceExpression", r.faceExpression);
        field("ethnic", r.ethnic);
        field("isInLibrary", r.isInLibrary);
        field("thermometryUnit", r.thermometryUnit);
        field("currTemperature", r.currTemperature);
        field("temperatureCondition", r.temperatureCondition);
    }
};

/// Which captured faces to look for.
struct CAPABILITYSET_API CaptureSearchDescription : JsonRecord<CaptureSearchDescription>,
                                                    SearchPage,
                                                    FaceAttributes
{
    static constexpr const char* kKey = "CaptureSearchDescription";

    int maxSearchResults = 0;    ///< how many results all pages together may hold
    std::string startTime;       ///< of the capture, "2020-01-01T00:00:00+08:00"
    std::string endTime;         ///< of the capture, not before `startTime`
    std::vector<int> channelID;  ///< numbers of the channels to search
    std::string choiceChannel;   ///< how channels are chosen, as the device's capability lists it

    CaptureSearchDescription() = default;
    explicit CaptureSearchDescription(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchPage::Fields(r, field);
        field("maxSearchResults", r.maxSearchResults);
        field("startTime", r.startTime);
        field("endTime", r.endTime);
        field("channelID", r.channelID);
        field("choiceChannel", r.choiceChannel);
        FaceAttributes::Fields(r, field);
    }
};

/// Where a face stands in its picture, in pixels or in parts of the picture's size (0 to 1).
struct CAPABILITYSET_API FaceRect : JsonPart<FaceRect>
{
    double height = 0;
    double width = 0;
    double y = 0;  ///< of the upper edge
    double x = 0;  ///< of the left edge

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("height", r.height);
        field("width", r.width);
        field("y", r.y);
        field("x", r.x);
    }
};

/// One captured face.
struct CAPABILITYSET_API CaptureTarget : JsonPart<CaptureTarget>, FaceAttributes
{
    std::string id;           ///< the device's own
    std::string captureTime;  ///< ISO 8601
    std::string captureSite;  ///< name of the place
    int channelId = 0;        ///< number of the channel; sent as a number or as its digits
    std::string picUrl;       ///< where the whole picture is to be fetched
    std::string subpicUrl;    ///< where the picture of the face is to be fetched
    FaceRect face_rect;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("captureTime", r.captureTime);
        field("captureSite", r.captureSite);
        field("channelId", r.channelId, as::decimalText);
        FaceAttributes::Fields(r, field);
        field("picUrl", r.picUrl);
        field("subpicUrl", r.subpicUrl);
        field("face_rect", r.face_rect);
    }
};

/// One page of captured faces.
struct CAPABILITYSET_API CaptureSearchResult : JsonRecord<CaptureSearchResult>, SearchResultPage
{
    static constexpr const char* kKey = "CaptureSearchResult";

    std::vector<CaptureTarget> targets;

    CaptureSearchResult() = default;
    explicit CaptureSearchResult(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchResultPage::Fields(r, field);
        field("targets", r.targets);
    }
};

}  // namespace CapabilitySet
