// The documents with which devices answer the library's own queries.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/AnswerTap.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "PelNetSDK/PelNetSDK.h"
#include "Tool/terminal/Log.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

thread_local AnswerTap* openTap = nullptr;

std::string& LoggedDevice()
{
    static std::string device;
    return device;
}

/// Logs one call of the SDK: what was asked, how it ended, and how long it took.
class LoggedCall
{
public:
    explicit LoggedCall(std::string_view what) : what_(what) {}

    /// `bytes` of the answer, if known; the text ends at the first NUL.
    void End(int result, const void* buffer, unsigned int size) const
    {
        if (!IsLoggingInfo()) {
            return;
        }
        const unsigned int error = result == 0 ? NET_ORB_GetLastError() : 0;
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start_;
        const char* const text = static_cast<const char*>(buffer);
        const std::size_t length = text == nullptr ? 0 : strnlen(text, size);
        const std::string end = result != 0 ? std::to_string(length) + " bytes"
                                : error == NET_ORB_BUFFER_TOO_SMALL
                                    ? "more than " + std::to_string(size) + " bytes, read again"
                                    : "error " + std::to_string(error);
        std::array<char, 32> milliseconds{};
        std::snprintf(milliseconds.data(), milliseconds.size(), "%.1f ms", time.count());
        LogInfo(LoggedDevice() + "  " + Trimmed(what_) + "  " + end + "  " + milliseconds.data());
    }

private:
    const std::string what_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

int Heard(int result, const void* buffer, unsigned int size)
{
    if (result != 0 && openTap != nullptr && buffer != nullptr) {
        openTap->Hear(static_cast<const char*>(buffer), size);
    }
    return result;
}

}  // namespace

AnswerTap::AnswerTap()
{
    openTap = this;
}

AnswerTap::~AnswerTap()
{
    openTap = nullptr;
}

void AnswerTap::Hear(const char* buffer, std::size_t size)
{
    // No document is that large; a package is, and needs no copy.
    constexpr std::size_t kLargestDocument = 64u << 20;
    if (size > kLargestDocument) {
        return;
    }
    documents_.emplace_back(buffer, std::find(buffer, buffer + size, '\0'));
}

void NameDeviceInLog(const std::string& device)
{
    LoggedDevice() = device;
}

void AnswerTap::HearRefusal(const char* buffer, std::size_t size)
{
    refusal_.assign(buffer, std::find(buffer, buffer + size, '\0'));
}

}  // namespace Tool

// The names are the linker's.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C"
{
    decltype(NET_ORB_GetDeviceAbility) __real_NET_ORB_GetDeviceAbility;
    decltype(NET_ORB_GetSTDAbility) __real_NET_ORB_GetSTDAbility;
    decltype(NET_ORB_STDXMLConfig) __real_NET_ORB_STDXMLConfig;

    int __wrap_NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char* inBuffer,
                                        unsigned int inLength, char* outBuffer,
                                        unsigned int outLength);
    int __wrap_NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode,
                                     tagNET_ORB_STD_ABILITY* ability);
    int __wrap_NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                                    tagNET_ORB_XML_CONFIG_OUTPUT* output);
}

int __wrap_NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char* inBuffer,
                                    unsigned int inLength, char* outBuffer, unsigned int outLength)
{
    const Tool::LoggedCall call("device ability " + std::to_string(abilityType));
    const int result = __real_NET_ORB_GetDeviceAbility(userID, abilityType, inBuffer, inLength,
                                                       outBuffer, outLength);
    call.End(result, outBuffer, outLength);
    return Tool::Heard(result, outBuffer, outLength);
}

int __wrap_NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode,
                                 tagNET_ORB_STD_ABILITY* ability)
{
    const Tool::LoggedCall call("standard ability " + std::to_string(abilityCode));
    const int result = __real_NET_ORB_GetSTDAbility(userID, abilityCode, ability);
    call.End(result, ability->outBuffer, ability->outSize);
    return Tool::Heard(result, ability->outBuffer, ability->outSize);
}

int __wrap_NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                                tagNET_ORB_XML_CONFIG_OUTPUT* output)
{
    const std::string_view line(static_cast<const char*>(input->requestUrl),
                                input->requestUrlLength);
    const Tool::LoggedCall call(line);
    if (Tool::openTap == nullptr) {
        const int untapped = __real_NET_ORB_STDXMLConfig(userID, input, output);
        call.End(untapped, output->outBuffer, output->outBufferSize);
        return untapped;
    }
    // Most operations want no status document, but a person wants to know why.
    std::array<char, 16384> own{};
    tagNET_ORB_XML_CONFIG_OUTPUT heard = *output;
    if (heard.statusBuffer == nullptr) {
        heard.statusBuffer = own.data();
        heard.statusSize = own.size();
    }
    const int result = __real_NET_ORB_STDXMLConfig(userID, input, &heard);
    call.End(result, heard.outBuffer, heard.outBufferSize);
    output->returnedSize = heard.returnedSize;
    if (result == 0) {
        Tool::openTap->HearRefusal(static_cast<const char*>(heard.statusBuffer), heard.statusSize);
    }
    return Tool::Heard(result, output->outBuffer, output->outBufferSize);
}
// NOLINTEND(bugprone-reserved-identifier)
