// Reading a profile's manifest and the documents it names.
// SPDX-License-Identifier: Apache-2.0
#include "Device/Profile.h"

#include <algorithm>
#include <stdexcept>

#include "Device/DateTime.h"
#include "Device/JsonDocument.h"

namespace Device
{
namespace
{

// Ends the reading with a sentence about what is wrong.
struct Fault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

Json::Value ReadObject(const ProfileFiles& files, const std::string& name)
{
    const std::optional<std::string> text = files(name);
    if (!text) {
        throw Fault("there is no " + name);
    }
    std::string errors;
    std::optional<Json::Value> root = ReadJsonDocument(*text, &errors);
    if (!root) {
        throw Fault(name + " is not JSON: " + errors.substr(0, errors.find_last_not_of('\n') + 1));
    }
    if (!root->isObject()) {
        throw Fault(name + " does not hold an object");
    }
    return *std::move(root);
}

std::string TextMember(const Json::Value& object, const char* key, const std::string& where,
                       bool needed)
{
    const Json::Value& value = object[key];
    if (value.isString() || (value.isNull() && !needed)) {
        return value.asString();
    }
    throw Fault(where + ": \"" + key + "\" is " + (value.isNull() ? "missing" : "not a text"));
}

void RefuseUnknownKeys(const Json::Value& object, std::initializer_list<std::string_view> known,
                       const std::string& where)
{
    for (const std::string& key : object.getMemberNames()) {
        if (std::ranges::find(known, key) == known.end()) {
            throw Fault(
                std::string(where).append(": \"").append(key).append("\" is no key of a manifest"));
        }
    }
}

void ReadUsers(const Json::Value& users, Profile& profile)
{
    if (!users.isNull() && !users.isArray()) {
        throw Fault("\"users\" is not an array");
    }
    for (const Json::Value& user : users) {
        if (!user.isObject()) {
            throw Fault("\"users\" holds something that is not an object");
        }
        const std::string name = TextMember(user, "name", "\"users\"", true);
        const std::string password = TextMember(user, "password", "user \"" + name + "\"", true);
        if (name.empty() || name.find_first_of(":\"\\") != std::string::npos) {
            throw Fault("\"users\": a name must not be empty nor hold a colon, quote or backslash");
        }
        if (!profile.users.emplace(name, password).second) {
            throw Fault("user \"" + name + "\" stands twice");
        }
    }
}

void ReadChannels(const Json::Value& channels, Profile& profile)
{
    if (!channels.isNull() && !channels.isObject()) {
        throw Fault("\"channels\" is not an object");
    }
    for (const std::string& key :
         channels.isObject() ? channels.getMemberNames() : std::vector<std::string>()) {
        int number = 0;
        const Json::Value& protocol = channels[key];
        if (!ReadNumber(key, number) || number < 0 || !protocol.isInt() || protocol.asInt() < 0) {
            throw Fault(R"("channels": ")" + key + "\" does not map a number to a number");
        }
        profile.channels.emplace(number, protocol.asInt());
    }
}

void ReadOwnChannels(const Json::Value& channels, const std::string& where, Answer& answer)
{
    if (!channels.isNull() && !channels.isArray()) {
        throw Fault(where + ": \"channels\" is not an array");
    }
    for (const Json::Value& channel : channels) {
        if (!channel.isInt()) {
            throw Fault(where + ": \"channels\" holds something that is not a number");
        }
        answer.channels.push_back(channel.asInt());
    }
}

// "deviceAbility 17 PTZAbility" and "stdAbility 4360" are short for the SDK's requests. A fourth
// word tells apart requests that share code and root: it is the element by which one names a
// channel.
void ReadAbility(const std::vector<std::string>& words, Answer& answer)
{
    const bool device = words[0] == "deviceAbility";
    int code = 0;
    if (words.size() < 2 || words.size() > (device ? 4u : 2u) || !ReadNumber(words[1], code) ||
        code < 0) {
        throw Fault("\"" + answer.request + "\" is not \"" +
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
    // A target may hold blanks, so only what stands before the first one can be a method.
    const bool hasMethod = !answer.request.starts_with('/') && words.size() > 1;
    const std::string target =
        hasMethod ? answer.request.substr(words[0].size() + 1) : answer.request;
    if (!target.starts_with('/') || (hasMethod && answer.setting) ||
        (hasMethod && std::ranges::find(kMethods, words[0]) == std::end(kMethods))) {
        throw Fault("\"" + answer.request + "\" is no request" +
                    (answer.setting ? " of a setting, which is a path without a method" : ""));
    }
    answer.method = answer.setting ? "" : hasMethod ? words[0] : "GET";
    answer.path = ParsePath(target);
    answer.parameters = ParseParameters(target);
}

std::string ContentType(const std::string& file)
{
    return file.ends_with(".xml")    ? "application/xml"
           : file.ends_with(".json") ? "application/json"
           : file.ends_with(".txt")  ? "text/plain"
                                     : "application/octet-stream";
}

// A profile may come from anyone: it must not reach for files outside its folder.
void RefuseForeignFile(const std::string& file, const std::string& where)
{
    if (file.starts_with('/') || file.find("..") != std::string::npos) {
        throw Fault(where + ": the file \"" + file + "\" is not one of the profile's own");
    }
}

void ReadDocument(const ProfileFiles& files, const std::string& file, Answer& answer)
{
    const std::string where = "\"" + answer.request + "\"";
    RefuseForeignFile(file, where);
    std::optional<std::string> text = files(file);
    if (!text) {
        throw Fault(where + ": the file \"" + file + "\" cannot be read");
    }
    answer.contentType = ContentType(file);
    answer.document = std::move(*text);
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

void ReadSearch(const Json::Value& search, const std::string& where, Answer& answer)
{
    if (search.isNull()) {
        return;
    }
    if (answer.method != "POST" || answer.contentType != "application/json") {
        throw Fault(where + ": \"search\" is of a POST answered with a JSON file");
    }
    try {
        answer.search = ReadSearchRules(search);
        static_cast<void>(ReadSearched(answer.document, *answer.search));
    } catch (const std::invalid_argument& fault) {
        throw Fault(where + ": " + fault.what());
    }
}

// What a device does with a request's body beyond looking at its root.
void ReadRules(const Json::Value& entry, const std::string& where, Answer& answer)
{
    try {
        answer.limits = ReadValueLimits(entry["values"]);
    } catch (const std::invalid_argument& fault) {
        throw Fault(where + ": " + fault.what());
    }
    if (const std::string merge = TextMember(entry, "merge", where, false); !merge.empty()) {
        const size_t slash = merge.find('/');
        if (!answer.setting || answer.json || slash == std::string::npos) {
            throw Fault(where + ": \"merge\" is \"<item>/<key>\" of an XML setting");
        }
        answer.mergedItem = merge.substr(0, slash);
        answer.mergedKey = merge.substr(slash + 1);
    }
    ReadSearch(entry["search"], where, answer);
    const Json::Value& pages = entry["pages"];
    if (pages.isNull()) {
        return;
    }
    if (!pages.isObject() || answer.method != "POST" || answer.contentType != "application/xml") {
        throw Fault(where + ": \"pages\" is an object, of a POST answered with an XML file");
    }
    RefuseUnknownKeys(pages, {"item", "position", "size"}, where + ": \"pages\"");
    answer.paging = {TextMember(pages, "item", where, true),
                     TextMember(pages, "position", where, true),
                     TextMember(pages, "size", where, true)};
}

Answer ReadAnswer(const ProfileFiles& files, const Json::Value& entry, unsigned int index)
{
    const std::string number = "answer " + std::to_string(index + 1);
    if (!entry.isObject()) {
        throw Fault(number + " is not an object");
    }
    Answer answer;
    answer.request = TextMember(entry, "request", number, true);
    const std::string where = "\"" + answer.request + "\"";
    RefuseUnknownKeys(entry,
                      {"request", "file", "setting", "status", "root", "channels", "values",
                       "merge", "pages", "search"},
                      where);
    if (!entry["setting"].isNull() && !entry["setting"].isBool()) {
        throw Fault(where + ": \"setting\" is neither true nor false");
    }
    answer.setting = entry["setting"].asBool();
    ReadRequestLine(answer);
    if (answer.setting && std::ranges::find(answer.path, "{any}") != answer.path.end()) {
        throw Fault(where + ": a setting's path may hold no \"{any}\"");
    }
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
        ReadDocument(files, file, answer);
        ReadRules(entry, where, answer);
        return answer;
    }
    ReadRules(entry, where, answer);
    const Status* outcome = FindOutcome(status);
    if (outcome == nullptr) {
        throw Fault(where + ": the status \"" + status + "\" is unknown");
    }
    answer.status = *outcome;
    return answer;
}

void ReadAnswers(const ProfileFiles& files, const Json::Value& answers, Profile& profile)
{
    if (!answers.isArray()) {
        throw Fault("\"answers\" is not an array");
    }
    for (Json::ArrayIndex i = 0; i < answers.size(); ++i) {
        Answer answer = ReadAnswer(files, answers[i], i);
        const auto same = [&](const Answer& other) {
            return other.request == answer.request && other.root == answer.root &&
                   other.channels == answer.channels;
        };
        if (std::ranges::any_of(profile.answers, same)) {
            throw Fault("\"" + answer.request + "\" is answered twice");
        }
        profile.answers.push_back(std::move(answer));
    }
}

void ReadPast(const Json::Value& recordings, Profile& profile)
{
    if (recordings.isNull()) {
        return;
    }
    constexpr int kMostDays = 366;
    const std::string where = "\"recordings\"";
    if (!recordings.isObject()) {
        throw Fault(where + " is not an object");
    }
    RefuseUnknownKeys(recordings, {"start", "days", "uri"}, where);
    const auto start = ReadDateTime(TextMember(recordings, "start", where, true));
    const Json::Value& days = recordings["days"];
    if (!start || !days.isInt() || days.asInt() < 1 || days.asInt() > kMostDays) {
        throw Fault(where + ": \"start\" is no date and time, or \"days\" no number of them");
    }
    profile.past = {*start, days.asInt(), TextMember(recordings, "uri", where, true)};
}

void ReadState(const ProfileFiles& files, const Json::Value& state, Profile& profile)
{
    if (!state.isNull() && !state.isObject()) {
        throw Fault("\"state\" is not an object");
    }
    for (const std::string& name :
         state.isObject() ? state.getMemberNames() : std::vector<std::string>()) {
        const std::string file = TextMember(state, name.c_str(), "\"state\"", true);
        RefuseForeignFile(file, "\"state\"");
        profile.state.emplace(name, ReadObject(files, file));
    }
}

}  // namespace

bool Profile::HasProtocolChannel(int channel) const
{
    return std::ranges::any_of(channels,
                               [&](const auto& entry) { return entry.second == channel; });
}

bool ReadProfile(const ProfileFiles& files, Profile& profile, std::string& error)
{
    try {
        const Json::Value manifest = ReadObject(files, "manifest.json");
        RefuseUnknownKeys(
            manifest,
            {"name", "description", "users", "channels", "answers", "recordings", "state"},
            "manifest.json");
        profile = {};
        profile.name = TextMember(manifest, "name", "manifest.json", true);
        profile.description = TextMember(manifest, "description", "manifest.json", true);
        ReadUsers(manifest["users"], profile);
        ReadChannels(manifest["channels"], profile);
        ReadAnswers(files, manifest["answers"], profile);
        ReadPast(manifest["recordings"], profile);
        ReadState(files, manifest["state"], profile);
        return true;
    } catch (const Fault& fault) {
        error = fault.what();
    } catch (const Json::Exception& fault) {
        error = std::string("manifest.json is not JSON: ") + fault.what();
    }
    return false;
}

}  // namespace Device
