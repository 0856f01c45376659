// What a device has recorded: a made-up past that is the same on every run.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Device
{

/// How much of a past a profile wants.
struct RecordedPast
{
    std::int64_t start = 0;  ///< seconds since 1970
    int days = 0;
    std::string uri;  ///< where tracks are played back
};

/// One piece of a track.
struct Recording
{
    int track;           ///< channel times 100 plus the stream, such as 101
    std::int64_t start;  ///< seconds since 1970
    std::int64_t end;
    const char* reason;  ///< "timing" or "motion"
    std::int64_t bytes;
};

/// The main streams of those channels, day and night in pieces of an hour at most, with motion
/// here and there and an hour missing now and then; sorted by track and time.
std::vector<Recording> MakeRecordings(const RecordedPast& past, const std::vector<int>& channels);

/// Where a client plays a recording back.
std::string PlaybackUri(const RecordedPast& past, const Recording& recording);

}  // namespace Device
