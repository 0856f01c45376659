// An alarm host: answers the requests that command it and those that read its state.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "Device/Behaviour.h"
#include "Device/alarmhost/AlarmHostState.h"
#include "Device/manifest/Profile.h"
#include "Device/message/Routes.h"

namespace Device
{

/// Requests are handled one at a time.
class AlarmHost : public Behaviour
{
public:
    /// Starts from the profile's document. Throws StateFault.
    explicit AlarmHost(const Json::Value& start) : start_(start), state_(start) {}

    std::optional<Response> Answer(const ParsedRequest& request) override;

private:
    // Does something to one item; `entry` is the item's part of the request.
    using Command = std::function<Verdict(AlarmHostState& state, int id, const Json::Value& entry)>;

    static Verdict Arm(AlarmHostState& state, int id, const Json::Value& entry);
    static Verdict Disarm(AlarmHostState& state, int id, const Json::Value& entry);
    static Verdict ClearAlarm(AlarmHostState& state, int id, const Json::Value& entry);
    static Verdict Bypass(AlarmHostState& state, int id, const Json::Value& entry);
    static Verdict Recover(AlarmHostState& state, int id, const Json::Value& entry);

    static Response Reply(const Call& call, const Verdict& verdict);
    Response Single(const Call& call, const Command& command, const Json::Value& entry = {});
    Response Batch(const Call& call, const std::vector<Json::Value>& entries,
                   const Command& command);

    template <auto command>
    Response One(const Call& call);
    template <auto command>
    Response SubSystems(const Call& call);
    template <auto command>
    Response Zones(const Call& call);
    template <Equipment equipment>
    Response Switches(const Call& call);
    template <Equipment equipment>
    Response ReadStatus(const Call& call);
    Response ArmOne(const Call& call);
    Response Switch(const Call& call, const EquipmentNames& names);
    Response CommandDetector(const Call& call);
    Response MoveZone(const Call& call);
    Response ReadConfiguration(const Call& call);
    Response WriteConfiguration(const Call& call);
    [[nodiscard]] Response Read(const EquipmentNames& names) const;
    Response ReadHost(const Call& call);
    Response SearchLog(const Call& call);
    Response ControlCapability(const Call& call);
    Response DetectorCapability(const Call& call);
    [[nodiscard]] Response Capability(const char* key) const;

    static const Route<AlarmHost> kRoutes[];

    const Json::Value start_;
    std::mutex mutex_;
    AlarmHostState state_;
};

/// Returns null if the profile is not that of an alarm host. Throws StateFault.
std::unique_ptr<Behaviour> MakeAlarmHost(const Profile& profile);

}  // namespace Device
