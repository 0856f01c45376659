// Checks documents against value limits.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/ValueLimits.h"

#include <algorithm>
#include <stdexcept>

#include <json/value.h>
#include <libxml/tree.h>

#include "Device/document/JsonDocument.h"
#include "Device/document/Text.h"
#include "Device/document/XmlTree.h"
#include "Device/message/StatusDocument.h"

namespace Device
{
namespace
{

// A value and its place in a document. XML has only text, which fits any form it can be read as.
struct Value
{
    std::string_view parent;
    std::string_view name;
    std::string text;
    Json::ValueType type;
    bool typed;
};

struct Fits
{
    const Value& value;

    bool operator()(const std::string& text) const
    {
        return Is(Json::stringValue) && value.text == text;
    }
    bool operator()(bool flag) const
    {
        return Is(Json::booleanValue) && value.text == (flag ? "true" : "false");
    }
    bool operator()(const NumberRange& range) const
    {
        int number = 0;
        return (Is(Json::intValue) || Is(Json::uintValue)) && ReadNumber(value.text, number) &&
               number >= range.min && number <= range.max;
    }
    bool operator()(const TextLength& length) const
    {
        return Is(Json::stringValue) && value.text.size() >= length.min &&
               value.text.size() <= length.max;
    }

private:
    [[nodiscard]] bool Is(Json::ValueType type) const { return !value.typed || value.type == type; }
};

// Checks one value after another.
class Check
{
public:
    explicit Check(const std::vector<ValueLimit>& limits) : limits_(limits), met_(limits.size()) {}

    void Take(const Value& value)
    {
        for (size_t i = 0; i < limits_.size(); ++i) {
            const ValueLimit& limit = limits_[i];
            if (limit.name != value.name ||
                !(limit.parent.empty() || limit.parent == value.parent)) {
                continue;
            }
            met_[i] = true;
            kept_ &= std::ranges::any_of(limit.allowed, [&](const AllowedValue& allowed) {
                return std::visit(Fits{value}, allowed);
            });
        }
    }

    [[nodiscard]] bool Passed() const
    {
        return kept_ && std::ranges::find(met_, false) == met_.end();
    }

private:
    const std::vector<ValueLimit>& limits_;
    std::vector<bool> met_;
    bool kept_ = true;
};

void Walk(_xmlNode* element, Check& check)
{
    for (_xmlNode* child = ElementFrom(element->children); child != nullptr;
         child = ElementFrom(child->next)) {
        if (ElementFrom(child->children) != nullptr) {
            Walk(child, check);
        } else {
            check.Take({NameOf(element), NameOf(child), TextOf(child), Json::nullValue, false});
        }
    }
}

void Walk(const Json::Value& value, std::string_view parent, std::string_view name, Check& check)
{
    if (value.isArray()) {
        for (const Json::Value& entry : value) {
            Walk(entry, parent, name, check);
        }
    } else if (value.isObject()) {
        for (auto member = value.begin(); member != value.end(); ++member) {
            Walk(*member, name, member.name(), check);
        }
    } else {
        check.Take({parent, name, value.asString(), value.type(), true});
    }
}

size_t LengthMember(const Json::Value& form, const char* key, const std::string& where)
{
    if (!form[key].isUInt()) {
        throw std::invalid_argument(where +
                                    "the length of a text needs \"minLength\" and \"maxLength\"");
    }
    return form[key].asUInt();
}

AllowedValue ReadForm(const Json::Value& form, const std::string& where)
{
    if (form.isString()) {
        return form.asString();
    }
    if (form.isBool()) {
        return form.asBool();
    }
    if (form.isInt()) {
        return NumberRange{form.asInt(), form.asInt()};
    }
    if (form.isObject() && form.size() == 2 && form["min"].isInt() && form["max"].isInt()) {
        return NumberRange{form["min"].asInt(), form["max"].asInt()};
    }
    if (form.isObject() && form.size() == 2 && form.isMember("minLength")) {
        return TextLength{LengthMember(form, "minLength", where),
                          LengthMember(form, "maxLength", where)};
    }
    throw std::invalid_argument(where +
                                "a value may be a text, true, false, a number, \"min\" and "
                                "\"max\", or \"minLength\" and \"maxLength\"");
}

}  // namespace

std::vector<ValueLimit> ReadValueLimits(const Json::Value& limits)
{
    if (!limits.isNull() && !limits.isObject()) {
        throw std::invalid_argument("\"values\" is not an object");
    }
    std::vector<ValueLimit> read;
    for (auto entry = limits.begin(); entry != limits.end(); ++entry) {
        const std::string key = entry.name();
        const std::string where = "\"values\": \"" + key + "\": ";
        const size_t slash = key.rfind('/');
        ValueLimit limit;
        limit.parent = slash == std::string::npos ? "" : key.substr(0, slash);
        limit.name = slash == std::string::npos ? key : key.substr(slash + 1);
        if (entry->isArray()) {
            for (const Json::Value& form : *entry) {
                limit.allowed.push_back(ReadForm(form, where));
            }
        } else {
            limit.allowed.push_back(ReadForm(*entry, where));
        }
        read.push_back(std::move(limit));
    }
    return read;
}

std::optional<Response> RefuseBadValues(const std::vector<ValueLimit>& limits,
                                        const ParsedRequest& request)
{
    if (limits.empty()) {
        return std::nullopt;
    }
    Check check(limits);
    if (request.document.form == RequestDocument::Form::Xml) {
        if (const XmlTree tree = ReadXmlTree(request.body)) {
            Walk(RootOf(tree), check);
        }
    } else if (request.document.form == RequestDocument::Form::Json) {
        Walk(ReadJsonDocument(request.body).value_or(Json::Value()), {}, {}, check);
    }
    return check.Passed() ? std::nullopt
                          : std::optional(MakeStatus(Outcome::kBadParameters, request.target));
}

}  // namespace Device
