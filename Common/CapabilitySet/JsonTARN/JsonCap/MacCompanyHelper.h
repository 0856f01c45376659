// Which company a MAC address belongs to.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// Tells the company of a network address, so that a client can label the phones, routers and
/// computers that a device reports. The table of about 4,400 prefixes is part of the library:
/// nothing is fetched.
///
/// The first object of a process parses the table, which takes some milliseconds and stays in half
/// a megabyte until the library is unloaded; later objects find it there and cost next to nothing.
/// What one object adds to the table is seen by no other. Copies take along what was added.
///
/// Nothing throws but copying. When memory runs out, what is loaded stays.
///
/// Threads: an object has no lock and a lookup may change it, so even two lookups on one object
/// must not overlap. Different objects may be made and used on any threads at once.
class CAPABILITYSET_API CMacCompanyHelper
{
public:
    /// Loads the table.
    CMacCompanyHelper();

    /// Loads the table, as the constructor has done already. A prefix that the object knows keeps
    /// its label, be it an empty one.
    void initialTable();

    /// The company's label, a short lower-case word such as "tp-link"; empty for a prefix that is
    /// not in the table. "vel" names no maker: its prefixes are locally administered.
    ///
    /// `prefix` is the first three bytes of the address as six lower-case hexadecimal digits, and
    /// is compared as it stands: separators, upper case or further digits make it unknown.
    ///
    /// Each distinct unknown prefix is added to the object's table with an empty label and stays
    /// for the object's lifetime: filter what an untrusted source sends. Writes one line at info
    /// level.
    std::string getCompanyNameByMAc(std::string prefix);

private:
    using Companies = std::unordered_map<std::string, std::string>;

    /// Adds the members of a JSON object to what the object added; a text that is none adds
    /// nothing.
    void convertStringToMap(std::string_view text);
    const std::string& LabelOf(std::string&& prefix);
    void LoadTexts();

    // An object's table is the one that all objects share, which nobody changes, and what the
    // object added. No prefix is in both.
    std::shared_ptr<const Companies> shared_;
    Companies own_;
};

}  // namespace CapabilitySet
