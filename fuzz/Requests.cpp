// Any bytes as the values of a record that is sent to a device.
// SPDX-License-Identifier: Apache-2.0
#include <vector>

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/xml/XmlDocument.h"
#include "fuzz/Check.h"
#include "fuzz/Chunks.h"
#include "fuzz/Targets.h"
#include "support/AllRecords.h"
#include "support/RecordGenerator.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;
using TestSupport::RecordClass;
using TestSupport::RecordGenerator;
using TestSupport::RecordKind;
using TestSupport::RecordPointer;

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
void CheckBody(const RecordClass& type, RecordGenerator& generator, bool anyBytes)
{
    const RecordPointer record = type.make();
    record->Fill(generator);
    const std::string body = record->Make();
    if (body.empty() && type.name == "AlarmHostOutputCfg") {
        return Require(!record->Describe().children.empty() &&
                           record->Describe().children.back().children.empty(),
                       "outputs are switched", type.name);
    }
    Require(type.IsJson() ? IsJson(body) : IsXml(body), "a body is a document", body);
    const RecordPointer back = type.Read(body);
    Require(anyBytes || SameValues(back->Describe(), record->Describe()),
            "a body reads back as it was", body);
    Require(back->Make() == body, "what was read back makes the same body", body);
}

/// Left out is the record that holds one member twice: filled, it contradicts itself.
bool IsSent(const RecordClass& type)
{
    return type.isSent && type.kind != RecordKind::XmlPart && type.name != "PortPoeInfoListCap";
}

}  // namespace

void Requests(const std::string& text)
{
    std::string_view rest = text;
    const unsigned chosen = TakeByte(rest);
    const bool anyBytes = (TakeByte(rest) & 1U) != 0;
    RecordGenerator generator([&rest] { return TakeByte(rest); }, anyBytes);
    std::vector<const RecordClass*> sent;
    for (const RecordClass& type : TestSupport::AllRecordTypes()) {
        if (IsSent(type)) {
            sent.push_back(&type);
        }
    }
    CheckBody(*sent[chosen % sent.size()], generator, anyBytes);
}

}  // namespace Fuzz
