// What a channel's wireless, infrared and call-for-help alarms can do, and the query for it.
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

// Members bear the names of their elements. The nested records take the first child of their
// element, not the element itself.

/// What the three kinds of alarm have in common.
struct CAPABILITYSET_API ChannelAlarm : CBaseCapability
{
    bool enabled = false;        ///< the one option announced is "true"
    unsigned int alarmTime = 0;  ///< seconds
    bool hasAlarmTime = false;   ///< alarmTime was announced
    std::vector<AlarmHandleType::HandleType> alarmHandleType;

    ChannelAlarm() = default;
    explicit ChannelAlarm(_xmlNode* firstChild) { Parse(firstChild); }

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

/// Infrared motion alarm.
struct CAPABILITYSET_API PIRAlarm : ChannelAlarm
{
    using ChannelAlarm::ChannelAlarm;
};

/// Alarm of a wireless detector.
struct CAPABILITYSET_API WirelessAlarm : ChannelAlarm
{
    using ChannelAlarm::ChannelAlarm;
};

/// Call for help.
struct CAPABILITYSET_API CallHelpAlarm : ChannelAlarm
{
    using ChannelAlarm::ChannelAlarm;
};

/// The alarms of one channel.
struct CAPABILITYSET_API channelEntry : CBaseCapability
{
    unsigned int channelID = 0;
    PIRAlarm pirAlarm;
    WirelessAlarm wirelessAlarm;
    CallHelpAlarm callHelpAlarm;

    channelEntry() = default;
    explicit channelEntry(_xmlNode* firstChild) { Parse(firstChild); }

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

/// The alarm ability document.
struct CAPABILITYSET_API AlarmAbility : CBaseCapability
{
    static constexpr const char* kRoot = "AlarmAbility";

    std::vector<std::shared_ptr<channelEntry>> entries;

    AlarmAbility() = default;
    explicit AlarmAbility(const std::string& text) { Parse(text); }
    explicit AlarmAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document; entries are appended to those already there.
    void Parse(const std::string& text);
    void Parse(_xmlNode* element);

    /// Asks for a channel by the SDK's number. A channel that the SDK cannot convert is a failure
    /// before anything is sent. One device's alarm ability is asked for at a time: the handling
    /// options of the answer are completed from the device's basic capability, by a login that is
    /// kept once for the process.
    static bool GetAlarmAbility(AlarmAbility& out, unsigned int& err, const int userID,
                                const unsigned int channel);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("channelEntry", r.entries, as::repeated);
    }
};

}  // namespace CapabilitySet
