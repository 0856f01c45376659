// The one road to the SDK: attempts, growing buffers, error numbers, log lines, the last error.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>

#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/ThrowScope.h"
#include "CapabilitySet/private/query/ReceiveBuffer.h"
#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet::query
{

/// The error number when the device does not know what it is asked for, when its answer does not
/// make a valid record, and when an operation runs out of memory.
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

/// What an operation reports when its buffer has reached the limit.
enum class LimitReport
{
    Trace,             ///< a debug trace of the operation, the user and the error
    TraceAndTag,       ///< the trace, and "[DWN]" alone in the log
    TraceAndFullLine,  ///< the trace, and its text after "[DWN]," in the log
    Line,              ///< a log line saying that the buffer is small
    Silent
};

/// What an operation reports on any other SDK error.
enum class FailureReport
{
    Full,  ///< a log line with the error's class and number; sets the last error
    Line,  ///< the log line alone
    Tag    ///< a log line that holds nothing but the failure tag
};

/// How a request's body is passed to the SDK.
enum class BodyForm
{
    Plain,
    /// For alarm hosts: a formatted copy in a zeroed buffer of 8,192 bytes, or of the body's length
    /// plus one if that is more. The whole buffer is sent.
    Padded
};

/// How an operation asks and reports. Each kind of query has a preset; an operation that differs
/// from all of them states its own.
struct Policy
{
    Growth growth;
    LimitReport limit = LimitReport::Trace;
    FailureReport failure = FailureReport::Full;
    const char* limitTag = "[dwn]";    ///< prefix of the report on a reached limit
    const char* failureTag = "";       ///< prefix of the line on a failure
    const char* failedCall = nullptr;  ///< call named in that line; null for the one that was made
    const char* name = nullptr;        ///< operation named in traces; null for its function's name
    const char* tracedAs = nullptr;    ///< what the traces at start and finish name; null for none
    bool needsFlag =
        false;  ///< whether an answer that does not raise the record's flag is an error
    unsigned int timeout = 0;  ///< ms to wait for the answer; 0 for the SDK's default
    BodyForm bodyForm = BodyForm::Plain;
};

inline constexpr Policy kDeviceAbility{.growth = {8192, 8192, 81920}};
inline constexpr Policy kStandardAbility{.growth = {16384, 16384, 163840}};
inline constexpr Policy kTransparent{
    .growth = {16384, 16384, 16384000}, .limitTag = "[kelvar]", .needsFlag = true};

/// An exported operation, as the frame needs to know it.
struct Operation
{
    log::Place place;  ///< CAPABILITYSET_HERE in that operation
    const Policy& policy;

    [[nodiscard]] const char* Name() const
    {
        return policy.name == nullptr ? place.name : policy.name;
    }
};

/// A request that can be sent again with a larger buffer.
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

/// Asks for a device ability, with its request XML unless that is empty.
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

/// Asks for a standard ability of a channel.
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

/// Sends a request line of the device's protocol, up to its first NUL, and a body unless it is
/// empty.
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

    /// The answer's size as the SDK reported it for the last call, at most the buffer's size.
    [[nodiscard]] unsigned int ReturnedSize() const { return returnedSize_; }

private:
    std::string line_;
    std::string body_;
    unsigned int timeout_;  ///< ms; 0 for the SDK's default
    unsigned int returnedSize_ = 0;
};

/// Sends the request with larger and larger buffers until the answer fits. On false, `err`, the
/// last error, the traces and the log say why.
bool SendUntilItFits(const Operation& operation, Request& request, ReceiveBuffer& answer,
                     unsigned int& err);

/// Converts a channel to the protocol's number. On false, the failure of `call` has been reported
/// as one of the operation.
bool ToProtocolChannel(const Operation& operation, int userID, int channel, int& protocolChannel,
                       unsigned int& err, const char* call = "NET_ORB_SDKChannelToTARN");

/// Runs the body of an exported operation; anything it throws becomes error 23 and false.
template <class Body>
bool Guarded(unsigned int& err, Body&& body)
{
    try {
        return body();
    } catch (...)  // nothing is thrown at clients
    {
        err = kNotSupported;
        return false;
    }
}

/// Makes a request, sends it, and passes the answer to `read(ReceiveBuffer&, Request&)`, whose
/// result it returns. `makeRequest` returns a pointer or an optional; an empty one means that the
/// reason has been reported already.
template <class MakeRequest, class Read>
bool Exchange(const Operation& operation, unsigned int& err, MakeRequest&& makeRequest, Read&& read)
{
    // A half-read record is no success: running out of memory has to reach the guard.
    const ThrowScope scope;
    auto request = makeRequest();
    ReceiveBuffer answer(operation.policy.growth.limit);
    return request && SendUntilItFits(operation, *request, answer, err) && read(answer, *request);
}

/// Runs an exported operation that fills `out`: behind the guard it resets `out` and `err` and runs
/// `body`; if that fails, `out` is left at its defaults. A record that collects answers is never
/// reset.
template <class Record, class Body>
bool Fill(Record& out, unsigned int& err, Body&& body)
{
    constexpr bool kResets = !requires { requires Record::kAppendsAnswers; };
    const bool filled = Guarded(err, [&] {
        if constexpr (kResets) {
            out = Record();
        }
        err = 0;
        return body();
    });
    if constexpr (kResets) {
        if (!filled) {
            out = Record();
        }
    }
    return filled;
}

/// A whole query: fills `out` from the answer to the request.
template <class Record, class MakeRequest>
bool Query(Record& out, unsigned int& err, const Operation& operation, MakeRequest&& makeRequest)
{
    return Fill(out, err, [&] {
        return Exchange(operation, err, makeRequest, [&](ReceiveBuffer& answer, Request&) {
            out.Parse(std::string(answer.Text()));
            if constexpr (requires { out.Capable(); }) {
                if (operation.policy.needsFlag && !out.Capable()) {
                    err = kNotSupported;
                    return false;
                }
            }
            return true;
        });
    });
}

}  // namespace CapabilitySet::query
