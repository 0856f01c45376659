// Which members of a record are identities, which are volatile, and which are neither.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "CapabilitySet/Export.h"

namespace CapabilitySet::catalog
{

enum class Nature : std::uint8_t
{
    Plain,  ///< neither identifies anything nor changes by itself: abilities, settings, limits

    // Identities: whoever passes an answer on may have to hide these.
    SerialNumber,    ///< serial number of a device
    Identifier,      ///< any other ID that is unique to one device, person, file or library
    MacAddress,      ///< hardware address
    NetworkAddress,  ///< IP address
    HostName,        ///< host or domain name
    NetworkName,     ///< name of a wireless network
    Url,             ///< path or URL, often with an address or a key in it
    DeviceName,      ///< what users call a device, a channel, a port or a stored position
    UserName,        ///< account
    PersonName,
    PersonTrait,  ///< what a person looks like, or does at work
    PlaceName,    ///< where something stands, as users name it
    Position,     ///< coordinates
    Email,
    Phone,
    Plate,    ///< licence plate
    Picture,  ///< an image of a person, inside the document
    Secret,   ///< password, key or verification code

    // Volatile: these differ between two answers though nobody changed anything.
    Time,         ///< when the answer was made, or when something in it happened
    Counter,      ///< only grows, or counts what is there at the moment
    Measurement,  ///< temperature, load, signal strength, free space
    State         ///< what a device is doing or how a part of it is
};

/// Whether a member of this nature says which device, person or place an answer is about.
constexpr bool IsIdentity(Nature nature)
{
    return nature >= Nature::SerialNumber && nature <= Nature::Secret;
}

/// Whether a member of this nature changes by itself.
constexpr bool IsVolatile(Nature nature)
{
    return nature >= Nature::Time;
}

/// The nature of a record's member. `record` is the name of its entry in the catalogue. `path`
/// holds the names of the RecordNodes from the record's members down to this one, joined by "/";
/// items of lists have no name and add nothing: "TemperatureList/temperature".
///
/// Names that tell an identity do so in any record, since many keep whatever a device says. A name
/// that this version does not know is Plain: whoever hides identities needs a second net for texts
/// that look like one.
CAPABILITYSET_API Nature NatureOf(std::string_view record, std::string_view path);

}  // namespace CapabilitySet::catalog
