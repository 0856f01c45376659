// capset mac: addresses as people write them, and what the program prints and returns.
// SPDX-License-Identifier: Apache-2.0
#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "Keel/StringUtil.h"
#include "Tool/command/MacAddress.h"

namespace
{

TEST(MacAddressTest, ReadsWhatPeopleWrite)
{
    const std::vector<std::pair<const char*, const char*>> cases{
        {"405582", "40:55:82"},
        {"A4E31B001122", "a4:e3:1b:00:11:22"},
        {"  40:55:82:0A:0b:0C\t", "40:55:82:0a:0b:0c"},
        {"40-55-82", "40:55:82"},
        {"40 55 82 00 11 22", "40:55:82:00:11:22"},
        {"4055.8200.1122", "40:55:82:00:11:22"},
        {"4055-8200-1122", "40:55:82:00:11:22"},
        {"4055.82", "40:55:82"},
        {"405582-001122", "40:55:82:00:11:22"},
        {"0:15:f2:1:2:3", "00:15:f2:01:02:03"},
        {"40:55:82:ff:fe:00:11:22", "40:55:82:ff:fe:00:11:22"}};
    for (const auto& [text, read] : cases) {
        const auto address = Tool::MacAddress::Read(text);
        ASSERT_TRUE(address) << text;
        EXPECT_EQ(address->Text(), read) << text;
    }
}

TEST(MacAddressTest, RefusesWhatIsNoAddress)
{
    for (const std::string& text : Keel::StringUtil::SplitString(
             "| |:|40|4055|40558|4055820|40:55|40:55:8g|40:55:82:|:40:55:82|40::55:82|"
             "40:55-82|405:582|40.5.82|4055.8|4055.8200.11223|40:55:82:00:11:22:33|"
             "40558200112233445566|x40:55:82|0x405582|192.168.0.1|fe80::1",
             "|")) {
        EXPECT_FALSE(Tool::MacAddress::Read(text)) << text;
    }
}

struct Outcome
{
    std::string output;
    int exitCode = -1;
};

/// Runs a shell line in which "capset" is the program.
Outcome Shell(const std::string& line)
{
    const std::string command = "capset() { " CAPSET_PROGRAM " \"$@\"; }; " + line + " 2>&1";
    Outcome outcome;
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> piece{};
    while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), pipe)) {
        outcome.output.append(piece.data(), size);
    }
    outcome.exitCode = WEXITSTATUS(pclose(pipe));
    return outcome;
}

TEST(MacCommandTest, TellsCompaniesAndWhatTheBitsSay)
{
    const Outcome outcome = Shell(
        "printf 'FCD733\\n\\n33:33:0:0:0:1\\n' | capset mac 4055.8200.1122 - c2ec4f "
        "ff:ff:ff:ff:ff:ff 01:00:5e:00:00:01");
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output,
              "address            company  remark\n"
              "40:55:82:00:11:22  nokia\n"
              "fc:d7:33           tp-link\n"
              "33:33:00:00:00:01  unknown  multicast, locally administered\n"
              "c2:ec:4f           vel      locally administered\n"
              "ff:ff:ff:ff:ff:ff  unknown  broadcast\n"
              "01:00:5e:00:00:01  unknown  multicast\n");
}

TEST(MacCommandTest, TellsWhatIsNoAddressAndGoesOn)
{
    const Outcome table = Shell("capset mac 40:55 405582");
    EXPECT_EQ(table.exitCode, 1);
    EXPECT_EQ(table.output,
              "address   company  remark\n"
              "40:55     -        no MAC address\n"
              "40:55:82  nokia\n");
    const Outcome json = Shell("printf 'a b\\n000001' | capset mac --json");
    EXPECT_EQ(json.exitCode, 1);
    EXPECT_EQ(json.output,
              "[\n"
              "  {\n"
              "    \"input\": \"a b\",\n"
              "    \"problem\": \"no MAC address\"\n"
              "  },\n"
              "  {\n"
              "    \"address\": \"00:00:01\",\n"
              "    \"company\": null,\n"
              "    \"input\": \"000001\",\n"
              "    \"locallyAdministered\": false,\n"
              "    \"multicast\": false,\n"
              "    \"prefix\": \"000001\"\n"
              "  }\n"
              "]\n");
    EXPECT_EQ(Shell("capset mac --prefix 405582").exitCode, 2);
    EXPECT_EQ(Shell("capset mac --json </dev/null").output, "[]\n");
}

}  // namespace
