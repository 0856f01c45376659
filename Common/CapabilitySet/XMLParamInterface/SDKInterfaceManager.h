// The process-wide manager that sends request lines of the device protocol with any method.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "CapabilitySet/Export.h"

namespace CapabilitySet::ParseXmlHelper
{

/// How a request ended.
struct InterfaceRet
{
    bool success = false;  ///< the device carried out the request
    int errorType = 0;     ///< 0: success, 1: invalid user ID, 2: SDK failure, 3: device refusal
    /// Type 2: the SDK's error number; 23 for its 1000 or when memory ran out, 43 when no buffer
    /// was large enough. Type 3: the result of the installed translator, or -1. Else -1.
    int errorCode = -1;

    friend bool operator==(const InterfaceRet&, const InterfaceRet&) = default;
};

/// The one manager of the process: sends request lines with any method and reports failures through
/// three callbacks.
///
/// Threads: install the callbacks before the first request; installing one while requests run is
/// not synchronised. If memory runs out, the old callback stays. Requests may run on any number of
/// threads; callbacks run on the thread that made the request.
///
/// Arguments shared by the requests:
/// - `userID`: the SDK's login. A negative one fails with type 1; nothing is sent.
/// - `line`: method and target, "GET /...", "PUT /...", "POST /..." or "DELETE /...". The caller
///   writes the method; no operation adds one.
/// - `body`: sent as it is; empty sends none.
/// - `answer`: receives the answer, cut to the size that the SDK reported. Pass exactly "0" if no
///   answer is wanted.
/// - `status`: receives the device's status document if the request succeeded and the device sent
///   one. Pass exactly "0" if it is not wanted.
/// - `timeout`: milliseconds for the answer, 0 for the SDK's default.
/// - `flag`: passed on in the SDK's input structure; see PelNetSDK.h.
class CAPABILITYSET_API SDKInterfaceManager
{
public:
    /// Result of RequestUrl2URLType.
    enum URLType
    {
        URL_UNKNOWN = 0,  ///< any line but the four below
        URL_GET = 1,      ///< "GET /"
        URL_PUT = 2,      ///< "PUT /"
        URL_POST = 3,     ///< "POST /"
        URL_DELETE = 4,   ///< "DELETE /"
    };

    /// The manager, created on first use. Safe to call from any thread.
    static SDKInterfaceManager& instance();

    SDKInterfaceManager(const SDKInterfaceManager&) = delete;
    SDKInterfaceManager& operator=(const SDKInterfaceManager&) = delete;

    /// Receives the error number of every SDK failure.
    void setSDKErrorProcessCallBack(const std::function<void(int)>& callBack);
    /// Receives the code of every refusal.
    void setXmlErrorProcessCallBack(const std::function<void(int)>& callBack);
    /// Translates a refusal's status code and sub-status code to the client's own code.
    void setXmlErrorTransCallBack(const std::function<int(int, const std::string&)>& callBack);

    /// Any method, with body and answer.
    InterfaceRet TransparentRequset(int userID, const std::string& line, const std::string& body,
                                    std::string& answer, std::string& status, unsigned long timeout,
                                    bool flag);
    /// Without a body.
    InterfaceRet TransparentRequsetGET(int userID, const std::string& line, std::string& answer,
                                       std::string& status, unsigned long timeout, bool flag);
    /// Without an answer.
    InterfaceRet TransparentRequsetPUT(int userID, const std::string& line, const std::string& body,
                                       std::string& status, unsigned long timeout, bool flag);
    /// Without an answer.
    InterfaceRet TransparentRequsetPOSTNew(int userID, const std::string& line,
                                           const std::string& body, std::string& status,
                                           unsigned long timeout, bool flag);
    /// With an answer.
    InterfaceRet TransparentRequsetPOSTInq(int userID, const std::string& line,
                                           const std::string& body, std::string& answer,
                                           std::string& status, unsigned long timeout, bool flag);
    /// Without an answer.
    InterfaceRet TransparentRequsetDEL(int userID, const std::string& line, std::string& status,
                                       const std::string& body, unsigned long timeout, bool flag);

    /// The method of a bare prefix such as "PUT /".
    // Kept: a whole request line is URL_UNKNOWN, because the terminating NUL is compared too.
    [[nodiscard]] URLType RequestUrl2URLType(const std::string& line) const;

private:
    struct CallBacks;
    class Exchange;

    SDKInterfaceManager();

    InterfaceRet Carry(Exchange& exchange, int userID, URLType type);
    InterfaceRet Failed(unsigned int error);
    InterfaceRet Refused(const std::string& statusText);

    std::shared_ptr<CallBacks> callBacks_;
};

}  // namespace CapabilitySet::ParseXmlHelper
