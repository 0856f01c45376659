// Hears the documents that devices send to the library's own queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Tool
{

/// Remembers the last document that reached the calling thread through the SDK's calls while the
/// tap is open. The program is linked so that those calls pass by here (--wrap), whichever SDK
/// stands behind them, and the library need not hand its documents out.
class AnswerTap
{
public:
    AnswerTap();
    ~AnswerTap();
    AnswerTap(const AnswerTap&) = delete;
    AnswerTap& operator=(const AnswerTap&) = delete;

    /// Whether a document came.
    [[nodiscard]] bool Heard() const { return heard_; }
    /// The document up to its first NUL, as the library reads it.
    [[nodiscard]] const std::string& Document() const { return document_; }

    void Hear(const char* buffer, std::size_t size);

private:
    bool heard_ = false;
    std::string document_;
};

}  // namespace Tool
