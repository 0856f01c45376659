// Finds the answer of a profile that a request asks for.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <vector>

#include "Device/Profile.h"

namespace Device
{

/// Looks requests up among a profile's answers. Refers to the profile; unchanging, so any thread
/// may use it.
class AnswerTable
{
public:
    /// `settings` selects the settings of the profile, otherwise everything else.
    AnswerTable(const Profile& profile, bool settings);

    struct Found
    {
        const Answer* answer = nullptr;
        int channel = 0;              ///< the channel asked about, or the profile's first
        bool otherMethod = false;     ///< the path is known, but not with this method
        bool unknownChannel = false;  ///< the request names a channel that the device has not
    };

    /// The closest answer: literal segments count before placeholders, more named parameters
    /// before fewer, a named root before none, a named channel element before none, an answer of
    /// certain channels before one of all.
    [[nodiscard]] Found Find(const ParsedRequest& request) const;

private:
    bool MatchPath(const Answer& answer, const ParsedRequest& request, Found& found) const;
    void FindDocumentChannel(const ParsedRequest& request, Found& found) const;
    [[nodiscard]] bool HasChannel(int channel, bool protocol) const;
    [[nodiscard]] int FirstChannel(bool protocol) const;

    const Profile& profile_;
    std::map<std::vector<std::string>, std::vector<const Answer*>> literal_;
    std::vector<const Answer*> patterns_;
};

}  // namespace Device
