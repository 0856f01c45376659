// The hostile device spoils the answers of sound ones.
// SPDX-License-Identifier: Apache-2.0
#include "Device/hostile/HostileModel.h"

#include <atomic>
#include <utility>
#include <vector>

#include "Device/hostile/HostileDocuments.h"
#include "Device/message/ParsedRequest.h"
#include "Device/message/StatusDocument.h"

namespace Device
{
namespace
{

constexpr std::string_view kName = "hostile";

// The roots of requests that no embedded profile answers.
constexpr std::pair<std::string_view, std::string_view> kRoots[] = {
    {"/TARN/SDK/deviceAbility/1", "BasicCapability"},
    {"/TARN/SDK/deviceAbility/609", "DecoderAbility"},
    {"/TARN/SDK/stdAbility/2222", "AlarmForHelpAbility"},
    {"/TARN/SDK/stdAbility/3500", "SmartCap"},
    {"/TARN/SDK/stdAbility/3501", "EventTriggerCap"},
    {"/TARN/SDK/stdAbility/3634", "ThermalCap"},
    {"/TARN/SDK/stdAbility/4360", "ChannelInfoAbility"},
    {"/TARN/System/capabilities", "DeviceCap"},
    {"/TARN/ContentMgmt/Cluster/capabilities", "ClusterCapability"},
};

std::string GuessRoot(const ParsedRequest& request)
{
    if (request.document.form == RequestDocument::Form::Xml) {
        return request.document.roots.front();
    }
    const std::string path = request.target.substr(0, request.target.find('?'));
    for (const auto& [known, root] : kRoots) {
        if (path == known) {
            return std::string(root);
        }
    }
    return "ResponseStatus";
}

std::string RootOf(const Response& sample)
{
    const bool json = sample.contentType == "application/json";
    const RequestDocument document = ReadRequestDocument(sample.body, json);
    return document.roots.empty() ? std::string() : document.roots.front();
}

class HostileModel : public DeviceModel
{
public:
    HostileModel(const HostileCase* fixed, std::vector<std::shared_ptr<DeviceModel>> sound)
        : fixed_(fixed), sound_(std::move(sound))
    {
    }

    [[nodiscard]] std::string Name() const override
    {
        return fixed_ == nullptr ? std::string(kName)
                                 : std::string(kName) + ":" + std::string(fixed_->name);
    }

    [[nodiscard]] std::string Description() const override
    {
        return "Broken device: " + (fixed_ == nullptr ? "every answer spoiled in a different way"
                                                      : std::string(fixed_->description));
    }

    [[nodiscard]] bool CheckPassword(std::string_view user,
                                     std::string_view password) const override
    {
        const std::string* known = PasswordOf(user);
        return known != nullptr && *known == password;
    }

    [[nodiscard]] const std::string* PasswordOf(std::string_view user) const override
    {
        static const std::string password = "hostile-1234";
        return user == "admin" ? &password : nullptr;
    }

    [[nodiscard]] std::vector<std::string> UserNames() const override { return {"admin"}; }

    Response Handle(const Request& request) override
    {
        const ParsedRequest parsed(request);
        Response sample = FindSound(request);
        // Channel numbers stay correct, so that requests that need one get an answer.
        if (parsed.path.size() == 4 && parsed.path[2] == "channels" && parsed.path[1] == "SDK") {
            return sample.status == 200 ? sample : Response{200, "text/plain", parsed.path[3]};
        }
        const std::span<const HostileCase> cases = HostileCases();
        const HostileCase& hostile =
            fixed_ != nullptr ? *fixed_ : cases[next_.fetch_add(1) % cases.size()];
        std::string root = sample.status == 200 ? RootOf(sample) : std::string();
        if (root.empty()) {
            root = GuessRoot(parsed);
            sample = {200, WantsJson(request.target) ? "application/json" : "application/xml", ""};
        }
        sample.body = sample.contentType == "application/json"
                          ? MakeHostileJson(hostile, root, sample.body)
                          : MakeHostileXml(hostile, root, sample.body);
        return sample;
    }

private:
    [[nodiscard]] Response FindSound(const Request& request) const
    {
        for (const std::shared_ptr<DeviceModel>& model : sound_) {
            Response response = model->Handle(request);
            if (response.status == 200) {
                return response;
            }
        }
        return {404, "", ""};
    }

    const HostileCase* const fixed_;
    const std::vector<std::shared_ptr<DeviceModel>> sound_;
    std::atomic<size_t> next_ = 0;
};

}  // namespace

bool IsHostileProfile(const std::string& profile)
{
    return profile == kName || profile.starts_with("hostile:");
}

std::shared_ptr<DeviceModel> MakeHostileModel(const std::string& profile,
                                              std::vector<std::shared_ptr<DeviceModel>> sound,
                                              std::string& error)
{
    const HostileCase* fixed = nullptr;
    if (const size_t colon = profile.find(':'); colon != std::string::npos) {
        fixed = FindHostileCase(std::string_view(profile).substr(colon + 1));
        if (fixed == nullptr) {
            error = "there is no hostile case \"" + profile.substr(colon + 1) + "\"; there are:";
            for (const HostileCase& known : HostileCases()) {
                error += ' ' + std::string(known.name);
            }
            return nullptr;
        }
    }
    return std::make_shared<HostileModel>(fixed, std::move(sound));
}

}  // namespace Device
