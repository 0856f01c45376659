// All behaviours of a device, and the two that every device has: channel numbers and documents.
// SPDX-License-Identifier: Apache-2.0
#include "Device/Behaviours.h"

#include "Device/Settings.h"
#include "Device/alarmhost/AlarmHost.h"
#include "Device/document/Text.h"
#include "Device/manifest/AnswerTable.h"
#include "Device/search/ContentSearch.h"
#include "Device/search/DocumentPages.h"
#include "Device/search/JsonSearch.h"
#include "Device/search/SearchTasks.h"

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
            return MakeMethodNotAllowed(request.target, {"GET"});
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

// The documents of the profile.
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
            return AnswerTable::Refuse(found, request);
        }
        const Device::Answer& answer = *found.answer;
        if (std::optional<Response> refusal = RefuseBadValues(answer.limits, request)) {
            return refusal;
        }
        if (answer.status) {
            return MakeStatus(*answer.status, request.target);
        }
        std::string document = answer.DocumentFor(found.channel);
        if (answer.search) {
            return AnswerSearch(*answer.search, document, request);
        }
        if (answer.paging) {
            document = MakePage(document, *answer.paging, request.body);
        }
        return Response{200, answer.contentType, std::move(document)};
    }

private:
    AnswerTable table_;
};

template <class Kind>
std::unique_ptr<Behaviour> Make(const Profile& profile)
{
    return std::make_unique<Kind>(profile);
}

// The first behaviour that knows a request answers it, so those with state precede the documents.
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

}  // namespace Device
