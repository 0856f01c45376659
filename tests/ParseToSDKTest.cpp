// Tests of option strings becoming enumerations.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/ParseToSDK.h"

#include <functional>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/SerialAbility.h"
#include "CapabilitySet/private/xml/XmlReading.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"

using namespace CapabilitySet;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::LogCapture;
using TestSupport::ScriptedSdk;

namespace
{

OptElement<std::string> Options(const std::string& text)
{
    OptElement<std::string> options;
    xml::SplitOptions(options.opt, text);
    return options;
}

using Converted = std::pair<bool, std::vector<int>>;

/// Converts into a vector that was in use before.
template <class Type, class... More>
std::function<Converted(const std::string&)> With(
    bool (*convert)(std::vector<Type>&, const OptElement<std::string>&, More...), More... more)
{
    return [=](const std::string& text) {
        std::vector<Type> types(3);
        const bool result = convert(types, Options(text), more...);
        return Converted(result, {types.begin(), types.end()});
    };
}

TEST(ParseToSDK, EveryOptionBecomesItsNumberInTheDocumentsOrder)
{
    const auto record = With(ConvertRecordTypeFromXmlStr);
    const auto capture = With(ConvertCaptureTypeFromXmlStr);
    const auto handle = With(ConvertHandleTypeFromXmlStr, -1);
    using Table =
        std::tuple<std::function<Converted(const std::string&)>, const char*, std::vector<int>>;
    const Table tables[] = {
        {handle,
         "monitor,audio,center,alarmout,picture,wirelesslight,uploadftp",
         {1, 2, 4, 8, 16, 32, 512}},
        {handle, "record,uploadftp,focus,monitor,ptztrack,norecord", {512, 1}},
        {record,
         "timing,motion,alarm,motionOrAlarm,motionAndAlarm,vca,manual",
         {0, 1, 2, 3, 4, 5, 6}},
        {record, "manual,timing,timing", {6, 0, 0}},
        {capture, "timing,motion,alarm,motionOrAlarm,motionAndAlarm,vca", {0, 1, 2, 3, 4, 5}},
        {With(ConvertWorkModeTypeFormXmlStr),
         "narrowBand,console,transparent,transparentChan,inquestSensor",
         {0, 1, 2, 2, 3}},
        {With(ConvertOutputDataTypeFormXmlStr), "employeeNo,cardNo", {2, 1}}};
    const LogCapture log;
    for (const auto& [convert, options, codes] : tables) {
        EXPECT_EQ(convert(options), Converted(true, codes)) << options;
    }
    EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST(ParseToSDK, UnknownOptionIsOneLineAndTheRestIsConverted)
{
    const std::tuple<std::function<Converted(const std::string&)>, const char*, const char*>
        tables[] = {{With(ConvertHandleTypeFromXmlStr, -1), "Monitor", "alarmHandleType"},
                    {With(ConvertRecordTypeFromXmlStr), " timing", "RecordType"},
                    {With(ConvertCaptureTypeFromXmlStr), "manual", "CaptureType"},
                    {With(ConvertWorkModeTypeFormXmlStr), "transparentChanX", "WorkModeType"},
                    {With(ConvertOutputDataTypeFormXmlStr), "card%sNo", "OutputDataType"}};
    for (const auto& [convert, option, name] : tables) {
        const LogCapture log;
        EXPECT_EQ(convert(option), Converted(true, {})) << option;
        EXPECT_THAT(log.Messages(),
                    ElementsAre(std::string("[") + option + "] is not exist in '" + name + "'."));
        EXPECT_EQ(convert(""), Converted(false, {})) << name;
        EXPECT_EQ(convert(",,"), Converted(false, {})) << name;
    }
}

TEST(ParseToSDK, FtpUploadIsCompletedFromTheBasicCapability)
{
    constexpr const char* kCan =
        "<BasicCapability><SoftwareCapability><UploadFTP>1</UploadFTP></SoftwareCapability>"
        "</BasicCapability>";
    constexpr const char* kCannot =
        "<BasicCapability><SoftwareCapability><UploadFTP>True</UploadFTP></SoftwareCapability>"
        "</BasicCapability>";
    struct Row
    {
        int login;
        const char* options;
        const char* basic;
        bool result;
        std::vector<int> codes;
        std::size_t calls;
    };
    const Row rows[] = {{4, "monitor", kCan, true, {1, 512}, 1},
                        {4, "record,norecord", kCan, true, {512}, 1},
                        {4, "monitor", kCannot, true, {1}, 1},
                        {4, "monitor", "broken", true, {1}, 1},
                        {-2, "monitor", kCan, true, {1, 512}, 1},
                        {4, "monitor,audio,uploadftp", kCan, true, {1, 2, 512}, 0},
                        {-1, "monitor", kCan, true, {1}, 0},
                        {4, "", kCan, false, {}, 0}};
    for (const Row& row : rows) {
        ScriptedSdk::Fresh().texts[1] = row.basic;
        const LogCapture log;
        EXPECT_EQ(With(ConvertHandleTypeFromXmlStr, row.login)(row.options),
                  Converted(row.result, row.codes))
            << row.login << ' ' << row.options;
        EXPECT_EQ(ScriptedSdk::Instance().calls.size(), row.calls);
    }
}

TEST(SerialAbility, OptionsAreFoundAtAnyDepthAndTheFirstElementOfANameCounts)
{
    const SerialAbility ability(
        "<SerialAbility version=\"2.0\"><Port><deep><workMode opt=\"transparent,console\"/></deep>"
        "<workMode opt=\"narrowBand\"/></Port><outputDataType opt=\"cardNo,employeeNo\"/>"
        "</SerialAbility>");
    EXPECT_TRUE(ability.Capable());
    EXPECT_THAT(ability.workMode, ElementsAre(TransparentChan, Console));
    EXPECT_THAT(ability.outputDataType, ElementsAre(CardNo, EmployeeNo));
    EXPECT_EQ(ability.Find("Port/workMode").Attribute("opt"), "narrowBand");

    const LogCapture log;
    const SerialAbility foreign("<Serial><workMode opt=\"console\"/></Serial>");
    EXPECT_FALSE(foreign.Capable());
    EXPECT_THAT(foreign.workMode, IsEmpty());
}

}  // namespace
