// The calls through which the library reaches a device.
// SPDX-License-Identifier: Apache-2.0
#include <charconv>
#include <cstdint>
#include <cstring>
#include <string>

#include "PelNetSDK/Ask.h"
#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Session.h"

namespace PelNet
{

namespace
{

std::string_view View(const void* bytes, unsigned size)
{
    return size == 0 ? std::string_view() : std::string_view(static_cast<const char*>(bytes), size);
}

/// Only packages are asked for with a large buffer from the start.
std::size_t LimitOfRequest(unsigned bufferSize)
{
    return bufferSize < limits::kFirstPackageBuffer ? limits::kDocument : limits::kPackage;
}

int AskRequest(int userID, const tagNET_ORB_XML_CONFIG_INPUT& input,
               tagNET_ORB_XML_CONFIG_OUTPUT& output)
{
    output.returnedSize = 0;
    const bool sound = input.size == sizeof input && input.requestUrl != nullptr &&
                       (input.inBuffer != nullptr || input.inBufferSize == 0);
    const auto line =
        sound ? ParseRequestLine(View(input.requestUrl, input.requestUrlLength)) : std::nullopt;
    if (!line) {
        return Fail(NET_ORB_PARAMETER_ERROR);
    }
    const TransportRequest request{*line, View(input.inBuffer, input.inBufferSize),
                                   input.receiveTimeout};
    return Ask(userID, RequestKind::Request, request,
               {.buffer = output.outBuffer,
                .size = output.outBufferSize,
                .limit = LimitOfRequest(output.outBufferSize),
                .status = output.statusBuffer,
                .statusSize = output.statusSize,
                .returned = &output.returnedSize,
                .returnsStatusSize = true});
}

int AskStandardAbility(int userID, unsigned code, tagNET_ORB_STD_ABILITY& ability)
{
    ability.returnedSize = 0;
    std::string target = "/TARN/SDK/stdAbility/" + std::to_string(code);
    if (ability.conditionBuffer != nullptr || ability.conditionSize != 0) {
        std::int32_t channel = 0;
        if (ability.conditionBuffer == nullptr || ability.conditionSize != sizeof channel) {
            return Fail(NET_ORB_PARAMETER_ERROR);
        }
        std::memcpy(&channel, ability.conditionBuffer, sizeof channel);
        target += "?channel=" + std::to_string(channel);
    }
    return Ask(userID, RequestKind::Ability, {{"GET", std::move(target)}, {}, 0},
               {.buffer = ability.outBuffer,
                .size = ability.outSize,
                .limit = limits::kStandardAbility,
                .status = ability.statusBuffer,
                .statusSize = ability.statusSize,
                .returned = &ability.returnedSize});
}

/// The device's own map, asked once per channel and session.
int AskChannel(int userID, int channel, int mode)
{
    const std::shared_ptr<Session> session = SessionTable::Instance().Find(userID);
    if (!session) {
        return Fail(NET_ORB_NOINIT) - 1;
    }
    if (const auto known = session->KnownChannel(channel, mode)) {
        return *known;
    }
    char text[limits::kChannelNumber] = {};
    unsigned length = 0;
    const std::string target =
        "/TARN/SDK/channels/" + std::to_string(channel) + "?mode=" + std::to_string(mode);
    if (Ask(userID, RequestKind::Request, {{"GET", target}, {}, 0},
            {.buffer = text, .size = sizeof text, .limit = sizeof text, .returned = &length}) ==
        0) {
        // What does not fit is not a number.
        return LastFailure().error == NET_ORB_BUFFER_TOO_SMALL ? Fail(NET_ORB_NETWORK_ERRORDATA) - 1
                                                               : -1;
    }
    int number = -1;
    const auto parsed = std::from_chars(text, text + length, number);
    if (parsed.ec != std::errc() || number < 0) {
        return Fail(parsed.ec != std::errc() ? NET_ORB_NETWORK_ERRORDATA : NET_ORB_CHANNEL_ERROR) -
               1;
    }
    session->LearnChannel(channel, mode, number);
    return number;
}

}  // namespace

}  // namespace PelNet

extern "C" int NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char* inBuffer,
                                        unsigned int inLength, char* outBuffer,
                                        unsigned int outLength)
{
    using namespace PelNet;
    return Guarded([&] {
        if (inBuffer == nullptr && inLength > 0) {
            return Fail(NET_ORB_PARAMETER_ERROR);
        }
        const TransportRequest request{
            {"POST", "/TARN/SDK/deviceAbility/" + std::to_string(abilityType)},
            View(inBuffer, inLength),
            0};
        return Ask(userID, RequestKind::Ability, request,
                   {.buffer = outBuffer, .size = outLength, .limit = limits::kDeviceAbility});
    });
}

extern "C" int NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode,
                                     tagNET_ORB_STD_ABILITY* ability)
{
    using namespace PelNet;
    return Guarded([&] {
        return ability == nullptr ? Fail(NET_ORB_PARAMETER_ERROR)
                                  : AskStandardAbility(userID, abilityCode, *ability);
    });
}

extern "C" int NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                                    tagNET_ORB_XML_CONFIG_OUTPUT* output)
{
    using namespace PelNet;
    return Guarded([&] {
        return input == nullptr || output == nullptr || output->size != sizeof *output
                   ? Fail(NET_ORB_PARAMETER_ERROR)
                   : AskRequest(userID, *input, *output);
    });
}

extern "C" int NET_ORB_SDKChannelToTARN(int userID, int channel, int mode)
{
    return PelNet::Guarded([&] { return PelNet::AskChannel(userID, channel, mode); }, -1);
}
