// Settings as people write them, NAME=VALUE, put into a record's own fields.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/Assignment.h"

namespace Tool
{

Assignment ReadAssignment(const std::string& text)
{
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw Failure("\"" + text + "\" sets nothing: write NAME=VALUE", kUsage);
    }
    Assignment assignment{text, {}, text.substr(equals + 1)};
    for (std::size_t begin = 0; begin <= equals;) {
        const std::size_t end = std::min(text.find('.', begin), equals);
        assignment.path.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return assignment;
}

void RefuseName(const Assignment& assignment, const std::string& name,
                const std::vector<std::string>& members)
{
    const std::string known = members.empty() ? "" : "; there are " + Joined(members);
    throw Failure("\"" + assignment.text + "\" sets nothing: there is no \"" + name + "\"" + known,
                  kUsage);
}

void RefuseValue(const Assignment& assignment, const std::string& wanted)
{
    throw Failure("\"" + assignment.text + "\" does not say " + wanted, kUsage);
}

}  // namespace Tool
