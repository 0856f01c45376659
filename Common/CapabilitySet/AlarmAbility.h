// Infrared, wireless and call-for-help alarms of a channel. Queries.h describes the query.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/OptionTypes.h"

struct _xmlNode;

namespace CapabilitySet
{

/// What the three kinds of alarm have in common.
struct CAPABILITYSET_API ChannelAlarm : CBaseCapability
{
    bool enabled = false;        ///< the only option announced is "true"
    unsigned int alarmTime = 0;  ///< a count; the device defines its unit
    bool hasAlarmTime = false;   ///< `alarmTime` was announced
    std::vector<AlarmHandleType::HandleType> alarmHandleType;  ///< reactions the device offers

    ChannelAlarm() = default;
    explicit ChannelAlarm(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the element's children, starting at the first.
    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled, as::enabledFlag);
        field("alarmTime", r.alarmTime, as::Noted{r.hasAlarmTime});
        field("alarmHandleType", r.alarmHandleType, as::handleTypesOfLogin);
    }
};

/// Passive infrared motion alarm.
struct CAPABILITYSET_API PIRAlarm : ChannelAlarm
{
    using ChannelAlarm::ChannelAlarm;
};

/// Alarm of a wireless detector.
struct CAPABILITYSET_API WirelessAlarm : ChannelAlarm
{
    using ChannelAlarm::ChannelAlarm;
};

/// Call-for-help alarm.
struct CAPABILITYSET_API CallHelpAlarm : ChannelAlarm
{
    using ChannelAlarm::ChannelAlarm;
};

/// The alarms of one channel.
struct CAPABILITYSET_API channelEntry : CBaseCapability
{
    unsigned int channelID = 0;   ///< the protocol's number of the channel
    PIRAlarm pirAlarm;            ///< infrared motion alarm
    WirelessAlarm wirelessAlarm;  ///< alarm of a wireless detector
    CallHelpAlarm callHelpAlarm;  ///< call-for-help alarm

    channelEntry() = default;
    explicit channelEntry(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the element's children, starting at the first.
    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("channelID", r.channelID);
        field("PIRAlarm", r.pirAlarm);
        field("wirelessAlarm", r.wirelessAlarm);
        field("callHelpAlarm", r.callHelpAlarm);
    }
};

/// The alarm ability document, root "AlarmAbility".
struct CAPABILITYSET_API AlarmAbility : CBaseCapability
{
    static constexpr const char* kRoot = "AlarmAbility";

    std::vector<std::shared_ptr<channelEntry>> entries;  ///< one per channel

    AlarmAbility() = default;
    explicit AlarmAbility(const std::string& text) { Parse(text); }
    explicit AlarmAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document. Appends to `entries`.
    void Parse(const std::string& text);
    /// Reads the root element. Appends to `entries`.
    void Parse(_xmlNode* element);

    /// Device ability 10, AlarmAbility/channelID with the protocol's channel number. If the SDK
    /// cannot convert the channel, nothing is sent and `err` is the SDK's number.
    // Kept: one alarm query at a time; the login that completes handling options is process-wide.
    static bool GetAlarmAbility(AlarmAbility& out, unsigned int& err, const int userID,
                                const unsigned int channel);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("channelEntry", r.entries, as::repeated);
    }
};

}  // namespace CapabilitySet
