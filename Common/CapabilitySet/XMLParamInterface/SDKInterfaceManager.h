// The process-wide manager that sends requests on the device's protocol with any method.
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
    bool success = false;  ///< the device carried the request out
    int errorType = 0;     ///< 0: success, 1: invalid user ID, 2: SDK failure, 3: device refusal
    /// -1 for types 0 and 1. Type 2: the SDK's error number; 23 stands for its 1000, and for
    /// memory that ran out; 43 when no buffer was large enough. Type 3: what the installed
    /// translator makes of the device's status, or -1 without one.
    int errorCode = -1;

    friend bool operator==(const InterfaceRet&, const InterfaceRet&) = default;
};

/// Sends request lines and reports failures through three callbacks, which the client installs
/// before its first request. Requests may run on any number of threads; installing a callback
/// while requests run is not synchronised. One for which there is no memory is not installed: the
/// one before it stays.
///
/// A request line begins with its method ("GET /...", "PUT /...", "POST /...", "DELETE /..."),
/// which the caller writes: none of the operations adds one. A caller that wants no answer, or no
/// status, passes a text that is exactly "0". Time-outs are in milliseconds, 0 being the SDK's
/// default. On return `answer` is cut to the size that the SDK reported; `status` is written only
/// on success, when the device sent a status beside its answer.
class CAPABILITYSET_API SDKInterfaceManager
{
public:
    enum URLType
    {
        URL_UNKNOWN = 0,
        URL_GET = 1,
        URL_PUT = 2,
        URL_POST = 3,
        URL_DELETE = 4,
    };

    /// The one manager; made on first use, on whichever thread.
    static SDKInterfaceManager& instance();

    SDKInterfaceManager(const SDKInterfaceManager&) = delete;
    SDKInterfaceManager& operator=(const SDKInterfaceManager&) = delete;

    /// Receives the error number of every SDK failure.
    void setSDKErrorProcessCallBack(const std::function<void(int)>& callBack);
    /// Receives the code of every refusal.
    void setXmlErrorProcessCallBack(const std::function<void(int)>& callBack);
    /// Turns a refusal's status code and sub-status code into the client's own code.
    void setXmlErrorTransCallBack(const std::function<int(int, const std::string&)>& callBack);

    InterfaceRet TransparentRequset(int userID, const std::string& line, const std::string& body,
                                    std::string& answer, std::string& status, unsigned long timeout,
                                    bool flag);
    /// No body.
    InterfaceRet TransparentRequsetGET(int userID, const std::string& line, std::string& answer,
                                       std::string& status, unsigned long timeout, bool flag);
    /// No answer wanted.
    InterfaceRet TransparentRequsetPUT(int userID, const std::string& line, const std::string& body,
                                       std::string& status, unsigned long timeout, bool flag);
    InterfaceRet TransparentRequsetPOSTNew(int userID, const std::string& line,
                                           const std::string& body, std::string& status,
                                           unsigned long timeout, bool flag);
    /// With an answer.
    InterfaceRet TransparentRequsetPOSTInq(int userID, const std::string& line,
                                           const std::string& body, std::string& answer,
                                           std::string& status, unsigned long timeout, bool flag);
    InterfaceRet TransparentRequsetDEL(int userID, const std::string& line, std::string& status,
                                       const std::string& body, unsigned long timeout, bool flag);

    /// The method of a line that is nothing but a method and a slash ("PUT /"); URL_UNKNOWN for
    /// every longer line.
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
