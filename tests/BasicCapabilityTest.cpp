// The basic capability record: its order, its flags, and the memory of 3D positioning.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/BasicCapability.h"

#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/RecordTree.h"
#include "support/LogCapture.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using TestSupport::LogCapture;
using TestSupport::XmlTree;

std::string Document(const std::string& hardware, const std::string& software)
{
    return "<BasicCapability version='2.0' xmlns='urn:x'><HardwareCapability>" + hardware +
           "</HardwareCapability><SoftwareCapability>" + software +
           "</SoftwareCapability></BasicCapability>";
}

TEST(BasicCapabilityTest, FlagsFollowWhatWasRead)
{
    const std::string hard = "<HardwareCapability><USBNum>2</USBNum></HardwareCapability>";
    const std::string soft = "<SoftwareCapability><NasNumber>3</NasNumber></SoftwareCapability>";
    struct
    {
        std::string children;
        bool valid;
        bool hardware;
        bool software;
    } const cases[] = {
        {"", false, false, false},
        {hard + soft, true, true, true},
        {hard, true, true, false},
        {soft, true, false, true},
        {soft + hard, true, true, false},  // the search for the first part passes the second
        {"<x/>" + hard + "<!--y-->" + soft, true, true, true},
        {"<HardwareCapability/><SoftwareCapability/>", false, false, false},
        {"<HardwareCapability/>" + hard + soft, true, false, true},  // only the first of a name
        {"<SoftwareCapability><DecoderAbility>1</DecoderAbility></SoftwareCapability>", false,
         false, false},
        {"<SoftwareCapability><heatMap/></SoftwareCapability>", true, false, true},
        {"<SoftwareCapability><unknown>1</unknown></SoftwareCapability>", false, false, false},
        {"<SoftwareCapability><LocalVout/></SoftwareCapability>", true, false, true},
    };
    for (const auto& [children, valid, hardware, software] : cases) {
        const BasicCapability read("<BasicCapability>" + children + "</BasicCapability>");
        EXPECT_EQ(read.valid, valid) << children;
        EXPECT_EQ(read.hardware.valid, hardware) << children;
        EXPECT_EQ(read.software.valid, software) << children;
    }
}

TEST(BasicCapabilityTest, ReadsValuesAsTheirKindsDo)
{
    const BasicCapability read(Document(
        "<HardwareVersion>0x3001</HardwareVersion><RS232Num> 30 </RS232Num><unknown>7</unknown>"
        "<RS485Num>12abc</RS485Num><USBVersion>-1</USBVersion><SDNum>-2</SDNum>"
        "<HardDiskNum>99999999999</HardDiskNum><SDSupport>true</SDSupport><WiFiSupport>1"
        "</WiFiSupport><POESupport>TRUE</POESupport><IRSupport> true</IRSupport>"
        "<RAIDType>1</RAIDType><ZoneNum><localZoneNo min='1' max='8'/></ZoneNum>"
        "<sirenNo min='0' max='0'/><Sensor><totalSensorNum>4</totalSensorNum></Sensor>",
        "<DDNSHostType> a,<![CDATA[<b>]]> </DDNSHostType><LocalVout><mainVoutType opt='VGA,HDMI'/>"
        "</LocalVout><NeedReboot><EsataUseageChange>1</EsataUseageChange></NeedReboot>"
        "<DecoderAbility/><PDC>false</PDC><isSupportGetThumbnails/>"));
    EXPECT_EQ(read.hardware.HardwareVersion, 0) << "no decimal digit but the zero";
    EXPECT_EQ(read.hardware.RS232Num, 30);
    EXPECT_EQ(read.hardware.RS485Num, 12);
    EXPECT_EQ(read.hardware.USBVersion, 4294967295U);
    EXPECT_EQ(read.hardware.SDNum, -2);
    EXPECT_EQ(read.hardware.HardDiskNum, 2147483647);
    EXPECT_TRUE(read.hardware.SDSupport && read.hardware.WiFiSupport);
    EXPECT_FALSE(read.hardware.POESupport || read.hardware.IRSupport);
    EXPECT_EQ(read.hardware.RAIDType, 1U);
    EXPECT_TRUE(read.hardware.zoneNum.valid && read.hardware.zoneNum.localZoneNo.capable);
    EXPECT_EQ(read.hardware.zoneNum.localZoneNo.max, 8U);
    EXPECT_FALSE(read.hardware.sirenNo.capable) << "0 to 0 is no range";
    EXPECT_EQ(read.hardware.sensor.totalSensorNum, 4);
    EXPECT_EQ(read.software.DDNSHostType, " a,<b> ");
    EXPECT_THAT(read.software.localVout.mainVoutType.opt, ElementsAre("VGA", "HDMI"));
    EXPECT_EQ(read.software.needReboot.EsataUseageChange, 1);
    EXPECT_TRUE(read.software.decoderAbility && read.software.PDC &&
                read.software.isSupportGetThumbnails)
        << "present, whatever they hold";
    EXPECT_FALSE(read.software.heatMap);
}

