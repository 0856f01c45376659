// Any bytes as the values of a record that is sent to a device.
// SPDX-License-Identifier: Apache-2.0
#include <type_traits>

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/xml/XmlDocument.h"
#include "CapabilitySet/private/xml/XmlWriting.h"
#include "fuzz/Check.h"
#include "fuzz/Chunks.h"
#include "fuzz/Targets.h"
#include "support/JsonRecords.h"
#include "support/RecordGenerator.h"
#include "support/XmlRecords.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;
using TestSupport::RecordGenerator;

template <class Record>
std::string Body(Record record)
{
    if constexpr (requires { record.CreateXmlNodePtr(); }) {
        return xml::DumpDocument(record.CreateXmlNodePtr(), "2.0");
    } else {
        return record.Make();
    }
}

bool IsXml(const std::string& body)
{
    xml::Problem problem;
    return xml::ParseText(body, xml::Form::Plain, problem) != nullptr;
}

bool IsJson(const std::string& body)
{
    Json::Value root;
    return json::ParseText(body, root);
}

/// A body is a document whatever the texts hold, reads back what it was made of unless that held
/// bytes that no document can, and what was read back makes the same body.
template <class Record>
void CheckBody(RecordGenerator& generator, bool anyBytes)
{
    constexpr bool kIsXml = requires(Record record) { record.CreateXmlNodePtr(); };
    const auto record = generator.Make<Record>();
    const std::string body = Body(record);
    const std::string& about = body;
    if constexpr (std::is_same_v<Record, AlarmHostOutputCfg>) {
        if (record.ids.empty()) {
            return Require(body.empty(), "without outputs nothing is switched", about);
        }
    }
    Require(kIsXml ? IsXml(body) : IsJson(body), "a body is a document", about);
    Record back;
    back.Parse(body);
    Require(anyBytes || SameFields(back, record), "a body reads back as it was", about);
    Require(Body(back) == body, "what was read back makes the same body", about);
}

/// Left out is the record that holds one member twice: filled, it contradicts itself.
template <class Record>
concept IsSent = requires(Record record, std::string text) {
    record.CreateXmlNodePtr();
    record.Parse(text);
} || (requires(Record record) { record.Make(); } && !std::is_same_v<Record, PortPoeInfoListCap>);

}  // namespace

void Requests(const std::string& text)
{
    std::string_view rest = text;
    const unsigned chosen = TakeByte(rest);
    const bool anyBytes = (TakeByte(rest) & 1U) != 0;
    RecordGenerator generator([&rest] { return TakeByte(rest); }, anyBytes);
    unsigned ordinal = 0;
    const auto check = [&]<class Record>() {
        if constexpr (IsSent<Record>) {
            if (ordinal++ == chosen) {
                CheckBody<Record>(generator, anyBytes);
            }
        }
    };
    TestSupport::XmlRecords::ForEach(check);
    JsonRecords::ForEach(check);
}

}  // namespace Fuzz
