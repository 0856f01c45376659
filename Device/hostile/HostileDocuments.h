// Documents that a broken or hostile device sends, made from a document that a sound one sends.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Device
{

/// One way of spoiling a document.
struct HostileCase
{
    std::string_view name;         ///< "entityBomb"
    std::string_view description;  ///< one line
    std::string (*makeXml)(const std::string& root, const std::string& sample);
    std::string (*makeJson)(const std::string& root, const std::string& sample);  ///< may be null
};

/// All cases; the order never changes within a build.
std::span<const HostileCase> HostileCases();

/// The case of that name, or null.
const HostileCase* FindHostileCase(std::string_view name);

/// The case's XML document for that root element. `sample` is a sound document with that root,
/// whose content the case keeps as far as it can; without one, or with one that is not well-formed,
/// a generic content is taken. The largest document has about 20 MB.
std::string MakeHostileXml(const HostileCase& hostile, const std::string& root,
                           const std::string& sample = {});

/// The same in JSON, where `root` is the name of the only member. A case that only XML knows gives
/// its XML document.
std::string MakeHostileJson(const HostileCase& hostile, const std::string& root,
                            const std::string& sample = {});

}  // namespace Device
