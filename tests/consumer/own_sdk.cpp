// A client with its own SDK: it defines the six functions and links no other SDK.
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstring>

#include "CapabilitySet/BasicCapability.h"
#include "PelNetSDK/PelNetSDK.h"

namespace
{

const char kDocument[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><BasicCapability version=\"2.0\">"
    "<HardwareCapability><AlarmInPortNum>7</AlarmInPortNum></HardwareCapability>"
    "</BasicCapability>";
unsigned int lastError = NET_ORB_NOERROR;

}  // namespace

int NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char*, unsigned int,
                             char* outBuffer, unsigned int outLength)
{
    const bool known = userID == 5 && abilityType == 1 && outLength >= sizeof kDocument;
    lastError = known ? NET_ORB_NOERROR : NET_ORB_ABILITY_FAILED;
    if (known) {
        std::memcpy(outBuffer, kDocument, sizeof kDocument);
    }
    return known ? 1 : 0;
}

int NET_ORB_GetSTDAbility(int, unsigned int, tagNET_ORB_STD_ABILITY*)
{
    return 0;
}

int NET_ORB_STDXMLConfig(int, tagNET_ORB_XML_CONFIG_INPUT*, tagNET_ORB_XML_CONFIG_OUTPUT*)
{
    return 0;
}

unsigned int NET_ORB_GetLastError()
{
    return lastError;
}

int NET_ORB_GetLastErrorModelCode(int*, int*)
{
    return 0;
}

int NET_ORB_SDKChannelToTARN(int, int channel, int)
{
    return channel;
}

int main()
{
    CapabilitySet::BasicCapability out;
    unsigned int err = 0;
    const bool answered = CapabilitySet::BasicCapability::GetBasicCapability(out, err, 5);
    std::printf("answered %d, alarm inputs %d\n", answered,
                static_cast<int>(out.hardware.AlarmInPortNum));
    const bool right = answered && out.hardware.AlarmInPortNum == 7;
    const bool refused = !CapabilitySet::BasicCapability::GetBasicCapability(out, err, 6);
    std::printf("refused %d, err %u\n", refused, err);
    return right && refused && err == 23 ? 0 : 1;
}
