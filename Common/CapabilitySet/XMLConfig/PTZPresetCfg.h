// Presets, patterns and patrols of a PTZ channel, and its auto-tracking switch.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"

struct _xmlNode;

namespace CapabilitySet
{

// The client fetches the lists itself and passes their text to the records. Parse appends to a
// list. A malformed text, or one with another root, leaves the list as it was; only the former is
// logged. CVelTarnPTZPresetList, CVelTarnPTZPatternList, CVelTarnPTZPatrolList and
// CVelTarnPTZPatrol read every text as UTF-8, whatever encoding it declares.
//
// Kept: the readers of the first three never return if an item has no children; clients rely on it.
// Call HasEmptyItem first if the device is not trusted.

/// Whether a preset, pattern or patrol list has an item without children, so that reading it would
/// never end. False for any other text; true if memory runs out. Never throws.
CAPABILITYSET_API bool HasEmptyItem(const std::string& text);

/// One preset of the preset configuration list.
struct CAPABILITYSET_API CPTZPresetCfg : CBaseCapability
{
    bool enabled = false;    ///< the preset is set
    std::string id;          ///< preset number, as text
    std::string presetName;  ///< name shown to users

    CPTZPresetCfg() = default;
    explicit CPTZPresetCfg(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the item's children, starting at the first.
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

/// The preset configuration list, root "PTZPresetList". An item without children becomes a preset
/// with default values.
struct CAPABILITYSET_API CPTZPresetListCfg
{
    static constexpr const char* kRoot = "PTZPresetList";

    std::vector<CPTZPresetCfg> presets;  ///< presets, in document order

    CPTZPresetListCfg() = default;
    explicit CPTZPresetListCfg(const std::string& text) { Parse(text); }

    /// Appends the items of a document.
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
    bool enabled = false;    ///< the preset is set
    std::string id;          ///< preset number, as text
    std::string presetName;  ///< for the client's use, never read from a document
    int elevation = 0;       ///< tilt, tenths of a degree
    int azimuth = 0;         ///< pan, tenths of a degree
    int absoluteZoom = 0;    ///< zoom, tenths

    CVelTarnPTZPresetInfo() = default;
    explicit CVelTarnPTZPresetInfo(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the item's children, starting at the first; the position is in "AbsoluteHigh".
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

    std::vector<CVelTarnPTZPresetInfo> presets;  ///< presets, in document order

    CVelTarnPTZPresetList() = default;
    explicit CVelTarnPTZPresetList(const std::string& text) { Parse(text); }

    /// Appends the items of a document.
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
    bool enabled = false;  ///< the pattern is set
    int id = 0;            ///< pattern number
    int space = 0;         ///< recording space, percent

    CVelTarnPTZPattern() = default;
    explicit CVelTarnPTZPattern(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the item's children, starting at the first.
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

    std::vector<CVelTarnPTZPattern> patterns;  ///< patterns, in document order

    CVelTarnPTZPatternList() = default;
    explicit CVelTarnPTZPatternList(const std::string& text) { Parse(text); }

    /// Appends the items of a document.
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
    std::string presetID;  ///< number of the preset, as text
    std::string seqSpeed;  ///< speed of the move, as the device defines it
    int delay = 0;         ///< stay at the preset; the device defines the unit

    CVelTarnPTZPatrolPresetInfo() = default;
    explicit CVelTarnPTZPatrolPresetInfo(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the item's children, starting at the first.
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

/// A sequence of presets, root "PTZPatrol".
struct CAPABILITYSET_API CVelTarnPTZPatrol
{
    static constexpr const char* kRoot = "PTZPatrol";

    bool enabled = false;                            ///< the patrol is set
    std::string id;                                  ///< patrol number, as text
    std::vector<CVelTarnPTZPatrolPresetInfo> steps;  ///< "PatrolSequenceList", in order

    CVelTarnPTZPatrol() = default;
    explicit CVelTarnPTZPatrol(const std::string& text) { Parse(text); }
    explicit CVelTarnPTZPatrol(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads a whole document. Appends to `steps`.
    void Parse(const std::string& text);
    /// Reads the item's children, starting at the first.
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

    std::vector<CVelTarnPTZPatrol> patrols;  ///< patrols, in document order

    CVelTarnPTZPatrolList() = default;
    explicit CVelTarnPTZPatrolList(const std::string& text) { Parse(text); }

    /// Appends the items of a document.
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
    bool enabled = false;  ///< auto-tracking is on

    CVelTarnPTZAutoTracking() = default;
    explicit CVelTarnPTZAutoTracking(const std::string& text) { Parse(text); }

    /// Reads a JSON answer. False, with the flag unchanged, if it has no readable
    /// "MoveAutoTracking". Never throws.
    bool Parse(const std::string& text);

    /// PUT /TARN/PTZCtrl/channels/{channel}/moveAutoTracking?format=json, with the switch as body.
    /// Failures are reported by false and log lines only.
    static bool SetAutoTrackingState(const int userID, const int channel, bool enable);
    /// GET /TARN/PTZCtrl/channels/{channel}/moveAutoTracking?format=json. Leaves `out` unchanged on
    /// failure, which is reported as above.
    static bool GetAutoTrackingState(const int userID, const int channel,
                                     CVelTarnPTZAutoTracking& out);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("enabled", r.enabled);
    }
};

}  // namespace CapabilitySet
