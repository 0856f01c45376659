// Reading JSON answers into records, compared with JsonCpp's bare parse of the same text.
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <vector>

#include <json/reader.h>
#include <json/value.h>
#include <json/writer.h>

#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostStatus.h"
#include "CapabilitySet/JsonTARN/JsonConfig/CaptureSearch.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "CapabilitySet/private/json/JsonFields.h"
#include "Comparison.h"

namespace
{

struct Zone
{
    int id = 0;
    std::string zoneName;
    std::string detectorType;
    bool enabled = false;
    bool bypassed = false;
    int subSystemNo = 0;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("zoneName", r.zoneName);
        field("detectorType", r.detectorType);
        field("enabled", r.enabled);
        field("bypassed", r.bypassed);
        field("subSystemNo", r.subSystemNo);
    }
};

struct ZoneList
{
    std::vector<Zone> list;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.list);
    }
};

std::string ListAnswer(int entries)
{
    Json::Value root;
    for (int i = 0; i < entries; ++i) {
        Json::Value zone;
        zone["id"] = i;
        zone["zoneName"] = "Zone " + std::to_string(i);
        zone["detectorType"] = i % 3 == 0 ? "passiveInfraredDetector" : "magneticContact";
        zone["enabled"] = true;
        zone["bypassed"] = i % 7 == 0;
        zone["subSystemNo"] = i % 8;
        root["List"].append(zone);
    }
    return root.toStyledString();
}

/// An alarm host's answer to the AlarmHostZoneConfig query, with members that no record lists.
std::string ZonesAnswer(int entries)
{
    Json::Value root;
    for (int i = 0; i < entries; ++i) {
        Json::Value& zone = root["List"].append(Json::Value())["Zone"];
        zone["id"] = i;
        zone["enable"] = i % 7 != 0;
        zone["zoneName"] = "Zone " + std::to_string(i);
        zone["subSystemNo"] = i % 8;
        zone["detectorType"] = i % 3 == 0 ? "passiveInfraredDetector" : "magneticContact";
        zone["sensitivity"] = "medium";
        zone["delay"] = 30;
    }
    return root.toStyledString();
}

/// A recorder's answer to a search for captured faces.
std::string CapturesAnswer(int entries)
{
    Json::Value root;
    Json::Value& result = root[CapabilitySet::CaptureSearchResult::kKey];
    result["responseStatusStrg"] = "OK";
    result["numOfMatches"] = entries;
    for (int i = 0; i < entries; ++i) {
        Json::Value& target = result["targets"].append(Json::Value());
        target["id"] = std::to_string(i);
        target["captureTime"] = "2020-01-01T00:00:00+08:00";
        target["captureSite"] = "Entrance " + std::to_string(i % 9);
        target["channelId"] = std::to_string(i % 32);
        target["gender"] = i % 2 == 0 ? "female" : "male";
        target["picUrl"] = "http://192.0.2.1/pictures?id=" + std::to_string(i);
        target["face_rect"]["height"] = 0.25;
        target["face_rect"]["width"] = 0.125;
        target["face_rect"]["x"] = 0.5;
        target["face_rect"]["y"] = 0.5;
        target["currTemperature"] = 36.5;
    }
    return root.toStyledString();
}

std::string StatusAnswer()
{
    Json::Value root;
    root["requestURL"] = "/TARN/SecurityCP/control/arm/1?format=json";
    root["statusCode"] = 4;
    root["statusString"] = "Invalid Operation";
    root["subStatusCode"] = "notSupport";
    root["errorCode"] = 1073741825;
    root["errorMsg"] = "notSupport";
    return root.toStyledString();
}

std::size_t BareParse(const std::string& text)
{
    Json::Value root;
    Json::Reader().parse(text, root);
    return root.size();
}

std::size_t ReadList(const std::string& text)
{
    ZoneList record;
    CapabilitySet::json::WithRoot(text, [&record](const Json::Value& root) {
        CapabilitySet::json::ReadFields(record, root);
    });
    return record.list.size();
}

}  // namespace

int main(int argc, char** argv)
{
    const std::string list = ListAnswer(500);
    const std::string status = StatusAnswer();
    Bench::Compare(
        "list of 500 entries", 10, [&] { return BareParse(list); }, [&] { return ReadList(list); });
    const std::string zones = ZonesAnswer(500);
    Bench::Compare(
        "record of 500 zones", 10, [&] { return BareParse(zones); },
        [&] { return CapabilitySet::AlarmHostZoneConfig(zones).zones.size(); });
    const std::string captures = CapturesAnswer(500);
    Bench::Compare(
        "record of 500 captures", 10, [&] { return BareParse(captures); },
        [&] { return CapabilitySet::CaptureSearchResult(captures).targets.size(); });
    Bench::Compare(
        "JsonStatus", 200, [&] { return BareParse(status); },
        [&] { return CapabilitySet::JsonStatus(status).statusCode; });
    return Bench::Run(argc, argv);
}
