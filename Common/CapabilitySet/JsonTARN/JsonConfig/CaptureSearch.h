// Search for captured faces: the description and one page of results.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// What a face looks like: filters of a search, or what the device saw. The device's capability
/// lists the words. In a search, an empty one filters nothing.
struct CAPABILITYSET_API FaceAttributes
{
    std::string ageGroup;              ///< such as "child", "young", "middle", "old"
    std::string gender;                ///< "male", "female", "unknown"
    std::string glasses;               ///< "yes", "no", "unknown"
    std::string smile;                 ///< "yes", "no", "unknown"
    std::string mask;                  ///< "yes", "no", "unknown"
    std::string beard;                 ///< "yes", "no", "unknown"
    std::string faceExpression;        ///< such as "neutral", "happy"
    std::string ethnic;                ///< as the device's capability lists it
    std::string isInLibrary;           ///< the person is in a library: "yes", "no"
    std::string thermometryUnit;       ///< "celsius", "fahrenheit", "kelvin"
    double currTemperature = 0;        ///< skin temperature, in `thermometryUnit`
    std::string temperatureCondition;  ///< "normal", "abnormal"; in a search also "greater"

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

/// What captured faces to search for.
struct CAPABILITYSET_API CaptureSearchDescription : JsonRecord<CaptureSearchDescription>,
                                                    SearchPage,
                                                    FaceAttributes
{
    static constexpr const char* kKey = "CaptureSearchDescription";

    int maxSearchResults = 0;    ///< most results in all pages
    std::string startTime;       ///< ISO 8601, such as "2020-01-01T00:00:00+08:00"
    std::string endTime;         ///< ISO 8601, not before `startTime`
    std::vector<int> channelID;  ///< numbers of the channels to search
    std::string choiceChannel;   ///< how channels are chosen, as the capability lists it

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

/// Position of a face in its picture, in pixels or as a fraction of the picture's size (0 to 1).
struct CAPABILITYSET_API FaceRect : JsonPart<FaceRect>
{
    double height = 0;  ///< height of the rectangle
    double width = 0;   ///< width of the rectangle
    double y = 0;       ///< upper edge
    double x = 0;       ///< left edge

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
    std::string id;           ///< identifier, as the device assigns it
    std::string captureTime;  ///< ISO 8601
    std::string captureSite;  ///< name of the place
    int channelId = 0;        ///< channel number; devices send a number or text
    std::string picUrl;       ///< URL of the whole picture
    std::string subpicUrl;    ///< URL of the face picture
    FaceRect face_rect;       ///< position of the face

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

    std::vector<CaptureTarget> targets;  ///< the faces

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
