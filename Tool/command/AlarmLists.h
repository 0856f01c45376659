// What an alarm host lists, set as tables.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tool/command/ReportCommand.h"

namespace Tool
{

/// A host's list stands below "List" or another name, each item wrapped in an object of its own:
/// for people the rows alone, flags and sensors of each as one text.
CapabilitySet::RecordNode HostRows(const CapabilitySet::RecordNode& part);

/// The detectors with their numbers, which their record leaves in its root.
CapabilitySet::RecordNode ReadDetectors(Talk& talk, const char* name);

/// The detectors alone.
Report ListDetectors(Talk& talk);

/// The zones: how each is set up and what it is doing.
Report ListZones(Talk& talk);

}  // namespace Tool
