// The simulated device: what it answers to each request, and the state it keeps between them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Device
{

/// One request as it arrives at a device, whichever way it came.
struct Request
{
    std::string method;  ///< "GET", "PUT", "POST" or "DELETE"
    std::string target;  ///< path and query, percent-encoding already undone in the path
    std::string body;
};

/// A body that is made while it is read: it may be larger than anyone wants to hold.
class BodySource
{
public:
    BodySource() = default;
    BodySource(const BodySource&) = delete;
    BodySource& operator=(const BodySource&) = delete;
    virtual ~BodySource() = default;

    /// How many bytes there are in all.
    [[nodiscard]] virtual std::uint64_t Size() const = 0;
    /// Writes the next bytes, fewer than `count` only at the end; returns how many.
    virtual size_t Read(char* to, size_t count) = 0;
};

/// What the device answers.
struct Response
{
    int status = 200;         ///< HTTP status; 4xx and 5xx are refusals
    std::string contentType;  ///< "application/xml" or "application/json"
    std::string body = {};
    std::shared_ptr<BodySource> source =
        nullptr;  ///< the body instead of `body`, when there is one
};

/// Reads one file of a profile by its name; nothing when there is none.
using ProfileFiles = std::function<std::optional<std::string>(const std::string& name)>;

/// A device of one profile. All members may be called from any thread.
class DeviceModel
{
public:
    /// Loads an embedded profile by name ("dome"), or a profile folder by path (anything with '/').
    /// Returns null and a sentence in `error` when there is no such profile or it is malformed.
    static std::shared_ptr<DeviceModel> Load(const std::string& profile, std::string& error);

    /// Likewise a profile whose files are wherever `files` has them.
    static std::shared_ptr<DeviceModel> Load(const ProfileFiles& files, std::string& error);

    /// Names of the embedded profiles, sorted.
    static std::vector<std::string> ProfileNames();

    virtual ~DeviceModel() = default;
    DeviceModel(const DeviceModel&) = delete;
    DeviceModel& operator=(const DeviceModel&) = delete;

    /// Profile name and the one-line description of its manifest.
    [[nodiscard]] virtual std::string Name() const = 0;
    [[nodiscard]] virtual std::string Description() const = 0;

    /// Whether the credentials are those of a user of the device.
    [[nodiscard]] virtual bool CheckPassword(std::string_view user,
                                             std::string_view password) const = 0;
    /// The password of a user, for digest authentication; null when there is no such user.
    [[nodiscard]] virtual const std::string* PasswordOf(std::string_view user) const = 0;

    /// Names of the device's users, sorted.
    [[nodiscard]] virtual std::vector<std::string> UserNames() const { return {}; }
    /// The SDK's channel numbers and the protocol's number of each.
    [[nodiscard]] virtual std::map<int, int> Channels() const { return {}; }

    /// Answers one request. Beside the protocol's own "/TARN/" paths it serves the SDK's:
    /// POST /TARN/SDK/deviceAbility/<code> (request XML as body),
    /// GET /TARN/SDK/stdAbility/<code>?channel=<n>, and
    /// GET /TARN/SDK/channels/<n>?mode=<m> (the protocol's channel number as plain decimal text).
    virtual Response Handle(const Request& request) = 0;

protected:
    DeviceModel() = default;
};

}  // namespace Device
