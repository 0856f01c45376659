// Hears the documents that devices send to the library's own queries.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/AnswerTap.h"

#include <algorithm>
#include <array>

#include "PelNetSDK/PelNetSDK.h"

namespace Tool
{

namespace
{

thread_local AnswerTap* openTap = nullptr;

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
    const int result = __real_NET_ORB_GetDeviceAbility(userID, abilityType, inBuffer, inLength,
                                                       outBuffer, outLength);
    return Tool::Heard(result, outBuffer, outLength);
}

int __wrap_NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode,
                                 tagNET_ORB_STD_ABILITY* ability)
{
    const int result = __real_NET_ORB_GetSTDAbility(userID, abilityCode, ability);
    return Tool::Heard(result, ability->outBuffer, ability->outSize);
}

int __wrap_NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                                tagNET_ORB_XML_CONFIG_OUTPUT* output)
{
    if (Tool::openTap == nullptr) {
        return __real_NET_ORB_STDXMLConfig(userID, input, output);
    }
    // Most operations want no status document, but a person wants to know why.
    std::array<char, 16384> own{};
    tagNET_ORB_XML_CONFIG_OUTPUT heard = *output;
    if (heard.statusBuffer == nullptr) {
        heard.statusBuffer = own.data();
        heard.statusSize = own.size();
    }
    const int result = __real_NET_ORB_STDXMLConfig(userID, input, &heard);
    output->returnedSize = heard.returnedSize;
    if (result == 0) {
        Tool::openTap->HearRefusal(static_cast<const char*>(heard.statusBuffer), heard.statusSize);
    }
    return Tool::Heard(result, output->outBuffer, output->outBufferSize);
}
// NOLINTEND(bugprone-reserved-identifier)
