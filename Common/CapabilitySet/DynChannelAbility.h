// What a channel can do in its present mode of operation.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Functions that depend on how a channel is set up.
struct CAPABILITYSET_API DynChannelAbility : AbilityDocument
{
    static constexpr const char* kRoot = "DynChannelAbility";

    bool Support3DPTZ = false;  ///< the channel supports 3D positioning

    DynChannelAbility() = default;
    explicit DynChannelAbility(const std::string& text) { Parse(text); }
    explicit DynChannelAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document; an empty text reads nothing.
    void Parse(const std::string& text);
    /// Reads the record's own element; null reads nothing.
    void Parse(_xmlNode* element);

    /// Asks for a channel, or for none in particular when it is negative.
    static bool GetDynChannelAbility(DynChannelAbility& out, unsigned int& err, const int userID,
                                     const int channel);

    /// Remembers for the process whether a channel supports 3D positioning, under two texts of the
    /// caller's choice and the channel. The first flag saved for a key is kept. Returns true. The
    /// memory has no lock: callers keep saves and reads from overlapping.
    static bool SaveIsSupper3DPTZAbilityWithChannel(bool support, const std::string& key1,
                                                    const std::string& key2, const int& channel);
    /// The remembered flag; false, with `support` left alone, when none was saved for the key.
    static bool GetIsSupper3DPTZAbilityWithChannel(bool& support, const std::string& key1,
                                                   const std::string& key2, const int& channel);
};

}  // namespace CapabilitySet
