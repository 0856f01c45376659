// Request documents: every record that is written reads back as itself, whatever it holds.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlWriting.h"

#include <clocale>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <libxml/xmlerror.h>

#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"
#include "CapabilitySet/private/xml/XmlReading.h"
#include "support/ForeignLocale.h"
#include "support/LogCapture.h"
#include "support/RecordGenerator.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using TestSupport::RecordGenerator;
using TestSupport::XmlTree;

template <class Record>
class XmlWritingTest : public testing::Test
{
};

using Written = testing::Types<CMSearchDescription, TrackIDList, SearchTimeSpanList, TimeSpan,
                               ContentTypeList, ContentType, MetaDataList, MetaData, CBridgeRegion,
                               DiscoveryMode, SwitchesWorkStateSearchCond, SwitchesBasicInfo,
                               PortRateList, PortInfoList, App, AppList, DeviceStatus, Wireless>;
TYPED_TEST_SUITE(XmlWritingTest, Written);

template <class Record>
std::string Body(Record record)
{
    return xml::DumpDocument(record.CreateXmlNodePtr(), "");
}

TYPED_TEST(XmlWritingTest, ReadsBackWhatWasWrittenWithoutWhatNoDocumentCanHold)
{
    const TestSupport::LogCapture log;
    for (const char* locale : {"C", "C.utf8"}) {
        ASSERT_NE(std::setlocale(LC_CTYPE, locale), nullptr) << locale;
        for (unsigned seed = 0; seed < 200; ++seed) {
            const auto expected = RecordGenerator(seed).template Make<TypeParam>();
            const std::string body = Body(RecordGenerator(seed, true).template Make<TypeParam>());
            TypeParam back;
            back.Parse(body);
            ASSERT_TRUE(SameFields(back, expected)) << seed << '\n' << body;
            EXPECT_EQ(Body(expected), body);
        }
    }
    std::setlocale(LC_CTYPE, "C");
    EXPECT_TRUE(log.Messages().empty()) << log.Messages()[0];
}

/// "root(child,list(item))" of a document.
std::string Skeleton(const xmlNode* element)
{
    std::string children;
    for (const xmlNode* child = element->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            children += (children.empty() ? "" : ",") + Skeleton(child);
        }
    }
    const std::string name = reinterpret_cast<const char*>(element->name);
    return children.empty() ? name : name + "(" + children + ")";
}

/// A record with one item in each list.
template <class Record>
Record WithOneItemEach()
{
    Record record;
    Record::Fields(record, [](const char* /*name*/, auto& member, auto... /*how*/) {
        if constexpr (requires { member.push_back(member.front()); }) {
            using Item = std::remove_cvref_t<decltype(member.front())>;
            if constexpr (requires { typename Item::element_type; }) {
                member.push_back(std::make_shared<typename Item::element_type>());
            } else {
                member.push_back({});
            }
        } else if constexpr (HasFields<std::remove_cvref_t<decltype(member)>>) {
            member = WithOneItemEach<std::remove_cvref_t<decltype(member)>>();
        }
    });
    return record;
}

struct BodyRow
{
    std::string body;
    const char* skeleton;
    const char* version;  ///< null: it is never a document of its own
};

template <class Record>
BodyRow RowOf(const char* skeleton, const char* version = nullptr)
{
    auto record = WithOneItemEach<Record>();
    if constexpr (requires { record.createXml(); }) {
        return {record.createXml(), skeleton, version};
    } else {
        return {Body(record), skeleton, version};
    }
}

TEST(XmlBodyTest, HasEveryMemberInItsOrderUnderItsRootAndVersion)
{
    const BodyRow rows[] = {
        RowOf<CMSearchDescription>(
            "CMSearchDescription(searchID,trackIDList(trackID),"
            "timeSpanList(timeSpan(startTime,endTime)),contentTypeList(contentType(slotNo)),"
            "maxResults,searchResultPosition,metadataList(metadataDescriptor(slotNo)))",
            "1.0"),
        RowOf<CBridgeRegion>("Region(region,wifiEnhancementEnabled,countryID)", "v2.0"),
        RowOf<DiscoveryMode>("DiscoveryMode(ONVIFDiscoveryMode,TARNDiscoveryMode,PcapMode,SADP)",
                             "v2.0"),
        RowOf<SwitchesWorkStateSearchCond>(
            "SwitchesWorkStateSearchCond(searchID,maxMatchResults,searchResultsPosition)", "v2.0"),
        RowOf<SwitchesBasicInfo>(
            "SwitchesBasicInfo(devType,strDevTypeName,portNum,macAging,manageVlan,"
            "IPAddress(ipVersion,addressingType,ipAddress,subnetMask,DefaultGateway(ipAddress)))",
            "v2.0"),
        RowOf<PortRateList>("PortRateList(PortRate(id,uplinkRate,downlinkRate))", "v2.0"),
        RowOf<PortInfoList>("PortInfoList(PortInfo(id,portName,speed,portType))"),
        RowOf<AppList>("AppList(App(id,AppID,packageName,softVersion,runStatus,licenseStatus,"
                       "expireTime,cpuUtilization,memoryUsage,diskUsage))",
                       "2.0"),
        RowOf<App>("App(id,AppID,packageName,softVersion,runStatus,licenseStatus,expireTime,"
                   "cpuUtilization,memoryUsage,diskUsage)",
                   "2.0"),
        RowOf<DeviceStatus>("DeviceStatus(currentDeviceTime,deviceUpTime,"
                            "TemperatureList(Temperature(tempSensorDescription,temperature)),"
                            "FanList(Fan(fanDescription,speed)),"
                            "PressureList(Pressure(pressureSensorDescription,pressure)))"),
        RowOf<Wireless>(
            "Wireless(enabled,wirelessNetworkMode,channel,ssid,wmmEnabled,WirelessSecurity("
            "securityMode,WPA(algorithmType,sharedKey,wpaKeyLength)),workScene,protocol,"
            "protocolRealTime,hideSsid,rate,dialUpEnabled,dialUpGroupNo)",
            "v2.0")};
    for (const BodyRow& row : rows) {
        const XmlTree tree(row.body);
        EXPECT_EQ(Skeleton(tree.Root()), row.skeleton);
        std::string spare;
        std::string_view version;
        EXPECT_EQ(xml::AttributeOf(tree.Root(), "version", spare, version), row.version != nullptr);
        EXPECT_EQ(version, row.version == nullptr ? "" : row.version);
    }
}

