// Devices made from profiles, embedded or read from a folder.
// SPDX-License-Identifier: Apache-2.0
#include "Device/DeviceModel.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>

#include "Device/Behaviour.h"
#include "Device/EmbeddedProfiles.h"
#include "Device/Profile.h"
#include "Device/hostile/HostileModel.h"

namespace Device
{
namespace
{

class ProfileModel : public DeviceModel
{
public:
    explicit ProfileModel(Profile profile)
        : profile_(std::move(profile)), behaviours_(MakeBehaviours(profile_))
    {
    }

    [[nodiscard]] std::string Name() const override { return profile_.name; }
    [[nodiscard]] std::string Description() const override { return profile_.description; }

    [[nodiscard]] bool CheckPassword(std::string_view user,
                                     std::string_view password) const override
    {
        const std::string* known = PasswordOf(user);
        return known != nullptr && *known == password;
    }

    [[nodiscard]] const std::string* PasswordOf(std::string_view user) const override
    {
        const auto found = profile_.users.find(user);
        return found == profile_.users.end() ? nullptr : &found->second;
    }

    [[nodiscard]] std::vector<std::string> UserNames() const override
    {
        std::vector<std::string> names(profile_.users.size());
        std::ranges::transform(profile_.users, names.begin(),
                               [](const auto& user) { return user.first; });
        return names;
    }

    [[nodiscard]] std::map<int, int> Channels() const override { return profile_.channels; }

    Response Handle(const Request& request) override
    {
        const ParsedRequest parsed(request);
        std::optional<Response> methodNotAllowed;
        for (const std::unique_ptr<Behaviour>& behaviour : behaviours_) {
            std::optional<Response> response = behaviour->Answer(parsed);
            if (response && response->status != Outcome::kMethodNotAllowed.httpStatus) {
                return *std::move(response);
            }
            if (response) {
                // Another behaviour may answer the same path with this method.
                methodNotAllowed = std::move(response);
            }
        }
        return methodNotAllowed ? *std::move(methodNotAllowed)
                                : MakeStatus(Outcome::kNotSupport, request.target);
    }

private:
    const Profile profile_;
    const std::vector<std::unique_ptr<Behaviour>> behaviours_;
};

ProfileFiles FilesOf(const EmbeddedProfile& profile)
{
    return [&profile](const std::string& name) -> std::optional<std::string> {
        const auto file = std::ranges::find(profile.files, name, &EmbeddedFile::name);
        if (file == profile.files.end()) {
            return std::nullopt;
        }
        std::string text;
        for (const std::string_view piece : file->pieces) {
            text += piece;
        }
        return text;
    };
}

ProfileFiles FilesOf(const std::filesystem::path& folder)
{
    return [folder](const std::string& name) -> std::optional<std::string> {
        std::ifstream file(folder / name, std::ios::binary);
        if (!file || std::filesystem::is_directory(folder / name)) {
            return std::nullopt;
        }
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
}

std::string Listed(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text.empty() ? "none" : text;
}

}  // namespace

std::shared_ptr<DeviceModel> DeviceModel::Load(const std::string& profile, std::string& error)
{
    if (IsHostileProfile(profile)) {
        return MakeHostileModel(profile, error);
    }
    ProfileFiles files;
    if (profile.find('/') != std::string::npos) {
        files = FilesOf(std::filesystem::path(profile));
    } else {
        const auto embedded = EmbeddedProfiles();
        const auto found = std::ranges::find(embedded, profile, &EmbeddedProfile::name);
        if (found == embedded.end()) {
            error = "there is no profile \"" + profile + "\"; there are: " + Listed(ProfileNames());
            return nullptr;
        }
        files = FilesOf(**found);
    }
    auto model = Load(files, error);
    if (!model) {
        error = "profile \"" + profile + "\": " + error;
    }
    return model;
}

std::shared_ptr<DeviceModel> DeviceModel::Load(const ProfileFiles& files, std::string& error)
{
    Profile read;
    if (!ReadProfile(files, read, error)) {
        return nullptr;
    }
    try {
        return std::make_shared<ProfileModel>(std::move(read));
    } catch (const StateFault& fault) {
        error = fault.what();
        return nullptr;
    }
}

std::vector<std::string> DeviceModel::ProfileNames()
{
    std::vector<std::string> names;
    for (const EmbeddedProfile* profile : EmbeddedProfiles()) {
        names.emplace_back(profile->name);
    }
    names.emplace_back("hostile");
    std::ranges::sort(names);
    return names;
}

}  // namespace Device
