// The one road to the SDK.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/QueryFrame.h"

#include <algorithm>
#include <cstring>

#include "CommonMethod/SDKErrorCode/SDKErrorCode.h"
#include "Vsk/OutputDebug.h"

namespace CapabilitySet::query
{
namespace
{

bool WantsLargerBuffer(const Growth& growth, unsigned int error)
{
    return error == NET_ORB_BUFFER_TOO_SMALL ||
           (error == NET_ORB_ABILITY_TOO_SMALL && growth.growOn1001);
}

/// Gives up with the SDK's error: the caller's number, one log line, the last error.
void ReportSdkError(const Operation& operation, const char* call, unsigned int error,
                    unsigned int& err)
{
    const bool unknownAbility = error == NET_ORB_ABILITY_FAILED && operation.growth.report1000As23;
    err = unknownAbility ? kNotSupported : error;
    if (operation.failure == FailureReport::Tag) {
        log::Error(operation.place, "%s", operation.failureTag);
        return;
    }
    Keel::Error::ErrorCode last;
    comm_method::getLastSDKError(last.module, last.code);
    log::Error(operation.place, "%s%s failed, [%d]-[%d].", operation.failureTag, call, last.module,
               last.code);
    if (operation.failure == FailureReport::Full) {
        Keel::Error::SetLastError(last);
    }
}

/// Gives up because the largest buffer was too small. The last error stays as it was.
void ReportLimit(const Operation& operation, int userID, unsigned int& err)
{
    err = NET_ORB_BUFFER_TOO_SMALL;
    const int code = static_cast<int>(err);
    if (operation.limit == LimitReport::Silent) {
        return;
    }
    if (operation.limit == LimitReport::Line) {
        log::Error(operation.place, "%s%s failed, buf is small.", operation.limitTag,
                   operation.name);
        return;
    }
    VSK_OutputDebug("%sfailure to CCapabilityApp::%s, userID = [%d], error code = [%d]",
                    operation.limitTag, operation.name, userID, code);
    // Kept: support staff search logs for the bare tag.
    if (operation.limit == LimitReport::TraceAndTag) {
        log::Error(operation.place, "[DWN]");
    } else if (operation.limit == LimitReport::TraceAndWhole) {
        log::Error(operation.place,
                   "[DWN],failure to CCapabilityApp::%s, userID = [%d], error code = [%d]",
                   operation.name, userID, code);
    }
}

void Trace(const char* what, const char* timedAs)
{
    if (timedAs != nullptr) {
        VSK_OutputDebug("[AbilityTime]%s to get %s", what, timedAs);
    }
}

}  // namespace

bool DeviceAbilityRequest::Send(char* buffer, unsigned int size)
{
    char* const input = xml_.empty() ? nullptr : xml_.data();
    return NET_ORB_GetDeviceAbility(UserID(), ability_, input,
                                    static_cast<unsigned int>(xml_.size()), buffer, size) != 0;
}

bool StandardAbilityRequest::Send(char* buffer, unsigned int size)
{
    tagNET_ORB_STD_ABILITY ability{};
    ability.conditionBuffer = &channel_;
    ability.conditionSize = sizeof channel_;
    ability.outBuffer = buffer;
    ability.outSize = size;
    return NET_ORB_GetSTDAbility(UserID(), ability_, &ability) != 0;
}

bool TransparentRequest::Send(char* buffer, unsigned int size)
{
    tagNET_ORB_XML_CONFIG_INPUT input{};
    input.size = sizeof input;
    input.requestUrl = line_.data();
    input.requestUrlLength = static_cast<unsigned int>(std::strlen(line_.c_str()));
    if (!body_.empty()) {
        input.inBuffer = body_.data();
        input.inBufferSize = static_cast<unsigned int>(body_.size());
    }
    input.receiveTimeout = timeout_;
    tagNET_ORB_XML_CONFIG_OUTPUT output{};
    output.size = sizeof output;
    output.outBuffer = buffer;
    output.outBufferSize = size;
    const bool answered = NET_ORB_STDXMLConfig(UserID(), &input, &output) != 0;
    returnedSize_ = std::min(output.returnedSize, size);
    return answered;
}

bool Ask(const Operation& operation, Request& request, ReceiveBuffer& answer, unsigned int& err)
{
    const Growth& growth = operation.growth;
    for (unsigned int size = growth.start; size <= growth.limit; size += growth.step) {
        char* const buffer = answer.Renew(size);
        Trace("Start", operation.timedAs);
        if (request.Send(buffer, size)) {
            Trace("Finish", operation.timedAs);
            return true;
        }
        const unsigned int error = NET_ORB_GetLastError();
        if (!WantsLargerBuffer(growth, error)) {
            const bool named = operation.failedCall != nullptr;
            ReportSdkError(operation, named ? operation.failedCall : request.Call(), error, err);
            return false;
        }
    }
    ReportLimit(operation, request.UserID(), err);
    return false;
}

bool ToProtocolChannel(const Operation& operation, int userID, int channel, int& protocolChannel,
                       unsigned int& err, const char* call)
{
    protocolChannel = NET_ORB_SDKChannelToTARN(userID, channel, 1);
    if (protocolChannel != -1) {
        return true;
    }
    ReportSdkError(operation, call, NET_ORB_GetLastError(), err);
    return false;
}

}  // namespace CapabilitySet::query
