// Data packages that a device offers at a path.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/DataPackage.h"

#include "CapabilitySet/private/query/JsonOperation.h"

namespace CapabilitySet
{

bool DownloadPackageAt(tagNET_ORB_XML_CONFIG_OUTPUT& out, const std::string& path,
                       unsigned int& error, int userID)
{
    // Request lines are sent as a format, in which a percent sign is written twice.
    std::string line;
    for (const char c : path) {
        line += c == '%' ? std::string("%%") : std::string(1, c);
    }
    return query::DownloadPackage(out, error, userID, CAPABILITYSET_HERE, {"GET ", &line, "\r\n"});
}

}  // namespace CapabilitySet