TEST(BasicCapabilityTest, KeepsWhatALaterDocumentDoesNotHold)
{
    const LogCapture log;
    BasicCapability read(Document("<USBNum>2</USBNum><SDNum>3</SDNum>", ""));
    const BasicCapability before = read;
    for (const char* none : {"", "<BasicCapability>", "<basicCapability/>", "no XML"}) {
        read.Parse(none);
    }
    read.Parse(static_cast<_xmlNode*>(nullptr));
    EXPECT_TRUE(SameFields(read, before));
    EXPECT_TRUE(read.valid);
    EXPECT_EQ(log.Lines().size(), 3U) << "one each, and none for the empty text";
    read.Parse(Document("<SDNum>5</SDNum>", ""));
    EXPECT_EQ(read.hardware.USBNum, 2);
    EXPECT_EQ(read.hardware.SDNum, 5);
    EXPECT_TRUE(SameFields(BasicCapability(XmlTree(Document("<SDNum>5</SDNum>", "")).Root()),
                           BasicCapability(Document("<SDNum>5</SDNum>", ""))));
}

TEST(BasicCapabilityTest, RemembersTheFirstFlagOfEachPair)
{
    bool value = true;
    EXPECT_FALSE(BasicCapability::GetIsSupper3DPTZAbility(value, "a", "bc"));
    EXPECT_TRUE(value) << "left alone";
    EXPECT_TRUE(BasicCapability::SaveIsSupper3DPTZAbility(false, "a", "bc"));
    EXPECT_TRUE(BasicCapability::SaveIsSupper3DPTZAbility(true, "a", "bc"));
    EXPECT_TRUE(BasicCapability::SaveIsSupper3DPTZAbility(true, "", ""));
    EXPECT_TRUE(BasicCapability::GetIsSupper3DPTZAbility(value, "a", "bc"));
    EXPECT_FALSE(value) << "the first flag stays";
    EXPECT_TRUE(BasicCapability::GetIsSupper3DPTZAbility(value, "", ""));
    EXPECT_TRUE(value);
    for (const auto& [first, second] : {std::pair{"ab", "c"}, {"bc", "a"}, {"a", ""}}) {
        EXPECT_FALSE(BasicCapability::GetIsSupper3DPTZAbility(value, first, second)) << first;
    }
}

TEST(BasicCapabilityTest, ThreadsReadTheirOwnDocumentsAtOnce)
{
    std::vector<std::thread> threads;
    std::vector<int> wrong(4);
    for (std::size_t thread = 0; thread < wrong.size(); ++thread) {
        threads.emplace_back([&wrong, thread] {
            for (int round = 0; round < 200; ++round) {
                const int number = static_cast<int>(thread) * 1000 + round;
                // Every fourth document is malformed: its thread starts with a new parser.
                const std::string document =
                    Document("<USBNum>" + std::to_string(number) + "</USBNum>", "<PDC/>");
                const BasicCapability read(round % 4 == 3 ? document.substr(1) : document);
                wrong[thread] += read.hardware.USBNum != (round % 4 == 3 ? 0 : number) ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(wrong, testing::Each(0));
}

}  // namespace
