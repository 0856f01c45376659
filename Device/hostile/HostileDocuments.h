// Documents that a broken or hostile device might send, made from sound ones.
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

/// All cases, in a fixed order.
std::span<const HostileCase> HostileCases();

/// The case with that name, or null.
const HostileCase* FindHostileCase(std::string_view name);

/// Makes the case's XML document for that root element. `sample` is a sound document with that
/// root, whose content is kept as far as possible; if it is missing or malformed, generic content
/// is used. The largest document has about 20 MB.
std::string MakeHostileXml(const HostileCase& hostile, const std::string& root,
                           const std::string& sample = {});

/// The same in JSON; `root` is the name of the only member. Cases that exist only in XML give their
/// XML document.
std::string MakeHostileJson(const HostileCase& hostile, const std::string& root,
                            const std::string& sample = {});

}  // namespace Device
