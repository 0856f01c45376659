// The head of an HTTP answer, as far as the SDK needs it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "PelNetSDK/Challenges.h"

namespace PelNet
{

class AnswerHead
{
public:
    /// Before a request: forgets everything.
    void Clear() noexcept;

    /// Takes one line as libcurl hands it over, with its line end. False if the answer must not be
    /// read any further: Fault() says why. Throws std::bad_alloc.
    [[nodiscard]] bool Take(std::string_view line);

    /// True for the status line of an answer that is not an interim one (100 Continue).
    [[nodiscard]] static bool IsFinalStatus(std::string_view line);

    [[nodiscard]] bool IsEncoded() const { return !encoding_.empty(); }
    [[nodiscard]] const std::string& Location() const { return location_; }
    [[nodiscard]] const Challenges& Offered() const { return challenges_; }
    [[nodiscard]] const std::string& Fault() const { return fault_; }

private:
    [[nodiscard]] bool TakeField(std::string_view name, std::string_view value);

    std::size_t bytes_ = 0;  ///< of all heads since Clear()
    int status_ = 0;
    std::string encoding_;
    std::string location_;
    Challenges challenges_;
    std::string fault_;
};

}  // namespace PelNet
