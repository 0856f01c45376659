// Pieces of XML, and documents that exhaust a reader: bombs, floods and deep nesting.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace Device
{

inline constexpr char kXmlDeclaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string Repeat(std::string_view text, size_t times);

/// The document's content between the tags of its root, serialised again.
std::string XmlContent(const std::string& document);

/// A document with that root around `inner`.
std::string RootedXml(const std::string& root, const std::string& inner,
                      const std::string& attributes = {});

/// The makers below take the name of the root and a sound document that has it.
std::string UnknownElements(const std::string& root, const std::string& sample);
std::string OversizedXml(const std::string& root, const std::string& sample);
std::string LongTexts(const std::string& root, const std::string& sample);
std::string ManyAttributes(const std::string& root, const std::string& sample);
std::string AttributeDefaults(const std::string& root, const std::string& sample);
std::string NestedBomb(const std::string& root, const std::string& sample);
std::string FlatBomb(const std::string& root, const std::string& sample);
std::string AttributeBomb(const std::string& root, const std::string& sample);
std::string ParameterEntities(const std::string& root, const std::string& sample);

/// A document with an external entity at `location`.
std::string ExternalEntity(const std::string& root, const std::string& location);

template <int Depth>
std::string NestedXml(const std::string& root, const std::string&)
{
    return RootedXml(root, Repeat("<a>", Depth) + "1" + Repeat("</a>", Depth));
}

/// The same in JSON.
std::string OversizedJson(const std::string& root, const std::string& sample);
std::string LongJsonTexts(const std::string& root, const std::string& sample);
std::string ManyMembers(const std::string& root, const std::string& sample);

template <int Depth>
std::string NestedJson(const std::string& root, const std::string&)
{
    return "{\"" + root + "\": " + Repeat("[", Depth) + Repeat("]", Depth) + "}\n";
}

}  // namespace Device
