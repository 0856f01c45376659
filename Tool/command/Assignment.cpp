// Settings as users write them, NAME=VALUE.
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
    const std::string sets = "\"" + assignment.text + "\" sets nothing: ";
    if (name.empty() && !members.empty()) {
        // The path ends at a nested record.
        std::string path = assignment.path.front();
        for (std::size_t i = 1; i < assignment.path.size(); ++i) {
            path += "." + assignment.path[i];
        }
        std::vector<std::string> names;
        for (const std::string& member : members) {
            names.push_back(path + "." + member);
        }
        throw Failure(sets + "write " + Joined(names, "or"), kUsage);
    }
    const std::string known = members.empty() ? "" : "; there are " + Joined(members);
    throw Failure(sets + "there is no \"" + name + "\"" + known, kUsage);
}

void AssignMember(Json::Value& object, const Assignment& assignment)
{
    Json::Value* member = &object;
    for (const std::string& name : assignment.path) {
        if (!member->isNull() && !member->isObject()) {
            throw Failure("\"" + assignment.text +
                              "\" sets nothing: another filter gives what is "
                              "before \"" +
                              name + "\" a value of its own",
                          kUsage);
        }
        member = &(*member)[name];
    }
    if (member->isObject()) {
        throw Failure("\"" + assignment.text + "\" would replace members that another filter sets",
                      kUsage);
    }
    *member = assignment.value;
}

void RefuseValue(const Assignment& assignment, const std::string& wanted)
{
    throw Failure("\"" + assignment.text + "\" does not say " + wanted, kUsage);
}

}  // namespace Tool
