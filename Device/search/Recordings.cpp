// Makes up the recordings of a device.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/Recordings.h"

#include <algorithm>

#include "Device/document/DateTime.h"

namespace Device
{
namespace
{

constexpr std::int64_t kHour = 3600;

// A hash that is the same on every machine.
std::uint32_t Scatter(std::uint32_t channel, std::uint32_t hour)
{
    std::uint32_t mixed = channel * 0x9E3779B1u ^ hour * 0x85EBCA77u;
    mixed ^= mixed >> 15;
    mixed *= 0xC2B2AE3Du;
    return mixed ^ mixed >> 13;
}

void AddPiece(std::vector<Recording>& recordings, int channel, std::int64_t start, std::int64_t end,
              const char* reason)
{
    if (end > start) {
        constexpr std::int64_t kBytesASecond = 512'000;
        recordings.push_back(
            {channel * 100 + 1, start, end, reason, (end - start) * kBytesASecond});
    }
}

void AddHour(std::vector<Recording>& recordings, int channel, std::int64_t start,
             std::uint32_t scattered)
{
    const std::int64_t end = start + kHour;
    if (scattered % 16 == 0) {
        return;
    }
    if (scattered % 16 > 4) {
        AddPiece(recordings, channel, start, end, "timing");
        return;
    }
    const std::int64_t motion = start + scattered / 16 % kHour;
    const std::int64_t calm = std::min<std::int64_t>(motion + 60 + scattered / 65536 % 600, end);
    AddPiece(recordings, channel, start, motion, "timing");
    AddPiece(recordings, channel, motion, calm, "motion");
    AddPiece(recordings, channel, calm, end, "timing");
}

// "20261118T101500Z", the form in playback addresses.
std::string Compact(std::int64_t time)
{
    std::string text = WriteDateTime(time);
    std::erase_if(text, [](char c) { return c == '-' || c == ':'; });
    return text;
}

}  // namespace

std::vector<Recording> MakeRecordings(const RecordedPast& past, const std::vector<int>& channels)
{
    std::vector<Recording> recordings;
    for (const int channel : channels) {
        for (int hour = 0; hour < past.days * 24; ++hour) {
            AddHour(recordings, channel, past.start + hour * kHour,
                    Scatter(static_cast<std::uint32_t>(channel), static_cast<std::uint32_t>(hour)));
        }
    }
    std::ranges::stable_sort(recordings, {}, &Recording::track);
    return recordings;
}

std::string PlaybackUri(const RecordedPast& past, const Recording& recording)
{
    return past.uri + "/" + std::to_string(recording.track) +
           "/?starttime=" + Compact(recording.start) + "&endtime=" + Compact(recording.end) +
           "&size=" + std::to_string(recording.bytes);
}

}  // namespace Device
