// Asking a device for one record, and judging what came.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Inquiry.h"

#include "PelNetSDK/Login.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/session/AnswerTap.h"

namespace Tool
{

namespace
{

/// Takes of the documents that came the one that is the record's.
void Read(Finding& finding, const std::vector<std::string>& documents)
{
    for (const std::string& document : documents) {
        Reading reading = finding.record->read(document);
        const bool good = reading.problem.empty();
        // Of several that cannot be read the first is the record's own answer.
        if (good || &document == &documents.front()) {
            finding.document = document;
            finding.reading = std::move(reading);
        }
        if (good) {
            return;
        }
    }
}

}  // namespace

Finding Inquire(const RecordEntry& record, int userID, const Selectors& selectors)
{
    Finding finding;
    finding.record = &record;
    Answer answer;
    std::vector<std::string> documents;
    {
        const AnswerTap tap;
        answer = record.ask(userID, selectors);
        finding.failure = LastFailure(answer.error);
        documents = tap.Documents();
    }
    // An answer that makes no record is reported as 23 by some operations and as none by others.
    const bool mayRead = answer.answered || answer.error == NET_ORB_NOSUPPORT;
    if (mayRead && !documents.empty()) {
        Read(finding, documents);
    } else {
        finding.reading.values = answer.values;
        finding.reading.shown = std::move(answer.values);
    }
    if (!finding.reading.problem.empty()) {
        finding.outcome = Outcome::Failed;
        finding.failure = {NET_ORB_NOSUPPORT,
                           "the device's document cannot be read as " + record.name,
                           finding.reading.problem};
    } else if (answer.answered) {
        finding.outcome = Outcome::Answered;
    } else {
        finding.outcome = MeansUnsupported(answer.error) ? Outcome::Unsupported : Outcome::Failed;
    }
    return finding;
}

Json::Value ToJson(const std::vector<Untaken>& untaken)
{
    Json::Value list(Json::arrayValue);
    for (const Untaken& each : untaken) {
        Json::Value item(Json::objectValue);
        item["path"] = each.path;
        item["line"] = each.line > 0 ? Json::Value(Json::Int64{each.line}) : Json::Value();
        item["reason"] = each.reason;
        item["count"] = Json::Value::UInt64{each.count};
        list.append(std::move(item));
    }
    return list;
}

Json::Value ToJson(const Finding& finding, const std::string& device, bool explain)
{
    Json::Value value(Json::objectValue);
    const bool answered = finding.outcome == Outcome::Answered;
    value["record"] = finding.record->name;
    value["device"] = device;
    value["answered"] = answered;
    value["values"] = answered ? ToJson(finding.reading.values) : Json::Value();
    if (!answered) {
        value["error"] = ErrorToJson(finding.failure);
    }
    if (explain) {
        value["untaken"] = ToJson(finding.reading.untaken);
    }
    return value;
}

}  // namespace Tool
