// Matching requests against the answers of a profile.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/AnswerTable.h"

#include <algorithm>
#include <tuple>

#include "Device/document/Text.h"

namespace Device
{
namespace
{

constexpr std::string_view kChannel = "{channel}";
constexpr std::string_view kSdkChannel = "{sdkChannel}";
constexpr std::string_view kAny = "{any}";

bool IsPlaceholder(std::string_view segment)
{
    return segment == kChannel || segment == kSdkChannel || segment == kAny;
}

bool MatchMethod(const Answer& answer, const ParsedRequest& request)
{
    return answer.setting ? request.method == "GET" || request.method == "PUT"
                          : request.method == answer.method;
}

bool MatchParameters(const Answer& answer, const ParsedRequest& request)
{
    return std::ranges::all_of(answer.parameters, [&](const Parameter& parameter) {
        return std::ranges::find(request.parameters, parameter) != request.parameters.end();
    });
}

bool MatchRoot(const Answer& answer, const ParsedRequest& request)
{
    // The path decides; whoever answers refuses the malformed body.
    if (request.document.form == RequestDocument::Form::Malformed) {
        return true;
    }
    const std::vector<std::string>& roots = request.document.roots;
    return (answer.root.empty() || std::ranges::find(roots, answer.root) != roots.end()) &&
           (answer.channelName.empty() || answer.channelName == request.document.channelName);
}

void AddMethods(const Answer& answer, bool own, std::set<std::string>& methods)
{
    if (own && answer.setting) {
        methods.insert({"GET", "PUT"});
    } else if (own) {
        methods.insert(answer.method);
    }
}

auto Closeness(const Answer& answer)
{
    const auto placeholders = std::ranges::count_if(answer.path, &IsPlaceholder);
    return std::tuple(-placeholders, answer.parameters.size(), !answer.root.empty(),
                      !answer.channelName.empty(), !answer.channels.empty());
}

bool MatchOwnChannels(const Answer& answer, int channel)
{
    return answer.channels.empty() ||
           std::ranges::find(answer.channels, channel) != answer.channels.end();
}

// What clients write when they mean no channel in particular.
bool IsNoChannel(std::string_view text)
{
    constexpr std::string_view kTexts[] = {"", "0xff", "0xFF", "255", "-1", "4294967295"};
    return std::ranges::find(kTexts, text) != std::end(kTexts);
}

}  // namespace

AnswerTable::AnswerTable(const Profile& profile, bool settings) : profile_(profile)
{
    for (const Answer& answer : profile.answers) {
        if (answer.setting != settings) {
            continue;
        }
        if (std::ranges::any_of(answer.path, &IsPlaceholder)) {
            patterns_.push_back(&answer);
        } else {
            literal_[answer.path].push_back(&answer);
        }
    }
}

AnswerTable::Found AnswerTable::Find(const ParsedRequest& request) const
{
    Found best;
    const auto consider = [&](const Answer& answer, const Found& found) {
        if (!MatchParameters(answer, request) || !MatchRoot(answer, request)) {
            return;
        }
        const bool own = MatchOwnChannels(answer, found.channel);
        if (!MatchMethod(answer, request)) {
            AddMethods(answer, own, best.methods);
        } else if (found.unknownChannel) {
            best.unknownChannel = true;
        } else if (!own) {
            return;
        } else if (best.answer == nullptr || Closeness(answer) > Closeness(*best.answer)) {
            best.answer = &answer;
            best.channel = found.channel;
        }
    };
    const auto literal = literal_.find(request.path);
    if (literal != literal_.end()) {
        Found found;
        FindDocumentChannel(request, found);
        for (const Answer* answer : literal->second) {
            consider(*answer, found);
        }
    }
    for (const Answer* answer : patterns_) {
        Found found;
        found.channel = FirstChannel(true);
        if (MatchPath(*answer, request, found)) {
            consider(*answer, found);
        }
    }
    return best;
}

std::optional<Response> AnswerTable::Refuse(const Found& found, const ParsedRequest& request)
{
    if (found.unknownChannel) {
        return MakeStatus(Outcome::kInvalidChannel, request.target);
    }
    return found.methods.empty()
               ? std::nullopt
               : std::optional(MakeMethodNotAllowed(request.target, found.methods));
}

bool AnswerTable::MatchPath(const Answer& answer, const ParsedRequest& request, Found& found) const
{
    if (answer.path.size() != request.path.size()) {
        return false;
    }
    for (size_t i = 0; i < answer.path.size(); ++i) {
        const std::string& wanted = answer.path[i];
        if (wanted == kChannel || wanted == kSdkChannel) {
            if (!ReadNumber(request.path[i], found.channel)) {
                return false;
            }
            found.unknownChannel |= !HasChannel(found.channel, wanted == kChannel);
        } else if (wanted != kAny && wanted != request.path[i]) {
            return false;
        }
    }
    return true;
}

void AnswerTable::FindDocumentChannel(const ParsedRequest& request, Found& found) const
{
    const std::string* parameter = request.FindParameter("channel");
    const std::string& text = parameter != nullptr ? *parameter : request.document.channel;
    // "channelID" has the protocol's number; the other elements and the parameter have the SDK's.
    const bool protocol = parameter == nullptr && request.document.channelName == "channelID";
    if (IsNoChannel(text)) {
        found.channel = FirstChannel(protocol);
        return;
    }
    found.unknownChannel = !ReadNumber(text, found.channel) ||
                           !(HasChannel(found.channel, true) || HasChannel(found.channel, false));
}

bool AnswerTable::HasChannel(int channel, bool protocol) const
{
    return protocol ? profile_.HasProtocolChannel(channel) : profile_.channels.contains(channel);
}

int AnswerTable::FirstChannel(bool protocol) const
{
    if (profile_.channels.empty()) {
        return 1;
    }
    const auto& [sdk, first] = *profile_.channels.begin();
    return protocol ? first : sdk;
}

}  // namespace Device
