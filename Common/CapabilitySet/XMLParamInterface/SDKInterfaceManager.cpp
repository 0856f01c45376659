// The process-wide manager that sends protocol requests with any method.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/xml/XmlFields.h"
#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet::ParseXmlHelper
{
namespace
{

constexpr const char* kNotWanted = "0";
constexpr std::size_t kFirstAnswer = 2048;
constexpr std::size_t kFirstStatus = 512;

enum ErrorType
{
    kSuccess = 0,
    kInvalidUser = 1,
    kSdkFailure = 2,
    kRefusal = 3
};

/// The status a device sends with a refusal.
struct ResponseStatus
{
    std::string requestURL;
    int statusCode = 0;
    std::string statusString;
    std::string subStatusCode;
    std::string ID;

    /// Reads a "ResponseStatus" document; anything else leaves the defaults. Logs nothing: refusals
    /// are reported through the callbacks.
    void Parse(const std::string& text)
    {
        xml::EndAtException([&] {
            xml::Problem problem;
            const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
            xmlNode* root = document == nullptr ? nullptr : xmlDocGetRootElement(document.get());
            if (xml::NextElementNamed(root, "ResponseStatus")) {
                xml::ReadFields(*this, root->children);
            }
        });
    }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("requestURL", r.requestURL);
        field("statusCode", r.statusCode);
        field("statusString", r.statusString);
        field("subStatusCode", r.subStatusCode);
        field("ID", r.ID);
    }
};

/// Copies a callback to its holder, if there is a holder and enough memory.
template <class Holder, class CallBack>
void Install(Holder* holder, CallBack Holder::*member, const CallBack& callBack)
{
    unsigned int err = 0;
    query::Guarded(err, [&] {
        if (holder != nullptr) {
            holder->*member = callBack;
        }
        return true;
    });
}

}  // namespace

struct SDKInterfaceManager::CallBacks
{
    std::function<void(int)> sdkError;
    std::function<void(int)> xmlError;
    std::function<int(int, const std::string&)> xmlErrorTrans;
};

/// Calls a copy of a callback, which may install another one in its place.
void Call(std::function<void(int)> callBack, int code)
{
    if (callBack) {
        callBack(code);
    }
}

/// One request: its structures, and the buffers that grow while the SDK asks for more. In the end
/// the caller's answer is always cut to the size the SDK reported for the last call.
class SDKInterfaceManager::Exchange
{
public:
    Exchange(const std::string& line, const std::string& body, std::string& answer,
             unsigned long timeout, bool flag)
        : line_(line),
          body_(body),
          wantsAnswer_(answer != kNotWanted),
          answer_(wantsAnswer_ ? answer : ownAnswer_),
          status_(kFirstStatus, '\0')
    {
        input_.size = sizeof input_;
        input_.requestUrl = line_.data();
        input_.requestUrlLength = static_cast<unsigned int>(line_.size());
        if (!body_.empty()) {
            input_.inBuffer = body_.data();
            input_.inBufferSize = static_cast<unsigned int>(body_.size());
        }
        input_.receiveTimeout = static_cast<unsigned int>(
            std::min<unsigned long>(timeout, std::numeric_limits<unsigned int>::max()));
        input_.flag = flag ? 1 : 0;
        output_.size = sizeof output_;
        if (wantsAnswer_) {
            answer_.assign(kFirstAnswer, '\0');
            PassAnswer();
        }
        PassStatus();
    }
    ~Exchange() { answer_.resize(std::min<std::size_t>(answer_.size(), output_.returnedSize)); }
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    bool Send(int userID) { return NET_ORB_STDXMLConfig(userID, &input_, &output_) != 0; }

    /// Grows a buffer to the size the SDK asks for; false if it already has that.
    bool Grow(URLType type)
    {
        const std::size_t wanted = output_.returnedSize;
        std::string& buffer = type == URL_PUT ? status_ : answer_;
        // Give the device room for its answer even if the caller does not want one.
        const std::size_t present =
            type == URL_PUT ? status_.size() : std::max(answer_.size(), kFirstAnswer);
        if (wanted <= present) {
            return false;
        }
        buffer.assign(wanted, '\0');
        if (type == URL_PUT) {
            PassStatus();
        } else {
            PassAnswer();
        }
        return true;
    }

    [[nodiscard]] bool HasStatus() const { return status_.front() != '\0'; }

    /// The status text, cut to the size the SDK reported for the last call.
    [[nodiscard]] std::string Status() const
    {
        return status_.substr(0, std::min<std::size_t>(status_.size(), output_.returnedSize));
    }

private:
    void PassAnswer()
    {
        output_.outBuffer = answer_.data();
        output_.outBufferSize = static_cast<unsigned int>(answer_.size());
    }

    void PassStatus()
    {
        output_.statusBuffer = status_.data();
        output_.statusSize = static_cast<unsigned int>(status_.size());
    }

    tagNET_ORB_XML_CONFIG_INPUT input_{};
    tagNET_ORB_XML_CONFIG_OUTPUT output_{};
    std::string line_;  ///< copied: the caller may pass one string as request and answer
    std::string body_;
    bool wantsAnswer_;
    std::string ownAnswer_;
    std::string& answer_;  ///< the caller's, or our own if the caller wants none
    std::string status_;
};

SDKInterfaceManager::SDKInterfaceManager()
{
    unsigned int err = 0;
    query::Guarded(err, [this] {
        callBacks_ = std::make_shared<CallBacks>();
        return true;
    });
}

