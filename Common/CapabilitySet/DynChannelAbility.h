// Abilities of a channel that depend on how it is set up. Queries.h describes the query.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Functions of a channel in its current setup.
struct CAPABILITYSET_API DynChannelAbility : AbilityDocument
{
    static constexpr const char* kRoot = "DynChannelAbility";

    bool Support3DPTZ = false;  ///< the channel supports 3D positioning

    DynChannelAbility() = default;
    explicit DynChannelAbility(const std::string& text) { Parse(text); }
    explicit DynChannelAbility(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

    /// Device ability 11, DynChannelAbility/channelNO. Accepts a negative channel.
    static bool GetDynChannelAbility(DynChannelAbility& out, unsigned int& err, const int userID,
                                     const int channel);

    /// Caches for the process whether a channel supports 3D positioning. The key is the channel and
    /// two texts of the caller's choice. The first value saved for a key is kept. Always returns
    /// true. No lock: the caller must not let cache calls overlap.
    static bool SaveIsSupper3DPTZAbilityWithChannel(bool support, const std::string& key1,
                                                    const std::string& key2, const int& channel);
    /// The cached value. False, with `support` unchanged, if none was saved for the key.
    static bool GetIsSupper3DPTZAbilityWithChannel(bool& support, const std::string& key1,
                                                   const std::string& key2, const int& channel);
};

}  // namespace CapabilitySet
