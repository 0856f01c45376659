// A password that came neither over the command line nor stays in memory.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Tool
{

/// Taken from the environment's CAPSET_PASSWORD, or else from a prompt on the terminal that shows
/// nothing of what is typed; wiped when the object goes.
class Password
{
public:
    /// Throws a usage failure when there is neither.
    Password(const std::string& user, const std::string& device);
    ~Password();
    Password(const Password&) = delete;
    Password& operator=(const Password&) = delete;

    [[nodiscard]] const char* Text() const { return text_.c_str(); }

private:
    std::string text_;
};

}  // namespace Tool
