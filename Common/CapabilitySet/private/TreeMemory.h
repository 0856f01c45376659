// Estimates what a document's tree will take before it is built.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string_view>

#include "CapabilitySet/Limits.h"

namespace CapabilitySet
{

/// Bytes of the tree that libxml2 builds of a UTF-8 document, never too few.
std::size_t XmlTreeBytes(std::string_view text);

/// Bytes of the tree that JsonCpp builds of a document, never too few.
std::size_t JsonTreeBytes(std::string_view text);

/// Whether a tree would take more than limits::DocumentMemory. Neither library needs more than 64
/// bytes for one byte of text, so only large documents are scanned.
template <class TreeBytes>
bool TakesTooMuchMemory(std::string_view text, TreeBytes treeBytes)
{
    constexpr std::size_t kMostPerByte = 64;
    const std::size_t limit = limits::DocumentMemory();
    return text.size() > limit / kMostPerByte && treeBytes(text) > limit;
}

}  // namespace CapabilitySet
