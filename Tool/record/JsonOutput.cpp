// Records and failures as JSON for programs.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/JsonOutput.h"

#include <charconv>
#include <exception>
#include <memory>

#include <json/reader.h>
#include <json/writer.h>

namespace Tool
{

using CapabilitySet::RecordNode;
using Kind = RecordNode::Kind;

namespace
{

template <class Number>
bool ReadWhole(const std::string& text, Number& number)
{
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

Json::Value NumberToJson(const std::string& text)
{
    Json::Int64 whole = 0;
    if (ReadWhole(text, whole)) {
        return whole;
    }
    Json::UInt64 large = 0;
    if (ReadWhole(text, large)) {
        return large;
    }
    double real = 0;
    return ReadWhole(text, real) ? Json::Value(real) : Json::Value(text);
}

Json::Value OptionsToJson(const RecordNode& node)
{
    Json::Value value(Json::objectValue);
    Json::Value& options = value["opt"] = Json::Value(Json::arrayValue);
    for (const RecordNode& child : node.children) {
        if (child.kind != Kind::Options) {
            options.append(child.text);
            continue;
        }
        Json::Value& more = value[child.name] = Json::Value(Json::arrayValue);
        for (const RecordNode& each : child.children) {
            more.append(each.text);
        }
    }
    return value;
}

Json::Value RangeToJson(const RecordNode& node)
{
    Json::Value value(Json::objectValue);
    for (const RecordNode& child : node.children) {
        if (child.name.empty()) {
            value["values"].append(NumberToJson(child.text));
        } else {
            value[child.name] = NumberToJson(child.text);
        }
    }
    return value;
}

Json::Value ItemsToJson(const RecordNode& node)
{
    Json::Value value(Json::arrayValue);
    for (const RecordNode& child : node.children) {
        value.append(ToJson(child));
    }
    return value;
}

/// Elements of one name become an array where the first of them stood.
Json::Value MembersToJson(const RecordNode& node)
{
    Json::Value value(Json::objectValue);
    if (!node.text.empty()) {
        value["#text"] = node.text;
    }
    for (const RecordNode& child : node.children) {
        Json::Value item = ToJson(child);
        if (!value.isMember(child.name)) {
            value[child.name] = std::move(item);
            continue;
        }
        Json::Value& former = value[child.name];
        if (!former.isArray()) {
            Json::Value list(Json::arrayValue);
            list.append(std::move(former));
            former = std::move(list);
        }
        former.append(std::move(item));
    }
    return value;
}

/// The writer puts a brace on a line of its own, below its key. Line feeds stand between the
/// writer's tokens alone: those of texts are escaped.
std::string BracesBesideKeys(const std::string& text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool endsInKey = text[i] == '\n' && out.ends_with(": ");
        const std::size_t next = endsInKey ? text.find_first_not_of(' ', i + 1) : i;
        i = next == std::string::npos ? i : next;
        out += text[i];
    }
    return out;
}

}  // namespace

Json::Value ToJson(const RecordNode& node)
{
    if (!node.announced) {
        return Json::nullValue;
    }
    switch (node.kind) {
        case Kind::Flag:
            return node.text == "true";
        case Kind::Number:
            return NumberToJson(node.text);
        case Kind::Text:
            return node.text;
        case Kind::Options:
            return OptionsToJson(node);
        case Kind::Range:
            return RangeToJson(node);
        case Kind::List:
            return ItemsToJson(node);
        case Kind::Record:
            return MembersToJson(node);
    }
    return Json::nullValue;
}

std::string Dump(const Json::Value& value, JsonText form)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "  ";
    builder["enableYAMLCompatibility"] = true;
    builder["emitUTF8"] = form == JsonText::Utf8;
    // What a device writes with up to 15 digits comes out as it was written.
    builder["precision"] = 15;
    return BracesBesideKeys(Json::writeString(builder, value)) + "\n";
}

bool ReadJson(const std::string& text, Json::Value& value)
{
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    builder["failIfExtra"] = true;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::String errors;
    try {
        return reader->parse(text.data(), text.data() + text.size(), &value, &errors);
    } catch (const std::exception&)  // JsonCpp throws at a depth of 1,000
    {
        return false;
    }
}

}  // namespace Tool
