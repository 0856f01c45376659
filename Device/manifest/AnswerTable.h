// Finds the answer of a profile to a request.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "Device/manifest/Profile.h"

namespace Device
{

/// Looks up requests among a profile's answers. Refers to the profile. Never changes, so any thread
/// may use it.
class AnswerTable
{
public:
    /// Contains either the profile's settings or everything else.
    AnswerTable(const Profile& profile, bool settings);

    struct Found
    {
        const Answer* answer = nullptr;
        int channel = 0;                ///< the channel asked about, or the profile's first
        bool unknownChannel = false;    ///< the request names a channel that does not exist
        std::set<std::string> methods;  ///< if only the method differs: those of the path
    };

    /// Finds the most specific answer: fewer placeholders, then more parameters, then a root, then
    /// a channel element, then an answer for certain channels only.
    [[nodiscard]] Found Find(const ParsedRequest& request) const;

    /// The refusal to send when nothing was found; nothing if the request is not in the table.
    static std::optional<Response> Refuse(const Found& found, const ParsedRequest& request);

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
