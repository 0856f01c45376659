// Data packages of devices, saved as files.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/PackageDownload.h"

#include <memory>

#include "CapabilitySet/JsonTARN/DataPackage.h"
#include "PelNetSDK/Login.h"
#include "Tool/record/Document.h"

namespace Tool
{

namespace
{

/// A status document in place of a package says why there is none.
void CheckPackage(const Talk& talk, std::string_view bytes)
{
    constexpr std::size_t kLongestStatus = 65536;
    if (bytes.empty()) {
        talk.Fail({{NET_ORB_NETWORK_ERRORDATA, "the device sent an empty package", {}}, {}});
    }
    if (bytes.size() > kLongestStatus) {
        return;
    }
    const std::string text(bytes);
    if (!ReadStatus(text).empty()) {
        talk.Fail({{NET_ORB_DEVICE_REFUSED, "the device sent no package", {}}, text});
    }
}

/// The path of a package on the device that the talk is with.
std::string PathOf(const std::string& url)
{
    const std::size_t scheme = url.find("://");
    const std::size_t path = scheme == std::string::npos ? 0 : url.find('/', scheme + 3);
    if (path == std::string::npos || url.compare(path, 1, "/") != 0) {
        throw Failure("the device names no place of its package: \"" + url + "\"");
    }
    return url.substr(path);
}

}  // namespace

Report Download(Talk& talk, DownloadFile& file, const PackageOperation& operation)
{
    tagNET_ORB_XML_CONFIG_OUTPUT package{};
    talk.Say("downloading");
    talk.Do([&](unsigned int& error) { return operation(package, error, talk.UserID()); });
    const std::unique_ptr<char[]> owner(static_cast<char*>(package.outBuffer));
    const std::string_view bytes(owner.get(), package.returnedSize);
    CheckPackage(talk, bytes);
    talk.Say("writing " + file.Name());
    file.Finish(bytes);
    return {{"Download",
             CapabilitySet::RecordNode::Kind::Record,
             {},
             true,
             {CapabilitySet::tree::Text("file", file.Name()),
              CapabilitySet::tree::Integer("bytes", bytes.size())}}};
}

PackageOperation PackageAt(const std::string& url)
{
    return [path = PathOf(url)](tagNET_ORB_XML_CONFIG_OUTPUT& package, unsigned int& error,
                                int userID) {
        return CapabilitySet::DownloadPackageAt(package, path, error, userID);
    };
}

}  // namespace Tool
