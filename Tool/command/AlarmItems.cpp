// Commands to several items of an alarm host.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/AlarmItems.h"

#include <charconv>

#include <json/value.h>

#include "Tool/record/JsonOutput.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

std::string TextOf(const Json::Value& value)
{
    return value.isObject() || value.isArray() || value.isNull() ? std::string() : value.asString();
}

/// "there is no zone 900 (invalidID)": the device's sentence, if any, and its word.
std::string Reason(const Json::Value& entry)
{
    const std::string sentence = TextOf(entry["errorMsg"]);
    const std::string word = TextOf(entry["subStatusCode"]);
    if (sentence.empty() || word.empty()) {
        return sentence.empty() && word.empty() ? "refused" : sentence + word;
    }
    return sentence + " (" + word + ")";
}

RecordNode Row(int id, const std::string& noun, const std::string& error)
{
    RecordNode reason = tree::Text("reason", error);
    reason.announced = !error.empty();
    return {{},
            RecordNode::Kind::Record,
            {},
            true,
            {tree::Integer(noun, id), tree::Flag("done", error.empty()), reason}};
}

/// Commands every item, even if some are refused.
std::map<int, std::string> CommandEach(const std::vector<int>& ids,
                                       const std::function<void(int id)>& one)
{
    std::map<int, std::string> errors;
    for (const int id : ids) {
        try {
            one(id);
        } catch (const DeviceFailure& failure) {
            if (MeansUnreachable(failure.Why().failure.error)) {
                throw;
            }
            errors[id] = Told(failure.Why());
        }
    }
    return errors;
}

}  // namespace

std::map<int, std::string> ItemErrors(const std::string& answer)
{
    std::map<int, std::string> errors;
    Json::Value document;
    if (!ReadJson(answer, document) || !document.isObject() || !document["ErrorList"].isArray()) {
        return errors;
    }
    for (const Json::Value& entry : document["ErrorList"]) {
        const std::string id = entry.isObject() ? TextOf(entry["id"]) : TextOf(entry);
        int number = 0;
        std::from_chars(id.data(), id.data() + id.size(), number);
        errors[number] = entry.isObject() ? Reason(entry) : "refused";
    }
    return errors;
}

Report CommandItems(Talk& talk, const std::string& noun, const std::vector<int>& ids,
                    const std::function<void(int id)>& one, const std::function<void()>& batch)
{
    std::map<int, std::string> errors;
    if (ids.size() > 1 && !batch) {
        errors = CommandEach(ids, one);
    } else {
        ids.size() == 1 ? one(ids.front()) : batch();
        errors = ItemErrors(talk.Answer());
        if (errors.empty()) {
            talk.CheckStatus();
        }
    }
    Report report{{"Result", RecordNode::Kind::Record, {}, true, {}}};
    RecordNode list{noun + "s", RecordNode::Kind::List, {}, true, {}};
    for (const int id : ids) {
        const auto error = errors.find(id);
        list.children.push_back(Row(id, noun, error == errors.end() ? "" : error->second));
    }
    report.values.children.push_back(std::move(list));
    if (!errors.empty()) {
        report.remark =
            Counted(errors.size(), noun) + " of " + std::to_string(ids.size()) + " did not follow.";
        report.code = kFailed;
    }
    return report;
}

std::string JoinedNumbers(const std::vector<int>& numbers)
{
    std::string text;
    for (const int number : numbers) {
        text += (text.empty() ? "" : ",") + std::to_string(number);
    }
    return text;
}

}  // namespace Tool
