// Records as JSON for programs.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/JsonOutput.h"

#include <array>
#include <charconv>
#include <cmath>
#include <exception>
#include <memory>
#include <sstream>

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

/// Elements of the same name become an array in place of the first.
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

/// Writes members sorted by name, one item a line. JsonCpp's own writer would print 17 digits of
/// 0.4, or drop digits of other numbers.
class Writer
{
public:
    explicit Writer(JsonText form)
    {
        Json::StreamWriterBuilder builder;
        builder["indentation"] = "";
        builder["emitUTF8"] = form == JsonText::Utf8;
        texts_.reset(builder.newStreamWriter());
    }

    /// Recursion is safe: neither readers nor records nest deeper than 1,000.
    void Write(const Json::Value& value, const std::string& indent)
    {
        if (value.isObject() && !value.empty()) {
            WriteItems(value, indent, '{', '}');
        } else if (value.isArray() && !value.empty()) {
            WriteItems(value, indent, '[', ']');
        } else if (value.type() == Json::realValue) {
            out_ << RealText(value.asDouble());
        } else {
            texts_->write(value, &out_);
        }
    }

    [[nodiscard]] std::string Text() const { return out_.str() + "\n"; }

private:
    void WriteItems(const Json::Value& value, const std::string& indent, char open, char close)
    {
        const std::string inner = indent + "  ";
        char before = open;
        for (auto item = value.begin(); item != value.end(); ++item) {
            out_ << before << '\n' << inner;
            before = ',';
            if (value.isObject()) {
                texts_->write(item.key(), &out_);
                out_ << ": ";
            }
            Write(*item, inner);
        }
        out_ << '\n' << indent << close;
    }

    /// The shortest text that reads back the same; a real number stays one: 1.0, not 1.
    static std::string RealText(double value)
    {
        if (!std::isfinite(value)) {
            return "null";
        }
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
        std::string text(digits.data(), end.ptr);
        return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
    }

    std::unique_ptr<Json::StreamWriter> texts_;
    std::ostringstream out_;
};

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
    Writer writer(form);
    writer.Write(value, {});
    return writer.Text();
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
