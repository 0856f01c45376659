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

/// Reports an SDK error: the caller's number, one log line, the last error.
void ReportSdkError(const Operation& operation, const char* call, unsigned int error,
                    unsigned int& err)
{
    const Policy& policy = operation.policy;
    const bool unknownAbility = error == NET_ORB_ABILITY_FAILED && policy.growth.report1000As23;
    err = unknownAbility ? kNotSupported : error;
    if (policy.failure == FailureReport::Tag) {
        log::Error(operation.place, "%s", policy.failureTag);
        return;
    }
    Keel::Error::ErrorCode last;
    comm_method::getLastSDKError(last.module, last.code);
    log::Error(operation.place, "%s%s failed, [%d]-[%d].", policy.failureTag, call, last.module,
               last.code);
    if (policy.failure == FailureReport::Full) {
        Keel::Error::SetLastError(last);
    }
}

/// Reports that the largest buffer was too small. The last error stays as it was.
void ReportLimit(const Operation& operation, int userID, unsigned int& err)
{
    const Policy& policy = operation.policy;
    err = NET_ORB_BUFFER_TOO_SMALL;
    const int code = static_cast<int>(err);
    if (policy.limit == LimitReport::Silent) {
        return;
    }
    if (policy.limit == LimitReport::Line) {
        log::Error(operation.place, "%s%s failed, buf is small.", policy.limitTag,
                   operation.Name());
        return;
    }
    VSK_OutputDebug("%sfailure to CCapabilityApp::%s, userID = [%d], error code = [%d]",
                    policy.limitTag, operation.Name(), userID, code);
    // Kept: support staff search logs for the bare tag.
    if (policy.limit == LimitReport::TraceAndTag) {
        log::Error(operation.place, "[DWN]");
    } else if (policy.limit == LimitReport::TraceAndFullLine) {
        log::Error(operation.place,
                   "[DWN],failure to CCapabilityApp::%s, userID = [%d], error code = [%d]",
                   operation.Name(), userID, code);
    }
}

void Trace(const char* what, const char* tracedAs)
{
    if (tracedAs != nullptr) {
        VSK_OutputDebug("[AbilityTime]%s to get %s", what, tracedAs);
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

bool SendUntilItFits(const Operation& operation, Request& request, ReceiveBuffer& answer,
                     unsigned int& err)
{
    const Policy& policy = operation.policy;
    const Growth& growth = policy.growth;
    for (unsigned int size = growth.start; size <= growth.limit; size += growth.step) {
        char* const buffer = answer.Renew(size);
        Trace("Start", policy.tracedAs);
        if (request.Send(buffer, size)) {
            Trace("Finish", policy.tracedAs);
            return true;
        }
        const unsigned int error = NET_ORB_GetLastError();
        if (!WantsLargerBuffer(growth, error)) {
            const bool named = policy.failedCall != nullptr;
            ReportSdkError(operation, named ? policy.failedCall : request.Call(), error, err);
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
