// Lists of an alarm host as tables.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tool/command/ReportCommand.h"

namespace Tool
{

/// The rows of a list for people, with the flags and sensors of each as one text. Hosts nest the
/// list under "List" or another name, and each item in an object of its own.
CapabilitySet::RecordNode HostRows(const CapabilitySet::RecordNode& part);

/// The detectors with their numbers, which the record keeps only in its root.
CapabilitySet::RecordNode ReadDetectors(Talk& talk, const char* name);

/// Reports the detectors.
Report ListDetectors(Talk& talk);

/// Reports the zones with their setup and state.
Report ListZones(Talk& talk);

}  // namespace Tool
