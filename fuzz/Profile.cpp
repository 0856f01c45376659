// Fuzzes the files of a simulated device's profile.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/Profile.h"

#include <map>

#include "Device/DeviceModel.h"
#include "fuzz/Check.h"
#include "fuzz/Chunks.h"
#include "fuzz/Targets.h"

namespace Fuzz
{
namespace
{

using Device::DeviceModel;

/// The manifest, and one document of each kind for all files that it names.
Device::ProfileFiles FilesOf(const std::vector<std::string_view>& chunks)
{
    return [&chunks](const std::string& name, std::string&) -> std::optional<std::string> {
        const std::size_t chunk = name == "manifest.json"   ? 0
                                  : name.ends_with(".json") ? 1
                                  : name.ends_with(".xml")  ? 2
                                                            : 3;
        return chunk < chunks.size() ? std::optional(std::string(chunks[chunk])) : std::nullopt;
    };
}

std::string Replaced(std::string text, std::string_view what, const std::string& with)
{
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

/// Requests an answer of the profile for its first channel.
void CheckAnswer(DeviceModel& device, const Device::Profile& profile, const Device::Answer& answer,
                 const std::string& body)
{
    const auto channel =
        profile.channels.empty() ? std::pair<const int, int>(1, 1) : *profile.channels.begin();
    std::string target;
    for (const std::string& segment : answer.path) {
        target += "/" + segment;
    }
    target = Replaced(target, "{channel}", std::to_string(channel.second));
    target = Replaced(target, "{sdkChannel}", std::to_string(channel.first));
    for (const Device::Parameter& parameter : answer.parameters) {
        target += (target.find('?') == std::string::npos ? "?" : "&") + parameter.name + "=" +
                  parameter.value;
    }
    for (const char* method : {answer.method.c_str(), "GET", "PUT"}) {
        const auto response = device.Handle({method, target, body});
        Require(response.status >= 200 && response.status < 600, "a request is answered", target);
    }
}

}  // namespace

void Profile(const std::string& text)
{
    const std::vector<std::string_view> chunks = SplitChunks(text, 4);
    const Device::ProfileFiles files = FilesOf(chunks);
    std::string error;
    std::string sameError;
    Device::Profile profile;
    const bool read = Device::ReadProfile(files, profile, error);
    Require(read == error.empty(), "a message is set on failure only");
    const auto device = DeviceModel::Load(files, sameError);
    Require(read ? (device != nullptr) == sameError.empty() : sameError == error,
            "a profile is read the same way each time", error);
    if (device == nullptr) {
        return;
    }
    Require(device->Name() == profile.name && device->Channels() == profile.channels,
            "a device has the name and channels of its profile");
    const std::string body(chunks[chunks.size() > 1 ? 1 : 0]);
    for (const Device::Answer& answer : profile.answers) {
        CheckAnswer(*device, profile, answer, body);
    }
}

}  // namespace Fuzz
