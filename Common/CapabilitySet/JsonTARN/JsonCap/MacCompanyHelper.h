// Looks up the company behind a MAC address.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// Looks up the company behind a MAC address, so that a client can label the phones, routers and
/// computers that a device reports. The table of about 4,400 prefixes is built in; nothing is
/// downloaded.
///
/// The first object in a process parses the table. That takes some milliseconds and half a
/// megabyte, which is kept until the library is unloaded. Later objects share it and cost next to
/// nothing. Each object keeps its own additions; a copy includes them.
///
/// Only copying can throw. If memory runs out, the entries loaded so far stay.
///
/// Threads: objects are not locked, and a lookup may change its object, so calls on one object must
/// not overlap, not even lookups. Different objects may be used on any threads at once.
class CAPABILITYSET_API CMacCompanyHelper
{
public:
    /// Loads the table.
    CMacCompanyHelper();

    /// Loads the table again; the constructor has already done so. A prefix that the object knows
    /// keeps its label, even an empty one.
    void initialTable();

    /// The company's label, a short lower-case word such as "tp-link". Empty if the prefix is not
    /// in the table. "vel" names no maker: its prefixes are locally administered.
    ///
    /// `prefix` is the first three bytes of the address as six lower-case hexadecimal digits. It is
    /// compared as passed: with separators, upper case or more digits it is unknown.
    ///
    /// Logs one line at info level.
    // Kept: each unknown prefix is added to the object for its lifetime, with an empty label.
    // Filter prefixes from untrusted sources.
    std::string getCompanyNameByMAc(std::string prefix);

private:
    using Companies = std::unordered_map<std::string, std::string>;

    /// Adds the members of a JSON object to `own_`. Any other text adds nothing.
    void convertStringToMap(std::string_view text);
    const std::string& LabelOf(std::string&& prefix);
    void LoadTexts();

    // The table of an object is the shared, read-only one plus its own additions. No prefix is in
    // both.
    std::shared_ptr<const Companies> shared_;
    Companies own_;
};

}  // namespace CapabilitySet
