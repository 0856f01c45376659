// The recordings of a device: made up, but the same on every run.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Device/manifest/Profile.h"

namespace Device
{

/// A section of a track.
struct Recording
{
    int track;           ///< channel times 100 plus stream, such as 101
    std::int64_t start;  ///< seconds since 1970
    std::int64_t end;
    const char* reason;  ///< "timing" or "motion"
    std::int64_t bytes;
};

/// Recordings of the channels' main streams around the clock: at most an hour each, some triggered
/// by motion, with some hours missing. Sorted by track and time.
std::vector<Recording> MakeRecordings(const RecordedPast& past, const std::vector<int>& channels);

/// The address at which a client can play a recording back.
std::string PlaybackUri(const RecordedPast& past, const Recording& recording);

}  // namespace Device
