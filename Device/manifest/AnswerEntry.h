// Reads one entry of a manifest's "answers".
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Device/manifest/ManifestEntry.h"
#include "Device/manifest/Profile.h"

namespace Device
{

/// Reads an entry and the file it names; `number` counts from 1. Throws ManifestFault.
Answer ReadAnswer(ManifestFiles& files, const Json::Value& entry, unsigned int number);

}  // namespace Device
