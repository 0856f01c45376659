// Faults of answers: not a document, or not what it seems.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cctype>
#include <set>
#include <string_view>

#include <json/reader.h>
#include <json/writer.h>

#include "Device/hostile/HostileDocuments.h"
#include "support/FaultTable.h"

namespace TestSupport
{
namespace
{

SdkStep Answer(std::string text)
{
    const auto size = static_cast<unsigned>(text.size());
    return {.answer = std::move(text), .returnedSize = size, .needsRoom = true, .isFault = true};
}

/// Spoiled documents that neither the XML nor the JSON reader accepts.
constexpr std::string_view kUnread[] = {"malformed",
                                        "truncated1",
                                        "truncated10",
                                        "truncated25",
                                        "truncated50",
                                        "truncated75",
                                        "truncated90",
                                        "truncatedInRootTag",
                                        "truncatedInEndTag",
                                        "empty",
                                        "blanks",
                                        "nulInside",
                                        "nulFirst",
                                        "wrongRoot",
                                        "rootWrongCase",
                                        "truncatedInAttribute",
                                        "wrongEncoding",
                                        "unknownEncoding",
                                        "utf16",
                                        "entityBomb",
                                        "flatEntityBomb",
                                        "externalFile",
                                        "attributeEntityBomb",
                                        "externalHttp",
                                        "nested1000",
                                        "nestedMillion",
                                        "parameterEntities",
                                        "htmlPage",
                                        "otherForm"};

/// Those that only the JSON reader accepts.
constexpr std::string_view kUnreadXml[] = {"undeclaredGbk", "brokenUtf8", "manyAttributes"};

template <class Names>
bool Holds(const Names& names, std::string_view name)
{
    return std::ranges::find(names, name) != std::end(names);
}

std::string RowName(std::string_view name)
{
    std::string text(name);
    text.front() = static_cast<char>(std::toupper(text.front()));
    return "Answer" + text;
}

FaultRow SpoiledRow(const Device::HostileCase& hostile)
{
    const bool isUnread = Holds(kUnread, hostile.name);
    FaultRow row{.name = RowName(hostile.name),
                 .xml = isUnread || Holds(kUnreadXml, hostile.name) ? Comes::Unread
                        : hostile.name == "outOfOrder"              ? Comes::Part
                                                                    : Comes::Survives,
                 .json = isUnread ? Comes::Unread : Comes::Survives,
                 .play = [&hostile](const Subject& subject) {
                     return std::vector<Steps>{
                         Steps{Answer(subject.Is(kJsonRoads)
                                          ? MakeHostileJson(hostile, subject.root, subject.sound)
                                          : MakeHostileXml(hostile, subject.root, subject.sound))}};
                 }};
    // Every operation, unless that takes minutes or needs more than a small document.
    const std::set<std::string_view> large{"oversized",      "nestedMillion",  "longText",
                                           "manyAttributes", "flatEntityBomb", "unknownElements"};
    row.everyOperation =
        !large.contains(hostile.name) && row.xml != Comes::Part && !Holds(kUnreadXml, hostile.name);
    return row;
}

/// Replaces each value of a JSON tree by values of every other kind, one at a time.
void OfOtherKinds(Json::Value& root, Json::Value& value, std::vector<Steps>& scripts)
{
    const Json::Value before = value;
    for (const Json::Value& kind :
         {Json::Value(), Json::Value(true), Json::Value(7), Json::Value(1e300), Json::Value("text"),
          Json::Value(Json::arrayValue), Json::Value(Json::objectValue)}) {
        value = kind;
        if (kind.type() != before.type()) {
            scripts.push_back({Answer(root.toStyledString())});
        }
    }
    value = before;
    for (Json::Value& child : value) {
        OfOtherKinds(root, child, scripts);
    }
}

}  // namespace

std::vector<FaultRow> DocumentFaults()
{
    std::vector<FaultRow> rows;
    for (const Device::HostileCase& hostile : Device::HostileCases()) {
        rows.push_back(SpoiledRow(hostile));
    }
    rows.push_back({.name = "JsonMemberOfAnotherKind",
                    .roads = kJsonRoads,
                    .json = Comes::Survives,
                    .play =
                        [](const Subject& subject) {
                            std::vector<Steps> scripts;
                            Json::Value root;
                            Json::Reader().parse(subject.sound, root);
                            for (Json::Value& member : root) {
                                OfOtherKinds(root, member, scripts);
                            }
                            return scripts;
                        },
                    .everyOperation = true});
    rows.push_back(
        {.name = "JsonArrayOrScalarAtTheTop",
         .roads = kJsonRoads,
         .json = Comes::Unread,
         .play =
             [](const Subject&) {
                 std::vector<Steps> scripts;
                 for (const char* text : {"null", "[]", "[{}]", "5", "\"text\"", "true"}) {
                     scripts.push_back({Answer(text)});
                 }
                 return scripts;
             },
         .everyOperation = true});
    return rows;
}

}  // namespace TestSupport