SDKInterfaceManager& SDKInterfaceManager::instance()
{
    static SDKInterfaceManager manager;
    return manager;
}

void SDKInterfaceManager::setSDKErrorProcessCallBack(const std::function<void(int)>& callBack)
{
    Install(callBacks_.get(), &CallBacks::sdkError, callBack);
}

void SDKInterfaceManager::setXmlErrorProcessCallBack(const std::function<void(int)>& callBack)
{
    Install(callBacks_.get(), &CallBacks::xmlError, callBack);
}

void SDKInterfaceManager::setXmlErrorTransCallBack(
    const std::function<int(int, const std::string&)>& callBack)
{
    Install(callBacks_.get(), &CallBacks::xmlErrorTrans, callBack);
}

SDKInterfaceManager::URLType SDKInterfaceManager::RequestUrl2URLType(const std::string& line) const
{
    struct Prefix
    {
        const char* text;
        URLType type;
    };
    constexpr std::array<Prefix, 4> kPrefixes = {
        {{"GET /", URL_GET}, {"PUT /", URL_PUT}, {"POST /", URL_POST}, {"DELETE /", URL_DELETE}}};
    for (const Prefix& prefix : kPrefixes) {
        // Kept: clients rely on the NUL being compared too, so that only the bare prefix matches.
        if (std::strncmp(line.c_str(), prefix.text, std::strlen(prefix.text) + 1) == 0) {
            return prefix.type;
        }
    }
    return URL_UNKNOWN;
}

InterfaceRet SDKInterfaceManager::TransparentRequset(int userID, const std::string& line,
                                                     const std::string& body, std::string& answer,
                                                     std::string& status, unsigned long timeout,
                                                     bool flag)
{
    if (userID < 0) {
        return {false, kInvalidUser, -1};
    }
    InterfaceRet result{false, kSdkFailure, static_cast<int>(query::kNotSupported)};
    unsigned int err = 0;
    query::Guarded(err, [&] {
        const bool wantsStatus = status != kNotWanted;
        const URLType type = RequestUrl2URLType(line);
        Exchange exchange(line, body, answer, timeout, flag);
        result = Carry(exchange, userID, type);
        if (result.success && wantsStatus && exchange.HasStatus()) {
            status = exchange.Status();
        }
        return true;
    });
    return result;
}

InterfaceRet SDKInterfaceManager::Carry(Exchange& exchange, int userID, URLType type)
{
    while (!exchange.Send(userID)) {
        if (exchange.HasStatus()) {
            return Refused(exchange.Status());
        }
        const unsigned int error = NET_ORB_GetLastError();
        if (error != NET_ORB_BUFFER_TOO_SMALL && error != NET_ORB_ABILITY_TOO_SMALL) {
            return Failed(error == NET_ORB_ABILITY_FAILED ? query::kNotSupported : error);
        }
        if (!exchange.Grow(type)) {
            return Failed(NET_ORB_BUFFER_TOO_SMALL);
        }
    }
    return {true, kSuccess, -1};
}

InterfaceRet SDKInterfaceManager::Failed(unsigned int error)
{
    const int code = static_cast<int>(error);
    Call(callBacks_ == nullptr ? nullptr : callBacks_->sdkError, code);
    return {false, kSdkFailure, code};
}

InterfaceRet SDKInterfaceManager::Refused(const std::string& statusText)
{
    ResponseStatus status;
    if (!statusText.empty()) {
        status.Parse(statusText);
    }
    int code = -1;
    if (callBacks_ != nullptr && callBacks_->xmlErrorTrans) {
        const auto translate = callBacks_->xmlErrorTrans;
        code = translate(status.statusCode, status.subStatusCode);
    }
    Call(callBacks_ == nullptr ? nullptr : callBacks_->xmlError, code);
    return {false, kRefusal, code};
}

InterfaceRet SDKInterfaceManager::TransparentRequsetGET(int userID, const std::string& line,
                                                        std::string& answer, std::string& status,
                                                        unsigned long timeout, bool flag)
{
    return TransparentRequset(userID, line, {}, answer, status, timeout, flag);
}

InterfaceRet SDKInterfaceManager::TransparentRequsetPUT(int userID, const std::string& line,
                                                        const std::string& body,
                                                        std::string& status, unsigned long timeout,
                                                        bool flag)
{
    std::string noAnswer = kNotWanted;
    return TransparentRequset(userID, line, body, noAnswer, status, timeout, flag);
}

InterfaceRet SDKInterfaceManager::TransparentRequsetPOSTNew(int userID, const std::string& line,
                                                            const std::string& body,
                                                            std::string& status,
                                                            unsigned long timeout, bool flag)
{
    return TransparentRequsetPUT(userID, line, body, status, timeout, flag);
}

InterfaceRet SDKInterfaceManager::TransparentRequsetPOSTInq(int userID, const std::string& line,
                                                            const std::string& body,
                                                            std::string& answer,
                                                            std::string& status,
                                                            unsigned long timeout, bool flag)
{
    return TransparentRequset(userID, line, body, answer, status, timeout, flag);
}

InterfaceRet SDKInterfaceManager::TransparentRequsetDEL(int userID, const std::string& line,
                                                        std::string& status,
                                                        const std::string& body,
                                                        unsigned long timeout, bool flag)
{
    std::string noAnswer = kNotWanted;
    return TransparentRequset(userID, line, body, noAnswer, status, timeout, flag);
}

}  // namespace CapabilitySet::ParseXmlHelper