constexpr const char* kEmptySearch =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<CMSearchDescription version=\"1.0\">\n"
    "  <searchID/>\n"
    "  <trackIDList/>\n"
    "  <timeSpanList/>\n"
    "  <contentTypeList/>\n"
    "  <maxResults>0</maxResults>\n"
    "  <searchResultPosition>0</searchResultPosition>\n"
    "  <metadataList/>\n"
    "</CMSearchDescription>\n";

/// Client settings of libxml2 that shape what is dumped on this thread.
class ForeignSettings
{
public:
    ForeignSettings()
    {
        xmlIndentTreeOutput = 0;
        xmlTreeIndentString = "\t";
        xmlSaveNoEmptyTags = 1;
        xmlSetStructuredErrorFunc(this, Fail);
    }
    ~ForeignSettings()
    {
        EXPECT_EQ(xmlIndentTreeOutput, 0);
        EXPECT_STREQ(xmlTreeIndentString, "\t");
        EXPECT_EQ(xmlSaveNoEmptyTags, 1);
        EXPECT_EQ(xmlStructuredErrorContext, this);
        xmlIndentTreeOutput = 1;
        xmlTreeIndentString = "  ";
        xmlSaveNoEmptyTags = 0;
        xmlSetStructuredErrorFunc(nullptr, nullptr);
    }
    ForeignSettings(const ForeignSettings&) = delete;
    ForeignSettings& operator=(const ForeignSettings&) = delete;

private:
    static void Fail(void* /*context*/, xmlErrorPtr error) { ADD_FAILURE() << error->message; }
};

TEST(XmlBodyTest, IsTheSameByteForByteUnderTheClientsOwnSettings)
{
    CMSearchDescription description;
    description.timeSpanList.timeSpan.push_back(nullptr);  // points nowhere, and is left out
    EXPECT_EQ(ConfigCapXML::MakeSearchDesXML(description), kEmptySearch);
    const ForeignSettings settings;
    EXPECT_EQ(ConfigCapXML::MakeSearchDesXML(description), kEmptySearch);
    description.searchID = "\xB0\xA1 & \xFF";  // not the text of any UTF-8 locale
    EXPECT_EQ(XmlTree(ConfigCapXML::MakeSearchDesXML(description)).Root()->children->next->type,
              XML_ELEMENT_NODE);
    CMSearchDescription back(ConfigCapXML::MakeSearchDesXML(description));
    EXPECT_EQ(back.searchID, "\xEF\xBF\xBD\xEF\xBF\xBD & \xEF\xBF\xBD");
    description.searchID = std::string("up to\0here", 10);
    back.Parse(ConfigCapXML::MakeSearchDesXML(description));
    EXPECT_EQ(back.searchID, "up to");
}

TEST(XmlBodyTest, WritesDecimalNumbersAsAClassicStreamDoesAndLosesNoDigit)
{
    const TestSupport::ForeignLocale locale;
    const std::pair<double, const char*> rows[] = {{0, "0"},
                                                   {100000, "100000"},
                                                   {-0.0001, "-0.0001"},
                                                   {36.6, "36.6"},
                                                   {1e6, "1e+06"},
                                                   {1234567.5, "1234567.5"},
                                                   {0.1 + 0.2, "0.30000000000000004"},
                                                   {5e-324, "4.94066e-324"}};
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(xml::TextOfValue(value), text);
    }
    EXPECT_EQ(xml::TextOfValue(std::numeric_limits<double>::max()).size(), 309U);
}

TEST(XmlBodyTest, CarriesTheVersionItIsGivenAndNoneForAnEmptyOne)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", "<TimeSpan/>"},
        {"v2.0", "<TimeSpan version=\"v2.0\"/>"},
        {"<\"&", "<TimeSpan version=\"&lt;&quot;&amp;\"/>"}};
    for (const auto& [version, root] : rows) {
        EXPECT_EQ(xml::DumpDocument(xml::NewElement("TimeSpan"), version),
                  std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") + root + "\n");
    }
    EXPECT_EQ(xml::DumpDocument(nullptr, "1.0"), "");
}

TEST(XmlBodyTest, NodesBelongToNobodyUntilTheyAreLinked)
{
    Wireless wireless;
    wireless.ssid = "a & b";
    const std::unique_ptr<xmlNode, xml::FreeNode> parent(xml::NewElement("parent"));
    xmlNode* const node = wireless.CreateXmlNodePtr();
    ASSERT_NE(node, nullptr);
    EXPECT_TRUE(node->parent == nullptr && node->doc == nullptr && node->ns == nullptr);
    xmlAddChild(parent.get(), node);
    EXPECT_EQ(Wireless(node).ssid, "a & b");
    EXPECT_EQ(wireless.createXml().find("a &amp; b") != std::string::npos, true);
}

}  // namespace
