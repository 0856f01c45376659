// A device of one profile.
// SPDX-License-Identifier: Apache-2.0
#include "Device/ProfileModel.h"

#include <algorithm>

#include "Device/Limits.h"

namespace Device
{

ProfileModel::ProfileModel(Profile profile)
    : profile_(std::move(profile)), behaviours_(MakeBehaviours(profile_))
{
}

bool ProfileModel::CheckPassword(std::string_view user, std::string_view password) const
{
    const std::string* known = PasswordOf(user);
    return known != nullptr && *known == password;
}

const std::string* ProfileModel::PasswordOf(std::string_view user) const
{
    const auto found = profile_.users.find(user);
    return found == profile_.users.end() ? nullptr : &found->second;
}

std::vector<std::string> ProfileModel::UserNames() const
{
    std::vector<std::string> names(profile_.users.size());
    std::ranges::transform(profile_.users, names.begin(),
                           [](const auto& user) { return user.first; });
    return names;
}

Response ProfileModel::Handle(const Request& request)
{
    if (request.body.size() > kMostBody) {
        return MakeStatus(Outcome::kTooLarge, request.target);
    }
    const ParsedRequest parsed(request);
    std::optional<Response> methodNotAllowed;
    for (const std::unique_ptr<Behaviour>& behaviour : behaviours_) {
        std::optional<Response> response = behaviour->Answer(parsed);
        if (response && response->status != Outcome::kMethodNotAllowed.httpStatus) {
            return *std::move(response);
        }
        if (response && methodNotAllowed) {
            methodNotAllowed->allowed.merge(response->allowed);
        } else if (response) {
            // Another behaviour may answer the same path with this method.
            methodNotAllowed = std::move(response);
        }
    }
    return methodNotAllowed ? *std::move(methodNotAllowed)
                            : MakeStatus(Outcome::kNotSupport, request.target);
}

}  // namespace Device
