// Reads a profile's manifest.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/Profile.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "Device/document/DateTime.h"
#include "Device/document/Text.h"
#include "Device/manifest/AnswerEntry.h"
#include "Device/manifest/ManifestEntry.h"

namespace Device
{
namespace
{

using Fault = ManifestFault;

constexpr const char* kManifest = "manifest.json";

void ReadUsers(const Json::Value& users, Profile& profile)
{
    if (!users.isNull() && !users.isArray()) {
        throw Fault("\"users\" is not an array");
    }
    for (const Json::Value& user : users) {
        if (!user.isObject()) {
            throw Fault("\"users\" contains something that is not an object");
        }
        const std::string name = TextMember(user, "name", "\"users\"", true);
        const std::string password = TextMember(user, "password", "user \"" + name + "\"", true);
        if (name.empty() || name.find_first_of(":\"\\") != std::string::npos) {
            throw Fault("\"users\": a name is empty or contains a colon, quote or backslash");
        }
        if (!profile.users.emplace(name, password).second) {
            throw Fault("user \"" + name + "\" is listed twice");
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
        const auto valid = [](int channel) {
            return channel >= 0 && channel <= kMostChannelNumber;
        };
        if (!ReadNumber(key, number) || !valid(number) || !protocol.isInt() ||
            !valid(protocol.asInt())) {
            throw Fault(R"("channels": ")" + key + "\" does not map a number to a number");
        }
        profile.channels.emplace(number, protocol.asInt());
    }
}

void ReadAnswers(ManifestFiles& files, const Json::Value& answers, Profile& profile)
{
    if (!answers.isArray()) {
        throw Fault("\"answers\" is not an array");
    }
    std::set<std::tuple<std::string, std::string, std::vector<int>>> known;
    for (Json::ArrayIndex i = 0; i < answers.size(); ++i) {
        Answer answer = ReadAnswer(files, answers[i], i + 1);
        if (!known.emplace(answer.request, answer.root, answer.channels).second) {
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
    const std::string where = "\"recordings\"";
    if (!recordings.isObject()) {
        throw Fault(where + " is not an object");
    }
    RefuseUnknownKeys(recordings, {"start", "days", "uri"}, where);
    const auto start = ReadDateTime(TextMember(recordings, "start", where, true));
    const Json::Value& days = recordings["days"];
    if (!start || !days.isInt() || days.asInt() < 1 || days.asInt() > kMostRecordedDays) {
        throw Fault(where + ": \"start\" is not a time, or \"days\" is not a number from 1 to " +
                    std::to_string(kMostRecordedDays));
    }
    profile.past = {*start, days.asInt(), TextMember(recordings, "uri", where, true)};
}

void ReadState(ManifestFiles& files, const Json::Value& state, Profile& profile)
{
    if (!state.isNull() && !state.isObject()) {
        throw Fault("\"state\" is not an object");
    }
    for (const std::string& name :
         state.isObject() ? state.getMemberNames() : std::vector<std::string>()) {
        const std::string file = TextMember(state, name.c_str(), "\"state\"", true);
        profile.state.emplace(name, files.ReadObject(file, "\"state\""));
    }
}

void ReadManifest(ManifestFiles& files, Profile& profile)
{
    const Json::Value manifest = files.ReadObject(kManifest, "profile");
    RefuseUnknownKeys(
        manifest, {"name", "description", "users", "channels", "answers", "recordings", "state"},
        kManifest);
    profile = {};
    profile.name = TextMember(manifest, "name", kManifest, true);
    profile.description = TextMember(manifest, "description", kManifest, true);
    ReadUsers(manifest["users"], profile);
    ReadChannels(manifest["channels"], profile);
    ReadAnswers(files, manifest["answers"], profile);
    ReadPast(manifest["recordings"], profile);
    ReadState(files, manifest["state"], profile);
}

}  // namespace

std::string Answer::DocumentFor(int channel) const
{
    return namesChannel ? ReplaceAll(document, "{channel}", std::to_string(channel)) : document;
}

bool Profile::HasProtocolChannel(int channel) const
{
    return std::ranges::any_of(channels,
                               [&](const auto& entry) { return entry.second == channel; });
}

bool ReadProfile(const ProfileFiles& files, Profile& profile, std::string& error)
{
    ManifestFiles read(files);
    try {
        ReadManifest(read, profile);
        return true;
    } catch (const ManifestFault& fault) {
        error = fault.what();
    } catch (const Json::Exception& fault) {
        error = std::string(kManifest) + ": " + fault.what();
    }
    return false;
}

}  // namespace Device
