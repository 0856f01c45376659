// Asking a device for one record, and judging what came.
// SPDX-License-Identifier: Apache-2.0
#include "Inquiry.h"

#include "AnswerTap.h"
#include "JsonOutput.h"
#include "PelNetSDK/Login.h"

namespace Tool
{

Finding Inquire(const RecordEntry& record, int userID, const Selectors& selectors)
{
    Finding finding;
    finding.record = &record;
    const AnswerTap tap;
    const Answer answer = record.ask(userID, selectors);
    if (!answer.answered) {
        finding.failure = LastFailure(answer.error);
        finding.outcome = MeansUnsupported(answer.error) ? Outcome::Unsupported : Outcome::Failed;
    }
    // An answer that makes no record is reported as 23 by some operations and as none by others.
    if (tap.Heard() && (answer.answered || answer.error == NET_ORB_NOSUPPORT)) {
        finding.document = tap.Document();
        finding.reading = record.read(finding.document);
        if (!finding.reading.problem.empty()) {
            finding.outcome = Outcome::Failed;
            finding.failure = {NET_ORB_NOSUPPORT,
                               "the device's document cannot be read as " + record.name,
                               finding.reading.problem};
        }
    } else if (answer.answered) {
        finding.reading.values = answer.values;
        finding.reading.shown = answer.values;
    }
    if (answer.answered && finding.reading.problem.empty()) {
        finding.outcome = Outcome::Answered;
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
        std::string text = finding.failure.text;
        if (!finding.failure.detail.empty()) {
            text += " (" + finding.failure.detail + ")";
        }
        value["error"] = ErrorToJson(finding.failure.error, text);
    }
    if (explain) {
        value["untaken"] = ToJson(finding.reading.untaken);
    }
    return value;
}

}  // namespace Tool
