// An SDK that answers from a script and records every call.
// SPDX-License-Identifier: Apache-2.0
#include "support/ScriptedSdk.h"

#include <algorithm>
#include <cstring>
#include <mutex>

#include "support/AllocationFaults.h"

namespace TestSupport
{
namespace
{

std::mutex guard;
std::size_t played = 0;
thread_local unsigned lastError = 0;

template <class Bytes>
bool AllZero(const Bytes* bytes, std::size_t size)
{
    const auto* begin = reinterpret_cast<const unsigned char*>(bytes);
    return size == 0 || (begin[0] == 0 && std::memcmp(begin, begin + 1, size - 1) == 0);
}

/// Checks only the ends of a large buffer: reading a mapping allocates its pages.
bool LooksZeroed(const char* buffer, std::size_t size)
{
    constexpr std::size_t kEnd = 64 * 1024;
    return size <= 2 * kEnd ? AllZero(buffer, size)
                            : AllZero(buffer, kEnd) && AllZero(buffer + size - kEnd, kEnd);
}

std::string Copy(const void* bytes, std::size_t size)
{
    return bytes == nullptr ? std::string() : std::string(static_cast<const char*>(bytes), size);
}

void Write(void* buffer, unsigned size, const std::string& text)
{
    if (buffer != nullptr) {
        std::memcpy(buffer, text.data(), std::min<std::size_t>(text.size(), size));
    }
}

/// The source and the destination of a call's answer.
struct Buffers
{
    void* answer;
    unsigned size;
    unsigned* returnedSize;
    void* status = nullptr;
    unsigned statusSize = 0;
};

/// Whether the whole step reached the caller, so that its fault has occurred.
bool Reaches(const SdkStep& step, const Buffers& to)
{
    return (step.error != 0 || step.answer.size() <= to.size) &&
           (step.status.empty() || step.status.size() <= to.statusSize) &&
           (step.returnedSize == 0 || step.error != 0 || to.answer != nullptr);
}

void Write(const SdkStep& step, const Buffers& to)
{
    if (step.fills) {
        std::memset(to.answer, 'x', to.size);
    }
    Write(to.answer, to.size, step.answer);
    Write(to.status, to.statusSize, step.status);
    if (to.returnedSize != nullptr) {
        *to.returnedSize = step.returnedSize;
    }
}

/// The step that answers the call.
const SdkStep& StepFor(ScriptedSdk& sdk, const SdkCall& call, unsigned size, SdkStep& made)
{
    made = {};
    if (const auto text = sdk.texts.find(call.code); text != sdk.texts.end()) {
        made.answer = text->second;
    } else if (!sdk.steps.empty()) {
        const SdkStep& step = sdk.steps[std::min(played, sdk.steps.size() - 1)];
        if (!step.needsRoom || step.answer.size() <= size) {
            ++played;
            return step;
        }
        made = {.error = 43, .returnedSize = static_cast<unsigned>(step.answer.size())};
    }
    return made;
}

/// Records the call and writes the next step into the buffers.
int Play(SdkCall call, const Buffers& to)
{
    ScriptedSdk& sdk = ScriptedSdk::Instance();
    std::function<void()> onCall;
    {
        const std::lock_guard lock(guard);
        if (const auto error = sdk.userErrors.find(call.userID); error != sdk.userErrors.end()) {
            lastError = error->second;
            return 0;
        }
        call.size = to.size;
        call.isZeroed = LooksZeroed(static_cast<char*>(to.answer), to.size) &&
                        AllZero(static_cast<char*>(to.status), to.statusSize);
        SdkStep made;
        const SdkStep& step = StepFor(sdk, call, to.size, made);
        if (sdk.keepsCalls) {
            sdk.calls.push_back(std::move(call));
        }
        lastError = step.error;
        Write(step, to);
        sdk.struck += step.isFault && Reaches(step, to) ? 1 : 0;
        onCall = sdk.onCall;
    }
    const unsigned error = lastError;
    if (onCall) {
        onCall();
    }
    return error == 0 ? 1 : 0;
}

}  // namespace

ScriptedSdk& ScriptedSdk::Instance()
{
    static ScriptedSdk sdk;
    return sdk;
}

ScriptedSdk& ScriptedSdk::Fresh()
{
    const std::lock_guard lock(guard);
    played = 0;
    lastError = 0;
    return Instance() = ScriptedSdk();
}

}  // namespace TestSupport

