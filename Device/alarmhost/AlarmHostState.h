// The state of an alarm host: its equipment and its log.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include <json/value.h>

#include "Device/message/StatusDocument.h"
#include "Device/search/SearchPage.h"

namespace Device
{

/// The result of a command.
struct Verdict
{
    const Status* outcome = &Outcome::kOk;
    std::string message;  ///< why it failed

    [[nodiscard]] bool Ok() const { return outcome == &Outcome::kOk; }
};

/// The kinds of equipment; the host has a table of each.
enum class Equipment
{
    SubSystems,
    Zones,
    Outputs,
    Sirens,
    Modules,
    Detectors,
};

/// The names of one kind of equipment in documents and paths.
struct EquipmentNames
{
    Equipment equipment;
    const char* start;       ///< member of the profile's document
    const char* item;        ///< key around each item
    const char* itemList;    ///< key of the list in status documents
    const char* configPath;  ///< last segment of the configuration's path
};

inline constexpr EquipmentNames kEquipment[] = {
    {Equipment::SubSystems, "subSystems", "SubSys", "SubSysList", "subSys"},
    {Equipment::Zones, "zones", "Zone", "ZoneList", "zones"},
    {Equipment::Outputs, "outputs", "Output", "OutputList", "outputs"},
    {Equipment::Sirens, "sirens", "Siren", "SirenList", "sirens"},
    {Equipment::Modules, "modules", "ExDev", "ExDevList", "exDev"},
    {Equipment::Detectors, "detectors", "DetectorStatus", "List", "detectors"},
};

/// The state of one host. Not locked.
class AlarmHostState
{
public:
    /// Starts from the profile's document. Throws StateFault.
    explicit AlarmHostState(const Json::Value& start);

    Verdict Arm(int subSystem, const std::string& way);
    Verdict Disarm(int subSystem);
    Verdict ClearAlarm(int subSystem);
    /// Takes a zone out of supervision, or back into it.
    Verdict Bypass(int zone, bool bypassed);
    /// Switches an output or a siren.
    Verdict Switch(const EquipmentNames& names, int id, const std::string& position);
    /// Gives a fire detector a command: "silence", "reset" or "selfTest".
    Verdict CommandDetector(int detector, const std::string& command);
    Verdict CommandDetector(int channel, int detectorOfChannel, const std::string& command);
    /// Opens or closes a zone, which may raise an alarm.
    Verdict MoveZone(int zone, bool open);

    /// The configuration of all items, each under the item's key.
    [[nodiscard]] Json::Value Configuration(const EquipmentNames& names) const;
    /// The configuration of one item, or null.
    [[nodiscard]] Json::Value Configuration(const EquipmentNames& names, int id) const;
    /// Sets the members in `changes`, which must already exist and have the same type.
    Verdict Configure(const EquipmentNames& names, int id, const Json::Value& changes);

    /// The state of all items, each under the item's key.
    [[nodiscard]] Json::Value StatusList(const EquipmentNames& names) const;

    /// The log entries in the wanted time spans.
    [[nodiscard]] std::vector<Json::Value> FindLog(const SearchDemand& demand) const;

private:
    struct Item
    {
        Json::Value config;  ///< what a client may read and change
        Json::Value status;  ///< what it does at present
    };
    using Items = std::map<int, Item>;

    struct LogEntry
    {
        std::int64_t time = 0;
        Json::Value descriptor;
    };

    void ReadItems(const Json::Value& start, const EquipmentNames& names);
    void ReadLog(const Json::Value& start);
    [[nodiscard]] Items& ItemsOf(Equipment equipment) { return items_[equipment]; }
    [[nodiscard]] const Items& ItemsOf(Equipment equipment) const;
    Item* Find(Equipment equipment, int id);
    [[nodiscard]] Json::Value StatusOf(const EquipmentNames& names, const Item& item) const;
    [[nodiscard]] std::string ArmedWay(int subSystem) const;
    [[nodiscard]] static bool InWay(const Item& zone, const std::string& way);
    [[nodiscard]] bool AnyAlarm(const int* subSystem) const;
    void LinkZones(int subSystem, const Json::Value& zones);
    void SwitchSirens(const char* position);
    /// Adds an entry to the log and returns the verdict.
    Verdict Log(const char* type, const std::string& event, const std::string& object,
                Verdict verdict);

    std::map<Equipment, Items> items_;
    std::vector<std::string> ways_;
    std::vector<std::string> detectorCommands_;
    std::deque<LogEntry> log_;
    unsigned int nextEntry_ = 1;
    std::int64_t startTime_ = 0;
    std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
};

}  // namespace Device
