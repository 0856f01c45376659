// The table of behaviours, and the two that every device has: channel numbers and documents.
// SPDX-License-Identifier: Apache-2.0
#include "Device/AnswerTable.h"
#include "Device/Behaviour.h"
#include "Device/search/DocumentPages.h"
#include "Device/search/JsonSearch.h"

namespace Device
{
namespace
{

// GET /TARN/SDK/channels/<n>: the protocol's number of the SDK's channel.
class ChannelNumbers : public Behaviour
{
public:
    explicit ChannelNumbers(const Profile& profile) : profile_(profile) {}

    std::optional<Response> Answer(const ParsedRequest& request) override
    {
        const std::vector<std::string>& path = request.path;
        if (path.size() != 4 || path[0] != "TARN" || path[1] != "SDK" || path[2] != "channels") {
            return std::nullopt;
        }
        if (request.method != "GET") {
            return MakeStatus(Outcome::kMethodNotAllowed, request.target);
        }
        int number = 0;
        const auto channel =
            ReadNumber(path[3], number) ? profile_.channels.find(number) : profile_.channels.end();
        if (channel == profile_.channels.end()) {
            return MakeStatus(Outcome::kInvalidChannel, request.target);
        }
        return Response{200, "text/plain", std::to_string(channel->second)};
    }

private:
    const Profile& profile_;
};

// The documents of the profile, as they stand.
class Documents : public Behaviour
{
public:
    explicit Documents(const Profile& profile) : table_(profile, false) {}

    std::optional<Response> Answer(const ParsedRequest& request) override
    {
        const AnswerTable::Found found = table_.Find(request);
        if (found.answer != nullptr || found.unknownChannel) {
            if (std::optional<Response> refusal = RefuseMalformed(request)) {
                return refusal;
            }
        }
        if (found.answer == nullptr) {
            return found.unknownChannel
                       ? std::optional(MakeStatus(Outcome::kInvalidChannel, request.target))
                   : found.otherMethod
                       ? std::optional(MakeStatus(Outcome::kMethodNotAllowed, request.target))
                       : std::nullopt;
        }
        if (std::optional<Response> refusal = RefuseBadValues(*found.answer, request)) {
            return refusal;
        }
        if (found.answer->status) {
            return MakeStatus(*found.answer->status, request.target);
        }
        std::string document = FillIn(*found.answer, found.channel);
        if (found.answer->search) {
            return AnswerSearch(*found.answer->search, document, request);
        }
        if (found.answer->paging) {
            document = MakePage(document, *found.answer->paging, request.body);
        }
        return Response{200, found.answer->contentType, std::move(document)};
    }

private:
    AnswerTable table_;
};

template <class Kind>
std::unique_ptr<Behaviour> Make(const Profile& profile)
{
    return std::make_unique<Kind>(profile);
}

// The first that knows a request answers it: what keeps state stands before the documents.
constexpr std::unique_ptr<Behaviour> (*kBehaviours[])(const Profile&) = {
    &Make<ChannelNumbers>, &MakeContentSearch, &MakeSettings,
    &MakeAlarmHost,        &MakeSearchTasks,   &Make<Documents>,
};

}  // namespace

std::vector<std::unique_ptr<Behaviour>> MakeBehaviours(const Profile& profile)
{
    std::vector<std::unique_ptr<Behaviour>> behaviours;
    for (const auto make : kBehaviours) {
        if (std::unique_ptr<Behaviour> behaviour = make(profile)) {
            behaviours.push_back(std::move(behaviour));
        }
    }
    return behaviours;
}

std::optional<Response> RefuseMalformed(const ParsedRequest& request)
{
    if (request.document.form != RequestDocument::Form::Malformed) {
        return std::nullopt;
    }
    return MakeStatus(
        request.document.looksLikeJson ? Outcome::kBadJsonFormat : Outcome::kBadXmlFormat,
        request.target);
}

std::optional<Response> RefuseBadValues(const Answer& answer, const ParsedRequest& request)
{
    return KeepsLimits(answer.limits, request.body, request.document.form)
               ? std::nullopt
               : std::optional(MakeStatus(Outcome::kBadParameters, request.target));
}

std::string FillIn(const Answer& answer, int channel)
{
    constexpr std::string_view kChannel = "{channel}";
    if (!answer.namesChannel) {
        return answer.document;
    }
    const std::string number = std::to_string(channel);
    std::string out;
    size_t from = 0;
    for (size_t at = 0; (at = answer.document.find(kChannel, from)) != std::string::npos;
         from = at + kChannel.size()) {
        out.append(answer.document, from, at - from).append(number);
    }
    return out.append(answer.document, from);
}

}  // namespace Device
