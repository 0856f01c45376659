// Reading status documents and judging refusals.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Refusal.h"

#include <json/json.h>
#include <libxml/parser.h>

#include <charconv>
#include <exception>
#include <memory>
#include <new>
#include <string_view>

#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/Limits.h"

namespace PelNet
{

namespace
{

int ReadCode(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    text.remove_prefix(begin == std::string_view::npos ? text.size() : begin);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    unsigned code = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), code, base);
    return result.ec == std::errc() ? static_cast<int>(code) : 0;
}

void TakeMember(StatusDocument& document, std::string_view name, const std::string& text)
{
    if (name == "subStatusCode") {
        document.subStatusCode = text;
    } else if (name == "errorCode") {
        document.errorCode = ReadCode(text);
    } else if (name == "MErrDevSelfEx") {
        document.deviceCode = ReadCode(text);
    }
}

std::string_view View(const xmlChar* text)
{
    return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

/// While it lives, what libxml2 reports on this thread reaches neither the client's handlers nor
/// stderr.
class ErrorWatch
{
public:
    ErrorWatch() { xmlSetStructuredErrorFunc(this, &ErrorWatch::Note); }
    ~ErrorWatch() { xmlSetStructuredErrorFunc(clientsContext_, clients_); }
    ErrorWatch(const ErrorWatch&) = delete;
    ErrorWatch& operator=(const ErrorWatch&) = delete;

    [[nodiscard]] bool RanOutOfMemory() const { return ranOutOfMemory_; }

private:
    // Every report counts: a later error replaces the last one.
    static void Note(void* self, xmlErrorPtr error)
    {
        static_cast<ErrorWatch*>(self)->ranOutOfMemory_ |= error->code == XML_ERR_NO_MEMORY;
    }

    const xmlStructuredErrorFunc clients_ = xmlStructuredError;
    void* const clientsContext_ = xmlStructuredErrorContext;
    bool ranOutOfMemory_ = false;
};

std::optional<StatusDocument> ReadXml(const std::string& text)
{
    // A document type could declare entities; no status document has one.
    if (!text.starts_with('<') || text.find("<!DOCTYPE") != std::string::npos ||
        text.find('\0') != std::string::npos) {
        return std::nullopt;
    }
    // Read as UTF-8, whatever it declares: another encoding could hide a document type. If asked
    // for UTF-8 by name, libxml2 would convert, and crash when memory runs out meanwhile.
    constexpr int kOptions = XML_PARSE_IGNORE_ENC | XML_PARSE_NONET;
    const ErrorWatch errors;
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> tree(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, kOptions),
        &xmlFreeDoc);
    if (errors.RanOutOfMemory()) {  // the tree may be incomplete
        throw std::bad_alloc();
    }
    const xmlNode* const root = tree ? xmlDocGetRootElement(tree.get()) : nullptr;
    if (root == nullptr || View(root->name) != "ResponseStatus") {
        return std::nullopt;
    }
    StatusDocument document;
    for (const xmlNode* child = root->children; child != nullptr; child = child->next) {
        const xmlNode* const content = child->children;
        if (child->type == XML_ELEMENT_NODE && content != nullptr &&
            content->type == XML_TEXT_NODE) {
            TakeMember(document, View(child->name), std::string(View(content->content)));
        }
    }
    return document;
}

std::optional<StatusDocument> ReadJson(const std::string& text)
{
    Json::CharReaderBuilder builder;
    builder["stackLimit"] = 32;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    try {
        if (!reader->parse(text.data(), text.data() + text.size(), &value, nullptr) ||
            !value.isObject()) {
            return std::nullopt;
        }
        const Json::Value& nested = static_cast<const Json::Value&>(value)["ResponseStatus"];
        const Json::Value& status = nested.isObject() ? nested : value;
        if (!status.isMember("statusCode") && !status.isMember("errorCode")) {
            return std::nullopt;
        }
        StatusDocument document;
        for (const std::string& name : status.getMemberNames()) {
            const Json::Value& member = status[name];
            if (member.isString() || member.isIntegral()) {
                TakeMember(document, name, member.asString());
            }
        }
        return document;
    } catch (const Json::Exception&) {
        return std::nullopt;
    }
}

}  // namespace

std::optional<StatusDocument> ReadStatusDocument(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of("\xEF\xBB\xBF \t\r\n");
    if (begin == std::string::npos || text.size() > limits::kStatusDocument) {
        return std::nullopt;
    }
    const std::string document = text.substr(begin);
    return document.starts_with('{') ? ReadJson(document) : ReadXml(document);
}

Failure JudgeRefusal(int httpStatus, RequestKind kind,
                     const std::optional<StatusDocument>& document)
{
    Failure failure;
    std::string_view reason;
    if (document) {
        failure.modelCode = document->errorCode;
        failure.deviceCode = document->deviceCode;
        reason = document->subStatusCode;
    }
    const bool isUnknown = httpStatus == 404 || httpStatus == 405 || httpStatus == 501;
    if (httpStatus == 401) {
        failure.error = NET_ORB_PASSWORD_ERROR;
    } else if (reason == "invalidChannel") {
        failure.error = NET_ORB_CHANNEL_ERROR;
    } else if (httpStatus == 503 || httpStatus == 429 || reason == "deviceBusy") {
        failure.error = NET_ORB_DEVICE_BUSY;
    } else if (isUnknown && kind == RequestKind::Ability) {
        failure.error = NET_ORB_ABILITY_FAILED;
    } else if (isUnknown || reason == "notSupport") {
        failure.error = NET_ORB_NOSUPPORT;
    } else if (httpStatus == 403) {
        failure.error = NET_ORB_NOENOUGHPRI;
    } else {
        failure.error = httpStatus >= 400 && httpStatus < 600 ? NET_ORB_DEVICE_REFUSED
                                                              : NET_ORB_NETWORK_ERRORDATA;
    }
    return failure;
}

Failure JudgeRefusal(const TransportAnswer& answer, RequestKind kind,
                     const std::optional<StatusDocument>& document)
{
    Failure failure = JudgeRefusal(answer.status, kind, document);
    if (answer.status == 401) {
        failure.error = answer.loginError;
    }
    SetFailureDetail(answer.hint);
    return failure;
}

}  // namespace PelNet
