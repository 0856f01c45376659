// The documents with which devices answer the library's own queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace Tool
{

/// Keeps the documents, and the status document of a refusal, that the SDK hands to the calling
/// thread while the tap is open. The program is linked so that the SDK's calls pass through here
/// (--wrap), whichever SDK it is, because the library does not hand its documents out.
class AnswerTap
{
public:
    AnswerTap();
    ~AnswerTap();
    AnswerTap(const AnswerTap&) = delete;
    AnswerTap& operator=(const AnswerTap&) = delete;

    /// Each up to its first NUL, as the library reads it. A query may ask for several.
    [[nodiscard]] const std::vector<std::string>& Documents() const { return documents_; }

    /// What the device sent with its last refusal; empty if it sent nothing.
    [[nodiscard]] const std::string& Refusal() const { return refusal_; }

    void Hear(const char* buffer, std::size_t size);
    void HearRefusal(const char* buffer, std::size_t size);

private:
    std::vector<std::string> documents_;
    std::string refusal_;
};

/// Names the device in the log of requests, which the same calls write.
void NameDeviceInLog(const std::string& device);

}  // namespace Tool
