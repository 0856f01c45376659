// A password that is neither on the command line nor left in memory.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Tool
{

/// The environment's CAPSET_PASSWORD or, if that is unset or empty, what the user types at a prompt
/// without echo. It is wiped when the object goes.
class Password
{
public:
    /// Throws a usage failure if there is neither.
    Password(const std::string& user, const std::string& device);
    ~Password();
    Password(const Password&) = delete;
    Password& operator=(const Password&) = delete;

    [[nodiscard]] const char* Text() const { return text_.c_str(); }

private:
    std::string text_;
};

}  // namespace Tool
