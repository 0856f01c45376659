// A file and an address that a document may name, and whether anybody looked there.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "support/TemporaryFolder.h"

namespace TestSupport
{

class OutsideWatch
{
public:
    static OutsideWatch& Instance();
    ~OutsideWatch();
    OutsideWatch(const OutsideWatch&) = delete;
    OutsideWatch& operator=(const OutsideWatch&) = delete;

    [[nodiscard]] const std::string& File() const { return file_; }
    [[nodiscard]] std::string Address() const;  ///< "http://127.0.0.1:<port>/a"

    /// Looks at both once itself, to see that looks are seen, and forgets what was seen so far.
    void Arm();
    /// What was looked at since: "", "file", "socket" or both.
    std::string Seen();

private:
    OutsideWatch();

    TemporaryFolder folder_;
    std::string file_;
    int notify_ = -1;
    int listener_ = -1;
    int port_ = 0;
};

}  // namespace TestSupport
