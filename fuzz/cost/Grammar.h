// The shapes a search begins with: every construct of a format, repeated.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "fuzz/cost/Shape.h"

namespace Cost
{

/// XML constructs inside and in front of a root element of this name.
std::vector<Shape> XmlShapes(const std::string& root);
/// JSON constructs in a document, and under a key unless that is empty.
std::vector<Shape> JsonShapes(const std::string& key);
/// What a device sends over a connection.
std::vector<Shape> HttpShapes();
/// Client text that goes into requests.
std::vector<Shape> TextShapes();

/// Pieces that mutations insert.
std::vector<std::string> XmlWords();
std::vector<std::string> JsonWords();
std::vector<std::string> HttpWords();

}  // namespace Cost
