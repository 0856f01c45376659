// Settings: documents that a client reads, replaces and reads back.
// SPDX-License-Identifier: Apache-2.0
#include "Device/Settings.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#include "Device/Limits.h"
#include "Device/manifest/AnswerTable.h"
#include "Device/search/DocumentPages.h"

namespace Device
{
namespace
{

class Settings : public Behaviour
{
public:
    explicit Settings(const Profile& profile) : table_(profile, true) {}

    std::optional<Response> Answer(const ParsedRequest& request) override
    {
        const AnswerTable::Found found = table_.Find(request);
        if (found.answer == nullptr) {
            return AnswerTable::Refuse(found, request);
        }
        return request.method == "GET" ? Read(found) : Replace(found, request);
    }

private:
    Response Read(const AnswerTable::Found& found)
    {
        const std::lock_guard lock(mutex_);
        const auto stored = stored_.find({found.answer, found.channel});
        return {
            200, found.answer->contentType,
            stored != stored_.end() ? stored->second : found.answer->DocumentFor(found.channel)};
    }

    Response Replace(const AnswerTable::Found& found, const ParsedRequest& request)
    {
        using Form = RequestDocument::Form;
        const Device::Answer& answer = *found.answer;
        if (request.document.form != (answer.json ? Form::Json : Form::Xml)) {
            return MakeStatus(answer.json ? Outcome::kBadJsonFormat : Outcome::kBadXmlFormat,
                              request.target);
        }
        const std::vector<std::string>& roots = request.document.roots;
        const auto known = [&](const std::string& root) {
            return std::ranges::find(answer.roots, root) != answer.roots.end();
        };
        if (roots.empty() || !std::ranges::all_of(roots, known)) {
            return MakeStatus(answer.json ? Outcome::kBadJsonContent : Outcome::kBadXmlContent,
                              request.target);
        }
        if (std::optional<Response> refusal = RefuseBadValues(answer.limits, request)) {
            return *std::move(refusal);
        }
        return Store(found, request);
    }

    Response Store(const AnswerTable::Found& found, const ParsedRequest& request)
    {
        const Device::Answer& answer = *found.answer;
        std::string body(request.body);
        const std::lock_guard lock(mutex_);
        const std::pair key(&answer, found.channel);
        if (!answer.mergedItem.empty()) {
            const auto kept = stored_.find(key);
            body =
                MergeItems(kept != stored_.end() ? kept->second : answer.DocumentFor(found.channel),
                           body, answer.mergedItem, answer.mergedKey);
        }
        // New items would let a merged list grow with every request.
        if (body.size() > kMostBody) {
            return MakeStatus(Outcome::kTooLarge, request.target);
        }
        stored_.insert_or_assign(key, std::move(body));
        return MakeStatus(Outcome::kOk, request.target);
    }

    AnswerTable table_;
    std::mutex mutex_;
    std::map<std::pair<const Device::Answer*, int>, std::string> stored_;
};

}  // namespace

std::unique_ptr<Behaviour> MakeSettings(const Profile& profile)
{
    return std::make_unique<Settings>(profile);
}

}  // namespace Device
