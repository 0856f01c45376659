// Fuzzes the transparent manager with a device's script.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>

#include <libxml/parser.h>

#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "CapabilitySet/private/NumberText.h"
#include "CapabilitySet/private/xml/XmlDocument.h"
#include "fuzz/Check.h"
#include "fuzz/Chunks.h"
#include "fuzz/Targets.h"
#include "support/ScriptedSdk.h"

namespace Fuzz
{
namespace
{

using CapabilitySet::ParseXmlHelper::InterfaceRet;
using CapabilitySet::ParseXmlHelper::SDKInterfaceManager;
using TestSupport::ScriptedSdk;
using TestSupport::SdkStep;

constexpr unsigned kErrors[] = {0, 43, 1001, 1000, 7};
constexpr std::size_t kMostSteps = 6;

/// What the three callbacks received.
struct Told
{
    std::vector<int> sdkErrors;
    std::vector<int> xmlErrors;
    std::vector<std::pair<int, std::string>> statuses;
};
Told told;

int Translated(int statusCode)
{
    return statusCode % 1000 + 5000;
}

void InstallCallBacks()
{
    static const bool installed = [] {
        auto& manager = SDKInterfaceManager::instance();
        manager.setSDKErrorProcessCallBack([](int error) { told.sdkErrors.push_back(error); });
        manager.setXmlErrorProcessCallBack([](int error) { told.xmlErrors.push_back(error); });
        manager.setXmlErrorTransCallBack([](int status, const std::string& subStatus) {
            told.statuses.emplace_back(status, subStatus);
            return Translated(status);
        });
        return true;
    }();
    static_cast<void>(installed);
    told = {};
}

/// Error, size and texts of one call. A device that asks for a larger buffer gets it; the size of
/// what it sent may be false.
SdkStep StepOf(std::string_view chunk)
{
    SdkStep step;
    const unsigned kind = TakeByte(chunk);
    step.error = kErrors[kind % std::size(kErrors)];
    step.returnedSize = TakeByte(chunk) * 256U;
    step.returnedSize += TakeByte(chunk);
    const bool wantsRoom = step.error == 43 || step.error == 1001;
    if ((kind & 0x80U) != 0 && !wantsRoom) {
        step.returnedSize = ~step.returnedSize;
    }
    std::string& text = (kind & 0x20U) != 0 ? step.answer : step.status;
    text = chunk;
    return step;
}

/// The two members of a refusal that callbacks see, found with the plain cursor.
std::pair<int, std::string> PlainStatus(const std::string& text)
{
    namespace xml = CapabilitySet::xml;
    std::pair<int, std::string> status;
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
    xmlNode* cursor = document == nullptr ? nullptr : xmlDocGetRootElement(document.get());
    if (cursor == nullptr || xml::XmlCharToString(cursor->name) != "ResponseStatus") {
        return status;
    }
    cursor = cursor->children;
    for (const char* name : {"requestURL", "statusCode", "statusString", "subStatusCode"}) {
        if (!xml::NextElementNamed(cursor, name)) {
            continue;
        }
        const std::string content = xml::GetNodeString(cursor);
        cursor = cursor->next;
        if (std::string_view(name) == "statusCode") {
            status.first = CapabilitySet::StringToInt(content);
        } else if (std::string_view(name) == "subStatusCode") {
            status.second = content;
        }
    }
    return status;
}

struct Texts
{
    std::string answer;
    std::string status;
};

const SdkStep& LastStep()
{
    const ScriptedSdk& sdk = ScriptedSdk::Instance();
    return sdk.steps[std::min(sdk.calls.size(), sdk.steps.size()) - 1];
}

/// The status that the device wrote over all calls, cut to the size that it reported last.
std::string SentStatus()
{
    const ScriptedSdk& sdk = ScriptedSdk::Instance();
    std::string buffer;
    for (std::size_t call = 0; call < sdk.calls.size(); ++call) {
        if (buffer.size() < sdk.calls[call].statusSize) {
            buffer.assign(sdk.calls[call].statusSize, '\0');
        }
        const std::string& status = sdk.steps[std::min(call, sdk.steps.size() - 1)].status;
        std::copy_n(status.data(), std::min(status.size(), buffer.size()), buffer.data());
    }
    return buffer.substr(0, std::min<std::size_t>(buffer.size(), LastStep().returnedSize));
}

void CheckReports(const InterfaceRet& result)
{
    const SdkStep& last = LastStep();
    Require(result.success == (last.error == 0), "the result is that of the last call");
    Require(result.success == (result.errorType == 0), "a type other than 0 is a failure");
    Require((result.errorType == 2) == !told.sdkErrors.empty() && told.sdkErrors.size() <= 1,
            "the callback receives each SDK failure once, and nothing else");
    Require((result.errorType == 3) == !told.statuses.empty() && told.statuses.size() <= 1 &&
                told.xmlErrors.size() == told.statuses.size(),
            "each refusal is translated and reported once, and nothing else");
    if (result.errorType == 2) {
        Require(result.errorCode == told.sdkErrors[0], "the code is what was told");
    }
    if (result.errorType == 3) {
        Require(told.statuses[0] == PlainStatus(SentStatus()), "a refusal is read as it was sent");
        Require(result.errorCode == Translated(told.statuses[0].first) &&
                    result.errorCode == told.xmlErrors[0],
                "a refusal's code is the translator's");
    }
}

void CheckTexts(const InterfaceRet& result, const Texts& before, const Texts& after)
{
    if (before.answer == "0") {
        Require(after.answer == "0", "who wants no answer keeps the mark");
    } else {
        Require(after.answer.size() <= LastStep().returnedSize, "an answer is cut to its size");
    }
    if (!result.success || before.status == "0") {
        Require(after.status == before.status, "a status is written on success alone");
    } else {
        Require(after.status == before.status || after.status == SentStatus(),
                "a status is what was sent");
    }
    for (const auto& call : ScriptedSdk::Instance().calls) {
        Require(call.isWellFilled, "every call is well-formed");
    }
    Require(ScriptedSdk::Instance().calls.size() <= kMostSteps + 2, "growing ends");
}

}  // namespace

void Transparent(const std::string& text)
{
    constexpr const char* kLines[] = {"GET /TARN/a\r\n", "PUT /TARN/a\r\n", "PUT /", "POST /TARN/a",
                                      "DELETE /"};
    InstallCallBacks();
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    std::string_view rest = text;
    const unsigned form = TakeByte(rest);
    for (const std::string_view chunk : SplitChunks(rest, kMostSteps)) {
        sdk.steps.push_back(StepOf(chunk));
    }

    const Texts before{(form & 0x80U) != 0 ? "0" : "before", (form & 0x40U) != 0 ? "0" : "before"};
    Texts after = before;
    const InterfaceRet result = SDKInterfaceManager::instance().TransparentRequset(
        1, kLines[form % std::size(kLines)], (form & 0x20U) != 0 ? "<body/>" : "", after.answer,
        after.status, 0, false);
    CheckReports(result);
    CheckTexts(result, before, after);
}

}  // namespace Fuzz
