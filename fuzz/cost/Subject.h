// What is searched for excessive costs: readers of what a device or a client sends.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "fuzz/cost/Shape.h"

namespace Cost
{

struct Subject
{
    std::string name;
    std::vector<Shape> seeds;
    std::vector<std::string> words;  ///< pieces that mutations insert
    std::function<void(const std::string& input)> run;
};

/// All subjects. Their seeds include the documents of the device profiles in `folder`.
std::vector<Subject> AllSubjects(const std::string& folder);

}  // namespace Cost
