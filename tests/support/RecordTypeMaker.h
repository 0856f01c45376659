// Makes what tests know of a record from its type; included by the files that list the rows.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "CapabilitySet/Explain.h"
#include "CapabilitySet/private/xml/XmlWriting.h"
#include "Catalog/Entries.h"
#include "support/AllRecords.h"
#include "support/JsonSamples.h"
#include "support/RecordGenerator.h"
#include "support/ReferenceJson.h"
#include "support/ReferenceXml.h"
#include "support/SameRecord.h"
#include "support/XmlSamples.h"

namespace TestSupport
{

inline constexpr CapabilitySet::log::Place kInTests{"RecordTypeMaker.h", "Parse", 1};

/// The name of a record's root element; of a record that is no document, one like any other.
template <class Record>
constexpr const char* RootOf()
{
    constexpr const char* kRoot = CapabilitySet::RootNameOf<Record>();
    return kRoot == nullptr ? "part" : kRoot;
}

template <class Record>
inline constexpr bool kIsDocument =
    requires(Record record, const std::string& text) { record.Parse(text); };

template <class Record>
class RecordHolder : public AnyRecord
{
public:
    Record record;

    void Parse(const std::string& text) override
    {
        if constexpr (kIsDocument<Record>) {
            record.Parse(text);
        } else {
            namespace xml = CapabilitySet::xml;
            xml::WithRoot(text, RootOf<Record>(), kInTests, [this](xmlNode* root) {
                record.Parse(xml::TakesFirstChild<Record> ? root->children : root);
            });
        }
    }

    [[nodiscard]] CapabilitySet::RecordNode Describe() const override
    {
        return CapabilitySet::Describe({}, record);
    }

    [[nodiscard]] bool IsSame(const AnyRecord& other) const override
    {
        return TestSupport::IsSame(record, static_cast<const RecordHolder&>(other).record);
    }

    [[nodiscard]] bool IsFlagUp() const override { return CapabilitySet::xml::FlagOf(record); }

    [[nodiscard]] std::string Make() const override
    {
        if constexpr (requires { record.CreateXmlNodePtr(); }) {
            return CapabilitySet::xml::DumpDocument(record.CreateXmlNodePtr(), "2.0");
        } else if constexpr (requires { record.Make(); }) {
            return record.Make();
        } else {
            return {};
        }
    }

    Json::Value* Root() override
    {
        if constexpr (requires(Json::Value value) { record.root = value; }) {
            return &record.root;
        } else {
            return nullptr;
        }
    }

    void Fill([[maybe_unused]] RecordGenerator& generator) override
    {
        if constexpr (kIsSent) {
            record = generator.Make<Record>();
        }
    }

    static constexpr bool kIsSent =
        requires(const Record& r) { r.CreateXmlNodePtr(); } || requires(const Record& r) {
            r.root;
            r.Make();
        };
};

template <class Record>
Verdict ReadPlainly(const std::string& text, AnyRecord& any)
{
    Record& record = static_cast<RecordHolder<Record>&>(any).record;
    if constexpr (CapabilitySet::ReadsXml<Record>) {
        return reference::ReadDocument(text, RootOf<Record>(), record);
    } else {
        reference::ReadText(text, record);
        return Verdict::Fits;
    }
}

/// A row of the catalogue becomes its record's type, and those of the parts of an XML record.
class TypeMaker
{
public:
    explicit TypeMaker(std::vector<RecordClass>& types) : types_(types) {}

    template <class Query, class... Picks>
    void operator()(const char* /*name*/, const char* /*description*/, Query /*query*/,
                    const Picks&... /*picks*/)
    {
        Add<typename CapabilitySet::catalog::RecordOf<Query>::Type>();
    }

private:
    template <class Record>
    void Add()
    {
        const std::string name = CapabilitySet::catalog::TypeName<Record>();
        if (std::ranges::find(types_, name, &RecordClass::name) != types_.end()) {
            return;
        }
        RecordClass type;
        type.name = name;
        type.make = []() -> RecordPointer { return std::make_unique<RecordHolder<Record>>(); };
        type.readPlainly = &ReadPlainly<Record>;
        type.isSent = RecordHolder<Record>::kIsSent;
        if constexpr (std::derived_from<Record, CapabilitySet::AbilityDocument>) {
            type.kind = RecordKind::XmlTree;
            type.root = Record::kRoot;
            type.hasFlag = true;
            type.sample = Element(type.root, {{}, "<a xmlns:b='u' b:c='1'> <b:d>x</b:d>y<d/></a>"});
        } else if constexpr (CapabilitySet::ReadsXml<Record>) {
            DescribeXml<Record>(type);
        } else {
            DescribeJson<Record>(type);
        }
        types_.push_back(std::move(type));
        if constexpr (CapabilitySet::ReadsXml<Record> && CapabilitySet::HasFields<Record>) {
            AddParts<Record>();
        }
    }

    template <class Record>
    void AddParts()
    {
        const Record sample;
        Record::Fields(sample, [this]<class Member>(const char* /*name*/, const Member& /*member*/,
                                                    auto... /*how*/) {
            using Part = typename CapabilitySet::ItemOf<Member>::Type;
            if constexpr (CapabilitySet::HasFields<Part>) {
                Add<Part>();
            }
        });
    }

    template <class Record>
    static void DescribeXml(RecordClass& type)
    {
        namespace xml = CapabilitySet::xml;
        constexpr int kFirstNumber = 11;
        type.kind = kIsDocument<Record> ? RecordKind::XmlDocument : RecordKind::XmlPart;
        type.root = RootOf<Record>();
        type.hasFlag = xml::HasValid<Record> || xml::HasCapable<Record>;
        type.fields = LayoutOf<Record>(kFirstNumber);
        type.size = sizeof(Record);
        type.alignment = alignof(Record);
        std::string elements;
        for (const FieldLayout& field : type.fields) {
            elements += field.element;
            type.names.push_back(field.name);
        }
        type.sample = Element(type.root, {{}, elements});
    }

    template <class Record>
    static void DescribeJson(RecordClass& type)
    {
        type.kind = RecordKind::Json;
        const Record record;
        Record::Fields(record, [&type](const char* name, auto&&... /*member and how*/) {
            type.names.emplace_back(name);
        });
        if constexpr (requires { Record::kKey; }) {
            type.root = Record::kKey;
            type.sample = SampleText<Record>();
        } else {
            type.sample =
                R"({"requestURL": "/a", "statusCode": 4, "statusString": "s", "subStatusCode": "x",
                    "errorCode": 5, "errorMsg": "m", "MoveAutoTracking": {"enabled": true},
                    "ErrorList": [{"id": 1, "subStatusCode": "y"}, null, {"id": -2}]})";
        }
    }

    std::vector<RecordClass>& types_;
};

}  // namespace TestSupport
