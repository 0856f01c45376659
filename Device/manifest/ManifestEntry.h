// Reading the entries of a manifest, with messages that say which one is wrong.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

#include <json/value.h>

#include "Device/Limits.h"
#include "Device/manifest/ProfileFiles.h"

namespace Device
{

/// Ends the reading of a manifest; the text says what is wrong with it.
struct ManifestFault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// A string member. `where` names the entry in messages.
std::string TextMember(const Json::Value& object, const char* key, const std::string& where,
                       bool required);

/// Throws if the object has a member that is not `known`.
void RefuseUnknownKeys(const Json::Value& object, std::initializer_list<std::string_view> known,
                       const std::string& where);

/// The files of a profile, with limits on the names and on the total size.
class ManifestFiles
{
public:
    explicit ManifestFiles(const ProfileFiles& files) : files_(files) {}

    /// A file's text. `where` names the entry that refers to it.
    std::string Read(const std::string& name, const std::string& where);
    /// A JSON file that contains an object.
    Json::Value ReadObject(const std::string& name, const std::string& where);

private:
    const ProfileFiles& files_;
    std::size_t left_ = kMostProfileBytes;
};

}  // namespace Device
