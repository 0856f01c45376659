// Makes devices from profiles, embedded or read from a folder.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "Device/ProfileModel.h"
#include "Device/hostile/HostileModel.h"

namespace Device
{
namespace
{

std::string Listed(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text.empty() ? "none" : text;
}

std::vector<std::shared_ptr<DeviceModel>> EmbeddedModels()
{
    std::vector<std::shared_ptr<DeviceModel>> models;
    for (const EmbeddedProfile* profile : EmbeddedProfiles()) {
        std::string error;
        if (auto model = DeviceModel::Load(FilesOf(*profile), error)) {
            models.push_back(std::move(model));
        }
    }
    return models;
}

}  // namespace

std::shared_ptr<DeviceModel> DeviceModel::Load(const std::string& profile, std::string& error)
{
    if (IsHostileProfile(profile)) {
        return MakeHostileModel(profile, EmbeddedModels(), error);
    }
    ProfileFiles files;
    if (profile.find('/') != std::string::npos) {
        files = FilesOfFolder(profile);
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