using TestSupport::NoAllocationFaults;
using TestSupport::SdkCall;

int NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char* inBuffer,
                             unsigned int inLength, char* outBuffer, unsigned int outLength)
{
    const NoAllocationFaults pause;
    SdkCall call{.kind = SdkCall::DeviceAbility, .userID = userID, .code = abilityType};
    call.hasInput = inBuffer != nullptr;
    call.input = TestSupport::Copy(inBuffer, inLength);
    call.isWellFilled = call.hasInput == (inLength > 0);
    return TestSupport::Play(std::move(call), {outBuffer, outLength, nullptr});
}

int NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode, tagNET_ORB_STD_ABILITY* ability)
{
    const NoAllocationFaults pause;
    SdkCall call{.kind = SdkCall::StandardAbility, .userID = userID, .code = abilityCode};
    call.hasInput = ability->conditionBuffer != nullptr;
    call.input = TestSupport::Copy(ability->conditionBuffer, ability->conditionSize);
    call.isWellFilled = ability->statusBuffer == nullptr && ability->statusSize == 0 &&
                        ability->returnedSize == 0 &&
                        TestSupport::AllZero(ability->reserved, sizeof ability->reserved);
    return TestSupport::Play(std::move(call),
                             {ability->outBuffer, ability->outSize, &ability->returnedSize});
}

int NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                         tagNET_ORB_XML_CONFIG_OUTPUT* output)
{
    const NoAllocationFaults pause;
    SdkCall call{.kind = SdkCall::Transparent, .userID = userID};
    call.line = TestSupport::Copy(input->requestUrl, input->requestUrlLength);
    call.hasInput = input->inBuffer != nullptr;
    call.input = TestSupport::Copy(input->inBuffer, input->inBufferSize);
    call.statusSize = output->statusSize;
    call.timeout = input->receiveTimeout;
    call.flag = input->flag;
    call.isWellFilled = input->size == 56 && output->size == 56 &&
                        call.hasInput == (input->inBufferSize > 0) &&
                        (output->outBuffer != nullptr) == (output->outBufferSize > 0) &&
                        (output->statusBuffer != nullptr) == (output->statusSize > 0) &&
                        TestSupport::AllZero(input->reserved, sizeof input->reserved) &&
                        TestSupport::AllZero(output->reserved, sizeof output->reserved);
    return TestSupport::Play(std::move(call),
                             {output->outBuffer, output->outBufferSize, &output->returnedSize,
                              output->statusBuffer, output->statusSize});
}

unsigned int NET_ORB_GetLastError(void)
{
    return TestSupport::lastError;
}

int NET_ORB_GetLastErrorModelCode(int* errModelCode, int* errDevSelfEx)
{
    auto& sdk = TestSupport::ScriptedSdk::Instance();
    const std::lock_guard lock(TestSupport::guard);
    sdk.struck += sdk.countsModelCodes ? 1 : 0;
    if (!sdk.modelCode) {
        return 0;
    }
    *errModelCode = *sdk.modelCode;
    *errDevSelfEx = sdk.deviceCode;
    return 1;
}

int NET_ORB_SDKChannelToTARN(int userID, int channel, int mode)
{
    const NoAllocationFaults pause;
    auto& sdk = TestSupport::ScriptedSdk::Instance();
    const std::lock_guard lock(TestSupport::guard);
    if (sdk.keepsCalls) {
        sdk.calls.push_back(
            {.kind = SdkCall::Channel, .userID = userID, .code = static_cast<unsigned>(channel)});
    }
    TestSupport::lastError = sdk.channelError;
    sdk.struck += sdk.channelError != 0 ? 1 : 0;
    constexpr int kToProtocol = 1;
    return sdk.channelError != 0 || mode != kToProtocol ? -1 : channel + sdk.channelStep;
}
