// Hears the documents that devices send to the library's own queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace Tool
{

/// Remembers the documents, and the status document of a refusal, that reach the calling thread
/// through the SDK's calls while the tap is open. The program is linked so that those calls pass by
/// here (--wrap), whichever SDK stands behind them, and the library need not hand its documents
/// out.
class AnswerTap
{
public:
    AnswerTap();
    ~AnswerTap();
    AnswerTap(const AnswerTap&) = delete;
    AnswerTap& operator=(const AnswerTap&) = delete;

    /// Each up to its first NUL, as the library reads it; a query may look into others beside its
    /// own.
    [[nodiscard]] const std::vector<std::string>& Documents() const { return documents_; }

    /// What the device sent with its last refusal since the tap was opened; empty when it sent
    /// nothing.
    [[nodiscard]] const std::string& Refusal() const { return refusal_; }

    void Hear(const char* buffer, std::size_t size);
    void HearRefusal(const char* buffer, std::size_t size);

private:
    std::vector<std::string> documents_;
    std::string refusal_;
};

}  // namespace Tool
