// A command of the tool as it declares itself.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/commandline/Command.h"

#include <algorithm>
#include <utility>

namespace Tool
{

Command::Command(std::string name, std::string summary)
    : name_(std::move(name)), summary_(std::move(summary))
{
}

Command& Command::Add(const std::string& name, const std::string& summary)
{
    commands_.push_back(std::make_unique<Command>(name, summary));
    commands_.back()->group_ = this;
    return *commands_.back();
}

Command& Command::Example(std::string example)
{
    examples_.push_back(std::move(example));
    return *this;
}

Command& Command::Note(std::string note)
{
    note_ = std::move(note);
    return *this;
}

std::string Command::FullName() const
{
    return group_ == nullptr ? name_ : group_->FullName() + " " + name_;
}

const Command* Command::Find(const std::string& name) const
{
    const auto found =
        std::ranges::find_if(commands_, [&name](const auto& each) { return each->name_ == name; });
    return found == commands_.end() ? nullptr : found->get();
}

}  // namespace Tool
