// Operations of every family in one form.
// SPDX-License-Identifier: Apache-2.0
#include "support/FaultSubjects.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "support/XmlSamples.h"

namespace TestSupport
{

using namespace CapabilitySet;

ManagerReport managerReport;
CallBack throwingCallBack = CallBack::None;
unsigned callBacksThrown = 0;

namespace
{

Subject Of(const OperationRow& row)
{
    const std::string sound = row.document;
    Subject subject{.name = row.name, .policy = row.policy, .sound = sound};
    subject.root = sound.substr(1, sound.find_first_of(" />") - 1);
    subject.family = row.kind == SdkCall::DeviceAbility     ? kDeviceAbility
                     : row.kind == SdkCall::StandardAbility ? kStandardAbility
                                                            : kTransparent;
    subject.ask = [&row] {
        const Answered answered = row.ask();
        return Given{answered.result, answered.err,
                     answered.isRead         ? Held::Whole
                     : answered.isAtDefaults ? Held::Defaults
                                             : Held::Other};
    };
    subject.needsFlag = row.needsFlag;
    subject.tellsError = !row.errByValue;
    subject.convertsChannel = row.name == std::string("AlarmAbility::GetAlarmAbility");
    subject.xml = &row;
    return subject;
}

Subject Of(const JsonOperationRow& row, Family family)
{
    Subject subject{.name = row.name, .family = family, .sound = row.answer};
    const std::size_t name = subject.sound.find('"') + 1;
    subject.root = subject.sound.substr(name, subject.sound.find('"', name) - name);
    subject.ask = [&row] {
        const JsonAnswered answered = row.ask(row.answer);
        Held held = answered.isAtDefaults ? Held::Defaults
                    : answered.isFilled   ? Held::Whole
                                          : Held::Other;
        if (row.keepsRecord) {
            held = answered.result     ? Held::Unknown
                   : answered.isFilled ? Held::Defaults
                                       : Held::Other;
        }
        return Given{answered.result, answered.err, held};
    };
    subject.tellsError = row.tellsError;
    subject.setsLastError = row.onlyLine == nullptr;
    subject.convertsChannel = row.convertsChannel;
    subject.json = &row;
    return subject;
}

Subject Package(const char* name, bool (*get)(tagNET_ORB_XML_CONFIG_OUTPUT&, unsigned&))
{
    Subject subject{.name = name, .family = kPackage, .sound = std::string("P\0K and more", 12)};
    subject.policy = {1048576, 1048576, 1048576000, false, false};
    subject.ask = [get] {
        char mark = 0;
        tagNET_ORB_XML_CONFIG_OUTPUT before{};
        std::memset(&before, 0x5a, sizeof before);
        before.outBuffer = &mark;
        tagNET_ORB_XML_CONFIG_OUTPUT out = before;
        Given given{.err = 77};
        given.success = get(out, given.err);
        given.held = std::memcmp(&out, &before, sizeof out) == 0 ? Held::Defaults : Held::Other;
        if (out.outBuffer != &mark) {
            const std::unique_ptr<char[]> package(static_cast<char*>(out.outBuffer));
            given.bytes.assign(package.get(), out.returnedSize);
        }
        return given;
    };
    return subject;
}

void ThrowIf(CallBack which)
{
    if (throwingCallBack == which) {
        ++callBacksThrown;
        throw std::runtime_error("client");
    }
}

Subject Manager()
{
    Subject subject{.name = "TransparentRequsetGET", .family = kManager, .sound = "hello world"};
    subject.policy = {2048, 0, 0, true, true};
    subject.setsLastError = false;
    subject.ask = [] {
        managerReport = {};
        auto& manager = ParseXmlHelper::SDKInterfaceManager::instance();
        manager.setSDKErrorProcessCallBack([](int error) {
            managerReport.sdkErrors.push_back(error);
            ThrowIf(CallBack::SdkError);
        });
        manager.setXmlErrorProcessCallBack([](int error) {
            managerReport.xmlErrors.push_back(error);
            ThrowIf(CallBack::XmlError);
        });
        manager.setXmlErrorTransCallBack([](int code, const std::string& subCode) {
            managerReport.translated.emplace_back(code, subCode);
            ThrowIf(CallBack::XmlErrorTrans);
            return 4711;
        });
        Given given{.bytes = "an older answer"};
        const auto result = manager.TransparentRequsetGET(kUser, "GET /TARN/x\r\n", given.bytes,
                                                          managerReport.status, 0, false);
        managerReport.type = result.errorType;
        managerReport.code = result.errorCode;
        given.success = result.success;
        given.err = result.success ? 0 : static_cast<unsigned>(result.errorCode);
        return given;
    };
    return subject;
}

void AddRaw(std::vector<Subject>& subjects)
{
    subjects.push_back(Package("GetHFPDDataPackage", [](auto& out, unsigned& err) {
        return JsonConfigApp::GetHFPDDataPackage(out, "t 1", err, kUser);
    }));
    subjects.push_back(Package("GetFCDataPackageByJson", [](auto& out, unsigned& err) {
        CaptureSearchDescription description;
        return JsonConfigApp::GetFCDataPackageByJson(description, out, err, kUser);
    }));
    subjects.push_back(Manager());
}

template <class Record>
bool IsSameRecord(const Record& a, const Record& b)
{
    if constexpr (requires { a.root == b.root; }) {
        if (a.Capable() != b.Capable() || a.root != b.root) {
            return false;
        }
    }
    return SameFields(a, b);
}

/// An operation whose record is compared with `content`, the document without its root.
template <class Record, class Query>
Subject Filled(const char* name, const std::string& content, Query query)
{
    const auto rows = Operations();
    Subject subject = Of(*std::ranges::find(rows, std::string_view(name), &OperationRow::name));
    subject.sound = Element(subject.root, {{}, content});
    subject.ask = [sound = subject.sound, query] {
        const Record whole(sound);
        Record record(sound);
        Given given{.err = 77};
        given.success = query(record, given.err);
        given.held = IsSameRecord(record, Record()) ? Held::Defaults
                     : IsSameRecord(record, whole)  ? Held::Whole
                                                    : Held::Other;
        return given;
    };
    return subject;
}

const JsonOperationRow& JsonNamed(const char* name)
{
    return *std::ranges::find(JsonOperations(), std::string_view(name), &JsonOperationRow::name);
}

}  // namespace

std::vector<Subject> AllOperations()
{
    std::vector<Subject> subjects;
    for (const OperationRow& row : Operations()) {
        subjects.push_back(Of(row));
    }
    const std::size_t json = JsonCapabilityRows().size();
    const std::size_t host = AlarmHostRows().size();
    for (const JsonOperationRow& row : JsonOperations()) {
        const auto at = static_cast<std::size_t>(&row - JsonOperations().data());
        subjects.push_back(Of(row, at >= json && at < json + host ? kAlarmHost : kJson));
    }
    AddRaw(subjects);
    return subjects;
}

std::vector<Subject> FamilyModels()
{
    std::vector<Subject> subjects{
        Filled<BasicCapability>("BasicCapability::GetBasicCapability", AllFields<BasicCapability>(),
                                [](auto& out, unsigned& err) {
                                    return BasicCapability::GetBasicCapability(out, err, kUser);
                                }),
        Filled<EventTriggerCap>(
            "EventTriggerCap::GetEventTriggerCapAbility", AllFields<EventTriggerCap>(),
            [](auto& out, unsigned& err) {
                return EventTriggerCap::GetEventTriggerCapAbility(out, err, kUser, 1);
            }),
        Filled<ChannelInfoAbility>("ChannelInfoAbility::GetChannelInfoAbility",
                                   "<channelNO>3</channelNO><b c='1'>text</b>",
                                   [](auto& out, unsigned& err) {
                                       return ChannelInfoAbility::GetChannelInfoAbility(
                                           out, err, kUser, 3, "type");
                                   }),
        Filled<DeviceCap>("DeviceCap::GetDeviceCapability",
                          "<SysCap><a opt='true,false'>1</a></SysCap><RaCap>2</RaCap>",
                          [](auto& out, unsigned& err) {
                              return DeviceCap::GetDeviceCapability(out, err, kUser);
                          }),
        Of(JsonNamed("JsonCapApp::GetHFPDCapability"), kJson),
        Of(JsonNamed("JsonConfigApp::GetAlarmHostZoneConfiguration"), kAlarmHost),
    };
    AddRaw(subjects);
    return subjects;
}

}  // namespace TestSupport
