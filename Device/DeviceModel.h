// The simulated device: what it answers, and the state it keeps between requests.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Device/manifest/ProfileFiles.h"
#include "Device/message/Message.h"

namespace Device
{

/// A simulated device. All members may be called from any thread.
class DeviceModel
{
public:
    /// Loads an embedded profile by name ("dome"), or a profile folder by path (anything with '/').
    /// Returns null and sets `error` to a message if the profile does not exist or is malformed.
    static std::shared_ptr<DeviceModel> Load(const std::string& profile, std::string& error);

    /// Loads a profile from any source of files.
    static std::shared_ptr<DeviceModel> Load(const ProfileFiles& files, std::string& error);

    /// Names of the embedded profiles, sorted.
    static std::vector<std::string> ProfileNames();

    virtual ~DeviceModel() = default;
    DeviceModel(const DeviceModel&) = delete;
    DeviceModel& operator=(const DeviceModel&) = delete;

    /// The profile's name and its one-line description.
    [[nodiscard]] virtual std::string Name() const = 0;
    [[nodiscard]] virtual std::string Description() const = 0;

    /// Whether the device has a user with that password.
    [[nodiscard]] virtual bool CheckPassword(std::string_view user,
                                             std::string_view password) const = 0;
    /// A user's password, for digest authentication; null if there is no such user.
    [[nodiscard]] virtual const std::string* PasswordOf(std::string_view user) const = 0;

    /// Names of the device's users, sorted.
    [[nodiscard]] virtual std::vector<std::string> UserNames() const { return {}; }
    /// The SDK's channel numbers, each with the protocol's number of that channel.
    [[nodiscard]] virtual std::map<int, int> Channels() const { return {}; }

    /// Answers one request. Besides the protocol's own "/TARN/" paths there are those of the SDK:
    /// POST /TARN/SDK/deviceAbility/<code> (request XML as body),
    /// GET /TARN/SDK/stdAbility/<code>?channel=<n>, and
    /// GET /TARN/SDK/channels/<n>?mode=<m> (the protocol's channel number as decimal text).
    virtual Response Handle(const Request& request) = 0;

protected:
    DeviceModel() = default;
};

}  // namespace Device
