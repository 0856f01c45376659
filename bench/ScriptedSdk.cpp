// A device SDK that answers from a script.
// SPDX-License-Identifier: Apache-2.0
#include "ScriptedSdk.h"

#include <algorithm>
#include <cstring>

#include "PelNetSDK/PelNetSDK.h"

namespace Bench
{

Script script;

namespace
{

int Answer(void* buffer, unsigned int size)
{
    if (size < script.smallestBuffer) {
        std::memset(buffer, 'x', std::min(size, script.writtenOnRefusal));
        return 0;
    }
    std::memcpy(buffer, script.answer.data(), std::min<std::size_t>(size, script.answer.size()));
    return 1;
}

}  // namespace
}  // namespace Bench

int NET_ORB_GetDeviceAbility(int /*userID*/, unsigned int /*abilityType*/, char* /*inBuffer*/,
                             unsigned int /*inLength*/, char* outBuffer, unsigned int outLength)
{
    return Bench::Answer(outBuffer, outLength);
}

int NET_ORB_GetSTDAbility(int /*userID*/, unsigned int /*abilityCode*/,
                          tagNET_ORB_STD_ABILITY* ability)
{
    return Bench::Answer(ability->outBuffer, ability->outSize);
}

int NET_ORB_STDXMLConfig(int /*userID*/, tagNET_ORB_XML_CONFIG_INPUT* /*input*/,
                         tagNET_ORB_XML_CONFIG_OUTPUT* output)
{
    return Bench::Answer(output->outBuffer, output->outBufferSize);
}

unsigned int NET_ORB_GetLastError(void)
{
    return NET_ORB_BUFFER_TOO_SMALL;
}

int NET_ORB_GetLastErrorModelCode(int* /*errModelCode*/, int* /*errDevSelfEx*/)
{
    return 1;
}

int NET_ORB_SDKChannelToTARN(int /*userID*/, int channel, int /*mode*/)
{
    return channel;
}
