// The one road to the SDK: attempts, growing buffers, error numbers, log lines, the last error.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/query/ReceiveBuffer.h"
#include "CapabilitySet/private/xml/XmlReading.h"
#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet::query
{

/// The error number of a device that does not know the thing, of an answer that makes no valid
/// record, and of an operation that ran out of memory.
inline constexpr unsigned int kNotSupported = 23;

/// How the receive buffer grows, in bytes, and which error numbers make it grow.
struct Growth
{
    unsigned int start;
    unsigned int step;
    unsigned int limit;  ///< the largest size tried
    bool growOn1001 = true;
    bool report1000As23 = true;
};

inline constexpr Growth kDeviceAbilityGrowth{8192, 8192, 81920};
inline constexpr Growth kStandardAbilityGrowth{16384, 16384, 163840};
inline constexpr Growth kTransparentGrowth{16384, 16384, 16384000};

/// JSON operations grow on 43 alone and hand every other number on unchanged.
inline constexpr Growth kJsonGrowth{16384, 16384, 16384000, false, false};

/// What an operation tells when its buffer has reached the limit.
enum class LimitReport
{
    Trace,          ///< a debug trace of the operation, user and error
    TraceAndTag,    ///< the trace, and "[DWN]" alone in the log
    TraceAndWhole,  ///< the trace, and its text behind "[DWN]," in the log
    Line,           ///< a log line that says that the buffer is small
    Silent
};

/// What an operation tells of any other error of the SDK.
enum class FailureReport
{
    Full,  ///< a log line with the error's class and number, and the last error
    Line,  ///< the log line alone
    Tag    ///< a log line that holds the failure tag and nothing else
};

/// What the frame has to know of an operation beside its request.
struct Operation
{
    log::Place place;  ///< CAPABILITYSET_HERE in the exported operation
    const char* name;  ///< as its traces and lines name it
    Growth growth;
    LimitReport limit = LimitReport::Trace;
    FailureReport failure = FailureReport::Full;
    const char* limitTag = "[dwn]";    ///< before what tells of a reached limit
    const char* failureTag = "";       ///< before the line of a failure
    const char* failedCall = nullptr;  ///< named in that line; null: the call that was made
    const char* timedAs = nullptr;     ///< what is traced at start and finish; null: nothing is
    bool needsFlag = false;            ///< an answer that leaves the record's flag down is an error
};

/// One request that can be sent again with a larger buffer.
class Request
{
public:
    virtual ~Request() = default;
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;

    virtual bool Send(char* buffer, unsigned int size) = 0;

    [[nodiscard]] int UserID() const { return userID_; }
    [[nodiscard]] const char* Call() const { return call_; }

protected:
    Request(int userID, const char* call) : userID_(userID), call_(call) {}

private:
    int userID_;
    const char* call_;
};

/// A device ability, asked for with its request XML or, when that is empty, without.
class DeviceAbilityRequest : public Request
{
public:
    DeviceAbilityRequest(int userID, unsigned int ability, std::string xml = {})
        : Request(userID, "NET_ORB_GetDeviceAbility"), ability_(ability), xml_(std::move(xml))
    {
    }

    bool Send(char* buffer, unsigned int size) override;

private:
    unsigned int ability_;
    std::string xml_;
};

/// A standard ability of a channel.
class StandardAbilityRequest : public Request
{
public:
    StandardAbilityRequest(int userID, unsigned int ability, unsigned int channel)
        : Request(userID, "NET_ORB_GetSTDAbility"), ability_(ability), channel_(channel)
    {
    }

    bool Send(char* buffer, unsigned int size) override;

private:
    unsigned int ability_;
    unsigned int channel_;
};

/// A request line on the device's protocol, up to its first NUL, with or without a body.
class TransparentRequest : public Request
{
public:
    explicit TransparentRequest(int userID, std::string line, std::string body = {},
                                unsigned int timeout = 0)
        : Request(userID, "NET_ORB_STDXMLConfig"),
          line_(std::move(line)),
          body_(std::move(body)),
          timeout_(timeout)
    {
    }

    bool Send(char* buffer, unsigned int size) override;

    /// What the SDK says it returned for the last call, at most the buffer's size.
    [[nodiscard]] unsigned int ReturnedSize() const { return returnedSize_; }

private:
    std::string line_;
    std::string body_;
    unsigned int timeout_;  ///< milliseconds, 0: the SDK's default
    unsigned int returnedSize_ = 0;
};

/// Sends the request with larger and larger buffers until the answer fits. False: `err`, the last
/// error, traces and log lines tell why.
bool Ask(const Operation& operation, Request& request, ReceiveBuffer& answer, unsigned int& err);

/// The protocol's number of a channel; false: the failure is reported as one of the operation, of
/// a call of this name.
bool ToProtocolChannel(const Operation& operation, int userID, int channel, int& protocolChannel,
                       unsigned int& err, const char* call = "NET_ORB_SDKChannelToTARN");

/// Runs an exported operation's body: whatever it throws becomes error 23 and false.
template <class Body>
bool Guarded(unsigned int& err, Body&& body)
{
    try {
        return body();
    } catch (...)  // the boundary to the client, across which nothing is thrown
    {
        err = kNotSupported;
        return false;
    }
}

/// A whole query: resets `out`, asks the device, and parses the answer into `out`. `makeRequest`
/// runs behind the guard, since making a request takes memory; it gives a Request, or a pointer to
/// one that is null when it has already reported why there is none.
template <class Record, class MakeRequest>
bool Fill(Record& out, unsigned int& err, const Operation& operation, MakeRequest&& makeRequest)
{
    const bool filled = Guarded(err, [&] {
        out = Record();
        err = 0;
        auto request = makeRequest();
        ReceiveBuffer answer(operation.growth.limit);
        if constexpr (requires { *request; }) {
            if (request == nullptr || !Ask(operation, *request, answer, err)) {
                return false;
            }
        } else if (!Ask(operation, request, answer, err)) {
            return false;
        }
        // Here a failed allocation inside Parse reaches the guard: no half-read record is a
        // success.
        const xml::ReadingLevel level;
        out.Parse(std::string(answer.Text()));
        if constexpr (requires { out.Capable(); }) {
            if (operation.needsFlag && !out.Capable()) {
                err = kNotSupported;
                return false;
            }
        }
        return true;
    });
    if (!filled) {
        out = Record();
    }
    return filled;
}

}  // namespace CapabilitySet::query
