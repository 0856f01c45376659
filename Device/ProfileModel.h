// A device of one profile.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Device/Behaviours.h"
#include "Device/DeviceModel.h"

namespace Device
{

/// Asks its behaviours in turn.
class ProfileModel : public DeviceModel
{
public:
    /// Throws StateFault.
    explicit ProfileModel(Profile profile);

    [[nodiscard]] std::string Name() const override { return profile_.name; }
    [[nodiscard]] std::string Description() const override { return profile_.description; }
    [[nodiscard]] bool CheckPassword(std::string_view user,
                                     std::string_view password) const override;
    [[nodiscard]] const std::string* PasswordOf(std::string_view user) const override;
    [[nodiscard]] std::vector<std::string> UserNames() const override;
    [[nodiscard]] std::map<int, int> Channels() const override { return profile_.channels; }
    Response Handle(const Request& request) override;

private:
    const Profile profile_;
    const std::vector<std::unique_ptr<Behaviour>> behaviours_;
};

}  // namespace Device
