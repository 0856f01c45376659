// Status documents in their two forms.
// SPDX-License-Identifier: Apache-2.0
#include "Device/message/StatusDocument.h"

#include <algorithm>

#include <json/value.h>

#include "Device/document/Text.h"

namespace Device
{
namespace
{

constexpr const Status* kOutcomes[] = {
    &Outcome::kOk,
    &Outcome::kDeviceBusy,
    &Outcome::kDeviceError,
    &Outcome::kNotSupport,
    &Outcome::kUnauthorized,
    &Outcome::kMethodNotAllowed,
    &Outcome::kTooLarge,
    &Outcome::kBadXmlFormat,
    &Outcome::kBadJsonFormat,
    &Outcome::kBadXmlContent,
    &Outcome::kBadJsonContent,
    &Outcome::kInvalidChannel,
    &Outcome::kBadParameters,
    &Outcome::kInvalidId,
    &Outcome::kZoneOpen,
    &Outcome::kSubSystemDisabled,
    &Outcome::kSubSystemArmed,
    &Outcome::kNotBypassable,
    &Outcome::kWrongTaskState,
    &Outcome::kTaskNotFinished,
};

// The target goes back to the client; this makes it harmless in XML and JSON.
std::string Printable(std::string_view target)
{
    return PercentEncoded(
        target, [](char c) { return c > 0x20 && c < 0x7f && c != '<' && c != '>' && c != '"'; });
}

std::string XmlForm(const Status& status, const std::string& url)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ResponseStatus version=\"2.0\">\n"
           "  <requestURL>" +
           ReplaceAll(url, "&", "&amp;") +
           "</requestURL>\n"
           "  <statusCode>" +
           std::to_string(status.statusCode) +
           "</statusCode>\n"
           "  <statusString>" +
           status.statusString +
           "</statusString>\n"
           "  <subStatusCode>" +
           status.subStatusCode +
           "</subStatusCode>\n"
           "  <errorCode>" +
           std::to_string(status.errorCode) +
           "</errorCode>\n"
           "</ResponseStatus>\n";
}

std::string JsonForm(const Status& status, const std::string& url, Json::Value root)
{
    root["requestURL"] = url;
    root["statusCode"] = status.statusCode;
    root["statusString"] = status.statusString;
    root["subStatusCode"] = status.subStatusCode;
    root["errorCode"] = status.errorCode;
    return root.toStyledString();
}

}  // namespace

const Status* FindOutcome(std::string_view subStatusCode)
{
    const auto* found = std::ranges::find(kOutcomes, subStatusCode, &Status::subStatusCode);
    return found == std::end(kOutcomes) ? nullptr : *found;
}

Response MakeStatus(const Status& status, std::string_view target)
{
    const std::string url = Printable(target);
    if (WantsJson(target)) {
        return {status.httpStatus, "application/json", JsonForm(status, url, {})};
    }
    return {status.httpStatus, "application/xml", XmlForm(status, url)};
}

Response MakeJson(const Json::Value& document)
{
    return {200, "application/json", document.toStyledString()};
}

Response MakeJsonStatus(const Status& status, std::string_view target, const Json::Value& more)
{
    return {status.httpStatus, "application/json", JsonForm(status, Printable(target), more)};
}

Response MakeMethodNotAllowed(std::string_view target, std::set<std::string> allowed)
{
    Response response = MakeStatus(Outcome::kMethodNotAllowed, target);
    response.allowed = std::move(allowed);
    return response;
}

std::optional<Response> RefuseMalformed(const ParsedRequest& request)
{
    if (request.document.form != RequestDocument::Form::Malformed) {
        return std::nullopt;
    }
    return MakeStatus(
        request.document.looksLikeJson ? Outcome::kBadJsonFormat : Outcome::kBadXmlFormat,
        request.target);
}

}  // namespace Device
