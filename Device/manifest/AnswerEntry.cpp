// Reads one entry of a manifest's "answers".
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/AnswerEntry.h"

#include <algorithm>
#include <stdexcept>

#include "Device/document/Text.h"

namespace Device
{
namespace
{

using Fault = ManifestFault;

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

// "deviceAbility 17 PTZAbility" and "stdAbility 4360" are short for the SDK's requests. A fourth
// word distinguishes requests that share code and root: the element that names the channel.
void ReadAbility(const std::vector<std::string>& words, Answer& answer)
{
    const bool device = words[0] == "deviceAbility";
    int code = 0;
    if (words.size() < 2 || words.size() > (device ? 4u : 2u) || !ReadNumber(words[1], code) ||
        code < 0) {
        throw Fault(Quoted(answer.request) + " is not \"" +
                    (device ? "deviceAbility <code> [<root> [<channel element>]]\""
                            : "stdAbility <code>\""));
    }
    answer.method = device ? "POST" : "GET";
    answer.path = {"TARN", "SDK", words[0], words[1]};
    answer.root = words.size() > 2 ? words[2] : std::string();
    answer.channelName = words.size() > 3 ? words[3] : std::string();
}

std::vector<std::string> SplitWords(const std::string& text)
{
    std::vector<std::string> words;
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find(' ', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return words;
}

void ReadRequestLine(Answer& answer)
{
    const std::vector<std::string> words = SplitWords(answer.request);
    if (!words.empty() && (words[0] == "deviceAbility" || words[0] == "stdAbility")) {
        ReadAbility(words, answer);
        return;
    }
    constexpr std::string_view kMethods[] = {"GET", "PUT", "POST", "DELETE"};
    // A target may contain blanks, so only the text before the first one can be a method.
    const bool hasMethod = !answer.request.starts_with('/') && words.size() > 1;
    const std::string target =
        hasMethod ? answer.request.substr(words[0].size() + 1) : answer.request;
    if (!target.starts_with('/') || (hasMethod && answer.setting) ||
        (hasMethod && std::ranges::find(kMethods, words[0]) == std::end(kMethods))) {
        throw Fault(Quoted(answer.request) + " is not a request" +
                    (answer.setting ? " of a setting, which is a path without a method" : ""));
    }
    answer.method = answer.setting ? "" : hasMethod ? words[0] : "GET";
    answer.path = ParsePath(target);
    answer.parameters = ParseParameters(target);
    if (answer.setting && std::ranges::find(answer.path, "{any}") != answer.path.end()) {
        throw Fault(Quoted(answer.request) + ": the path of a setting must not contain \"{any}\"");
    }
}

void ReadOwnChannels(const Json::Value& channels, const std::string& where, Answer& answer)
{
    if (!channels.isNull() && !channels.isArray()) {
        throw Fault(where + ": \"channels\" is not an array");
    }
    for (const Json::Value& channel : channels) {
        if (!channel.isInt()) {
            throw Fault(where + ": \"channels\" contains something that is not a number");
        }
        answer.channels.push_back(channel.asInt());
    }
}

std::string ContentType(const std::string& file)
{
    return file.ends_with(".xml")    ? "application/xml"
           : file.ends_with(".json") ? "application/json"
           : file.ends_with(".txt")  ? "text/plain"
                                     : "application/octet-stream";
}

void ReadDocument(ManifestFiles& files, const std::string& file, const std::string& where,
                  Answer& answer)
{
    answer.document = files.Read(file, where);
    answer.contentType = ContentType(file);
    answer.namesChannel = answer.document.find("{channel}") != std::string::npos;
    if (!answer.setting) {
        return;
    }
    answer.json = answer.contentType == "application/json";
    const RequestDocument document = ReadRequestDocument(answer.document, answer.json);
    if (document.form != (answer.json ? RequestDocument::Form::Json : RequestDocument::Form::Xml) ||
        document.roots.empty()) {
        throw Fault(where + ": the setting \"" + file + "\" is not well-formed");
    }
    answer.roots = document.roots;
}

void ReadMerge(const std::string& merge, const std::string& where, Answer& answer)
{
    const size_t slash = merge.find('/');
    if (merge.empty()) {
        return;
    }
    if (!answer.setting || answer.json || slash == std::string::npos) {
        throw Fault(where + ": \"merge\" must be \"<item>/<key>\" and belongs to an XML setting");
    }
    answer.mergedItem = merge.substr(0, slash);
    answer.mergedKey = merge.substr(slash + 1);
}

void ReadSearch(const Json::Value& search, const std::string& where, Answer& answer)
{
    if (search.isNull()) {
        return;
    }
    if (answer.method != "POST" || answer.contentType != "application/json") {
        throw Fault(where + ": \"search\" belongs to a POST that is answered with a JSON file");
    }
    answer.search = ReadSearchRules(search);
    static_cast<void>(ReadSearched(answer.document, *answer.search));
}

void ReadPages(const Json::Value& pages, const std::string& where, Answer& answer)
{
    if (pages.isNull()) {
        return;
    }
    if (!pages.isObject() || answer.method != "POST" || answer.contentType != "application/xml") {
        throw Fault(where +
                    ": \"pages\" is an object and belongs to a POST that is answered with an XML "
                    "file");
    }
    RefuseUnknownKeys(pages, {"item", "position", "size"}, where + ": \"pages\"");
    answer.paging = {TextMember(pages, "item", where, true),
                     TextMember(pages, "position", where, true),
                     TextMember(pages, "size", where, true)};
}

// How a device treats a request's body beyond its root.
void ReadRules(const Json::Value& entry, const std::string& where, Answer& answer)
{
    try {
        answer.limits = ReadValueLimits(entry["values"]);
        ReadSearch(entry["search"], where, answer);
    } catch (const std::invalid_argument& fault) {
        throw Fault(where + ": " + fault.what());
    }
    ReadMerge(TextMember(entry, "merge", where, false), where, answer);
    ReadPages(entry["pages"], where, answer);
}

void ReadOutcome(const std::string& status, const std::string& where, Answer& answer)
{
    const Status* outcome = FindOutcome(status);
    if (outcome == nullptr) {
        throw Fault(where + ": there is no status \"" + status + "\"");
    }
    answer.status = *outcome;
}

}  // namespace

Answer ReadAnswer(ManifestFiles& files, const Json::Value& entry, unsigned int number)
{
    const std::string position = "answer " + std::to_string(number);
    if (!entry.isObject()) {
        throw Fault(position + " is not an object");
    }
    Answer answer;
    answer.request = TextMember(entry, "request", position, true);
    const std::string where = Quoted(answer.request);
    RefuseUnknownKeys(entry,
                      {"request", "file", "setting", "status", "root", "channels", "values",
                       "merge", "pages", "search"},
                      where);
    if (!entry["setting"].isNull() && !entry["setting"].isBool()) {
        throw Fault(where + ": \"setting\" is neither true nor false");
    }
    answer.setting = entry["setting"].asBool();
    ReadRequestLine(answer);
    if (const std::string root = TextMember(entry, "root", where, false); !root.empty()) {
        answer.root = root;
    }
    ReadOwnChannels(entry["channels"], where, answer);
    const std::string file = TextMember(entry, "file", where, false);
    const std::string status = TextMember(entry, "status", where, false);
    if (file.empty() == status.empty() || (answer.setting && file.empty())) {
        throw Fault(where + (answer.setting ? " needs a \"file\""
                                            : R"( needs either a "file" or a "status")"));
    }
    if (!file.empty()) {
        ReadDocument(files, file, where, answer);
    }
    ReadRules(entry, where, answer);
    if (!status.empty()) {
        ReadOutcome(status, where, answer);
    }
    return answer;
}

}  // namespace Device
