// Presets, patterns and patrols of a pan-tilt-zoom channel, and its auto-tracking switch.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"

struct _xmlNode;

namespace CapabilitySet
{

// The client fetches the lists itself and hands the answer's text to the records. A list is
// appended to, never cleared. A malformed text leaves a list as it was after one error line; a
// text with another root leaves it so silently.
//
// Clients rely on the order of steps of the readers of CVelTarnPTZPresetList,
// CVelTarnPTZPatternList and CVelTarnPTZPatrolList, in which the cursor moves on only after an item
// that has children: an item without any ("<PTZPreset/>") makes them search for ever. A caller that
// does not trust a device asks HasEmptyItem first. These three and CVelTarnPTZPatrol take every
// text for UTF-8, whatever it declares.

/// Whether a preset, pattern or patrol list holds an item without children, on which the readers
/// named above would never end. False for a text that is no such list. Never throws; a text that
/// cannot be judged for want of memory counts as one with an empty item.
CAPABILITYSET_API bool HasEmptyItem(const std::string& text);

/// One preset of the preset configuration list.
struct CAPABILITYSET_API CPTZPresetCfg : CBaseCapability
{
    bool enabled = false;
    std::string id;
    std::string presetName;

    CPTZPresetCfg() = default;
    explicit CPTZPresetCfg(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the item's elements from its first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
        field("id", r.id);
        field("presetName", r.presetName);
    }
};

/// The preset configuration list, root "PTZPresetList". An item without children is a preset of
/// defaults.
struct CAPABILITYSET_API CPTZPresetListCfg
{
    static constexpr const char* kRoot = "PTZPresetList";

    std::vector<CPTZPresetCfg> presets;

    CPTZPresetListCfg() = default;
    explicit CPTZPresetListCfg(const std::string& text) { Parse(text); }

    void Parse(const std::string& text);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PTZPreset", r.presets, as::repeated);
    }
};

/// One preset with its absolute position.
struct CAPABILITYSET_API CVelTarnPTZPresetInfo
{
    bool enabled = false;
    std::string id;
    std::string presetName;  ///< for the client's use, never read from a document
    int elevation = 0;       ///< tenths of a degree
    int azimuth = 0;         ///< tenths of a degree
    int absoluteZoom = 0;    ///< tenths

    CVelTarnPTZPresetInfo() = default;
    explicit CVelTarnPTZPresetInfo(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the item's elements from its first child on; the position stands in a nested
    /// "AbsoluteHigh". Null reads nothing.
    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
        field("id", r.id);
        field("elevation", r.elevation);
        field("azimuth", r.azimuth);
        field("absoluteZoom", r.absoluteZoom);
    }
};

/// The presets of a channel with their positions, root "PTZPresetList".
struct CAPABILITYSET_API CVelTarnPTZPresetList
{
    static constexpr const char* kRoot = "PTZPresetList";

    std::vector<CVelTarnPTZPresetInfo> presets;

    CVelTarnPTZPresetList() = default;
    explicit CVelTarnPTZPresetList(const std::string& text) { Parse(text); }

    void Parse(const std::string& text);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PTZPreset", r.presets, as::repeated);
    }
};

/// One recorded movement.
struct CAPABILITYSET_API CVelTarnPTZPattern
{
    bool enabled = false;
    int id = 0;
    int space = 0;  ///< memory that is left for it, percent

    CVelTarnPTZPattern() = default;
    explicit CVelTarnPTZPattern(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
        field("id", r.id);
        field("space", r.space);
    }
};

/// The patterns of a channel, root "PTZPatternList".
struct CAPABILITYSET_API CVelTarnPTZPatternList
{
    static constexpr const char* kRoot = "PTZPatternList";

    std::vector<CVelTarnPTZPattern> patterns;

    CVelTarnPTZPatternList() = default;
    explicit CVelTarnPTZPatternList(const std::string& text) { Parse(text); }

    void Parse(const std::string& text);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PTZPattern", r.patterns, as::repeated);
    }
};

/// One step of a patrol.
struct CAPABILITYSET_API CVelTarnPTZPatrolPresetInfo
{
    std::string presetID;
    std::string seqSpeed;
    int delay = 0;  ///< milliseconds at the preset

    CVelTarnPTZPatrolPresetInfo() = default;
    explicit CVelTarnPTZPatrolPresetInfo(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("presetID", r.presetID);
        field("seqSpeed", r.seqSpeed);
        field("delay", r.delay);
    }
};

/// A sequence of presets.
struct CAPABILITYSET_API CVelTarnPTZPatrol
{
    static constexpr const char* kRoot = "PTZPatrol";

    bool enabled = false;
    std::string id;
    std::vector<CVelTarnPTZPatrolPresetInfo> steps;

    CVelTarnPTZPatrol() = default;
    explicit CVelTarnPTZPatrol(const std::string& text) { Parse(text); }
    explicit CVelTarnPTZPatrol(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads a whole document, root "PTZPatrol".
    void Parse(const std::string& text);
    void Parse(_xmlNode* firstChild);

    static constexpr bool kParseTakesFirstChild = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
        field("id", r.id);
        field("PatrolSequenceList", r.steps, as::Items{"PatrolSequence"});
    }
};

/// The patrols of a channel, root "PTZPatrolList".
struct CAPABILITYSET_API CVelTarnPTZPatrolList
{
    static constexpr const char* kRoot = "PTZPatrolList";

    std::vector<CVelTarnPTZPatrol> patrols;

    CVelTarnPTZPatrolList() = default;
    explicit CVelTarnPTZPatrolList(const std::string& text) { Parse(text); }

    void Parse(const std::string& text);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PTZPatrol", r.patrols, as::repeated);
    }
};

/// Whether a channel follows moving targets by itself.
struct CAPABILITYSET_API CVelTarnPTZAutoTracking
{
    bool enabled = false;

    CVelTarnPTZAutoTracking() = default;
    explicit CVelTarnPTZAutoTracking(const std::string& text) { Parse(text); }

    /// Reads a JSON answer. False, with the flag left alone, when it holds no readable
    /// "MoveAutoTracking". Never throws.
    bool Parse(const std::string& text);

    /// Switches tracking on or off. Failures are told by false and log lines alone; the channel is
    /// the SDK's number.
    static bool SetAutoTrackingState(const int userID, const int channel, bool enable);
    /// Reads the switch into `out`, which is left alone on failure.
    static bool GetAutoTrackingState(const int userID, const int channel,
                                     CVelTarnPTZAutoTracking& out);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
    }
};

}  // namespace CapabilitySet
