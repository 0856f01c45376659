// Which company a MAC address belongs to.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// Tells the company of a network address, so that a client can label the phones, routers and
/// computers that a device reports. The table of about 4,400 prefixes is part of the library:
/// nothing is fetched.
///
/// Make one object and keep it. The first one in a process parses the whole table (some
/// milliseconds, half a megabyte), each later one copies it; none shares anything with another that
/// a client could notice. A copy copies the table, a moved-from object has none until
/// initialTable() is called.
///
/// Nothing throws but copying. When memory runs out, what is loaded stays.
///
/// Threads: an object has no lock and a lookup may change it, so even two lookups on one object
/// must not overlap. Different objects may be used and made on any threads at once.
class CAPABILITYSET_API CMacCompanyHelper
{
public:
    /// Loads the table.
    CMacCompanyHelper();

    /// Adds the library's table to the object's. A prefix that is there keeps its label, be it one
    /// that an earlier lookup added without a label. The constructor has called this already.
    void initialTable();

    /// The company's label, a short lower-case word such as "tp-link"; empty for a prefix that is
    /// not in the table. "vel" names no maker: its prefixes are locally administered.
    ///
    /// `prefix` is the first three bytes of the address as six lower-case hexadecimal digits, and
    /// is compared as it stands: separators, upper case or further digits make it unknown.
    ///
    /// Each distinct unknown prefix stays in the object with an empty label, for the object's
    /// lifetime: filter addresses from an untrusted source first. Writes one line at info level.
    std::string getCompanyNameByMAc(std::string prefix);

private:
    void convertStringToMap(std::string text);

    std::map<std::string, std::string> companies_;
};

}  // namespace CapabilitySet
