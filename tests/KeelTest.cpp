// The platform layer: what is logged and what is not, last errors, texts and times.
// SPDX-License-Identifier: Apache-2.0
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <log4cxx/consoleappender.h>
#include <log4cxx/helpers/properties.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/patternlayout.h>
#include <log4cxx/propertyconfigurator.h>
#include <log4cxx/spi/loggerrepository.h>

#include "Keel/CLog.h"
#include "Keel/Error.h"
#include "Keel/StringUtil.h"
#include "Keel/TimeUtil.h"
#include "Vsk/OutputDebug.h"
#include "support/TemporaryFolder.h"

namespace
{

using Keel::details::CLog;
using Keel::details::LogLevel;

CLog& Log()
{
    return Keel::CSingleton<CLog>::Instance();
}

log4cxx::spi::LocationInfo Here()
{
    return {"Common/CapabilitySet/Some.cpp", "Some.cpp", "bool Some::Get(int)", 42};
}

void LogOneLineOfEachKind()
{
    Log().Error("", "an error", Here());
    Log().Info("", "an info", Here());
    Log().Debug("", "a debug", Here());
    Log().Error("Tagged", "a tagged error", Here());
    VSK_OutputDebug("trace %d of %s", 7, "Vsk");
}

/// What a child process that does this and then exits writes on stdout and stderr. log4cxx is
/// configured once per process, so each case has its own. In the child's current directory stands
/// a configuration file that log4cxx would find if it were made to look.
class KeelLogTest : public testing::Test
{
protected:
    static constexpr const char* kLayout = "%p|%c|%m|%F|%L%n";

    KeelLogTest()
    {
        std::ofstream(folder_ / "log4cxx.properties")
            << "log4j.rootLogger=DEBUG, A\n"
               "log4j.appender.A=org.apache.log4j.ConsoleAppender\n"
               "log4j.appender.A.layout=org.apache.log4j.PatternLayout\n"
               "log4j.appender.A.layout.ConversionPattern=file %m%n\n";
    }

    std::string OutputOf(const std::function<void()>& work)
    {
        const std::filesystem::path output = folder_ / "output";
        std::fflush(nullptr);
        const pid_t child = fork();
        if (child == 0) {
            alarm(60);
            const bool isReady = chdir(folder_.c_str()) == 0 &&
                                 std::freopen(output.c_str(), "a", stdout) != nullptr &&
                                 dup2(fileno(stdout), STDERR_FILENO) == STDERR_FILENO;
            if (isReady) {
                work();
            }
            std::exit(isReady ? 0 : 1);
        }
        int status = -1;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
        std::ifstream file(output);
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }

    /// Lines of a level and above to stdout, for one logger or all.
    static void Configure(const std::string& level, const std::string& logger = "rootLogger")
    {
        log4cxx::helpers::Properties properties;
        const auto set = [&properties](const std::string& key, const std::string& value) {
            properties.setProperty("log4j." + key, value);
        };
        set("rootLogger", "DEBUG");
        set(logger, level + ", A");
        set("appender.A", "org.apache.log4j.ConsoleAppender");
        set("appender.A.layout", "org.apache.log4j.PatternLayout");
        set("appender.A.layout.ConversionPattern", kLayout);
        log4cxx::PropertyConfigurator::configure(properties);
    }

    static constexpr const char* kAllLines =
        "ERROR|Keel|an error|Common/CapabilitySet/Some.cpp|42\n"
        "INFO|Keel|an info|Common/CapabilitySet/Some.cpp|42\n"
        "DEBUG|Keel|a debug|Common/CapabilitySet/Some.cpp|42\n"
        "ERROR|Tagged|a tagged error|Common/CapabilitySet/Some.cpp|42\n"
        "DEBUG|Vsk|trace 7 of Vsk|?|-1\n";

private:
    const TestSupport::TemporaryFolder temporary_;
    const std::filesystem::path folder_ = temporary_.Path();
};

TEST_F(KeelLogTest, IsSilentUntilTheClientConfiguresLogging)
{
    EXPECT_EQ(OutputOf([] {
                  LogOneLineOfEachKind();
                  if (Log().IsEnabled(LogLevel::Error)) {
                      std::puts("claims to write");
                  }
              }),
              "");
}

TEST_F(KeelLogTest, LeavesTheClientsOwnAutomaticConfigurationToTheClient)
{
    EXPECT_EQ(OutputOf([] {
                  LogOneLineOfEachKind();
                  log4cxx::Logger::getLogger("Client");  // reads the file in the directory
                  Log().Error("", "later", Here());
              }),
              "file later\n");
}

TEST_F(KeelLogTest, HeedsAConfigurationMadeAfterTheFirstLines)
{
    EXPECT_EQ(OutputOf([] {
                  LogOneLineOfEachKind();
                  Configure("DEBUG");
                  LogOneLineOfEachKind();
              }),
              kAllLines);
}

TEST_F(KeelLogTest, WritesOnlyWhereAnAppenderTakesTheLine)
{
    EXPECT_EQ(OutputOf([] {
                  Log().Error("", "too early", Here());
                  auto layout = std::make_shared<log4cxx::PatternLayout>("%c %m%n");
                  log4cxx::LogManager::getLoggerRepository()->getLogger("Vsk")->addAppender(
                      std::make_shared<log4cxx::ConsoleAppender>(layout));
                  LogOneLineOfEachKind();
              }),
              "Vsk trace 7 of Vsk\n");
}

TEST_F(KeelLogTest, HeedsTheLevelOfEachLogger)
{
    EXPECT_EQ(OutputOf([] {
                  Configure("INFO", "logger.Keel");
                  LogOneLineOfEachKind();
                  if (Log().IsEnabled(LogLevel::Debug) || !Log().IsEnabled(LogLevel::Info) ||
                      Log().IsEnabled(LogLevel::Error, "Tagged")) {
                      std::puts("claims another level");
                  }
              }),
              "ERROR|Keel|an error|Common/CapabilitySet/Some.cpp|42\n"
              "INFO|Keel|an info|Common/CapabilitySet/Some.cpp|42\n");
}

TEST_F(KeelLogTest, IsSilentAfterTheClientShutLoggingDown)
{
    EXPECT_EQ(OutputOf([] {
                  Configure("DEBUG");
                  log4cxx::LogManager::shutdown();
                  LogOneLineOfEachKind();
                  log4cxx::LogManager::resetConfiguration();
                  LogOneLineOfEachKind();
              }),
              "");
}

/// A client's static object that logs and sets errors while the process ends.
struct LogsAtExit
{
    LogsAtExit() = default;
    LogsAtExit(const LogsAtExit&) = delete;
    LogsAtExit& operator=(const LogsAtExit&) = delete;
    ~LogsAtExit()
    {
        Log().Error("", std::string(100, 'x'), Here());
        VSK_OutputDebug("%s", "at exit");
        Keel::Error::SetLastError({50, 7, std::string(100, 'x')});
        static_cast<void>(Keel::Error::GetLastError().description.size());
    }
};

TEST_F(KeelLogTest, EndsWhenStaticObjectsStillLog)
{
    EXPECT_EQ(OutputOf([] {
                  static const LogsAtExit before;
                  Configure("DEBUG");
                  LogOneLineOfEachKind();
                  Keel::Error::SetLastError({50, 7, std::string(100, 'x')});
              }),
              kAllLines);
}

TEST_F(KeelLogTest, KeepsLinesOfManyThreadsWhole)
{
    const std::string output = OutputOf([] {
        // ThreadSanitizer does not see how log4cxx, built without it, guards its first use.
        Log().Info("", "too early", Here());
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([i] {
                for (int line = 0; line < 250; ++line) {
                    Log().Info("", "line of " + std::to_string(i), Here());
                    VSK_OutputDebug("trace of %d", i);
                }
            });
        }
        Configure("DEBUG");
        for (std::thread& thread : threads) {
            thread.join();
        }
        Log().Info("", "last", Here());
    });
    std::istringstream lines(output);
    std::string last;
    for (std::string line; std::getline(lines, line); last = line) {
        EXPECT_TRUE(line.starts_with("INFO|Keel|l") || line.starts_with("DEBUG|Vsk|trace of "))
            << line;
    }
    EXPECT_TRUE(last.starts_with("INFO|Keel|last|")) << last;
}

TEST(KeelErrorTest, KeepsTheLastErrorOfEachThreadApart)
{
    Keel::Error::SetLastError({50, 7, "mine"});
    std::thread([] {
        EXPECT_EQ(Keel::Error::GetLastError().module, 0);
        Keel::Error::SetLastError({72, 9, "other"});
    }).join();
    EXPECT_EQ(Keel::Error::GetLastError().module, 50);
    EXPECT_EQ(Keel::Error::GetLastError().code, 7);
    EXPECT_EQ(Keel::Error::GetLastError().description, "mine");
}

TEST(KeelStringTest, FormatsTextsOfEveryLength)
{
    for (const std::size_t length : {0u, 1u, 509u, 510u, 511u, 512u, 513u, 1024u, 200000u}) {
        const std::string text(length, 'x');
        EXPECT_EQ(Keel::StringUtil::FormatString("%s", text.c_str()), text) << length;
        EXPECT_EQ(Keel::StringUtil::FormatString("[%d]-%s-%%", 43, text.c_str()),
                  "[43]-" + text + "-%")
            << length;
    }
    EXPECT_EQ(Keel::StringUtil::FormatString("a%lcb", static_cast<std::wint_t>(0xD800)), "")
        << "a character that cannot be converted";
}

TEST(KeelStringTest, SplitsReplacesAndTrims)
{
    using namespace Keel::StringUtil;
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(SplitString("a,b,,c,", ","), (Pieces{"a", "b", "", "c", ""}));
    EXPECT_EQ(SplitString("", ","), Pieces{""});
    EXPECT_EQ(SplitString("a,b", ""), Pieces{"a,b"});
    EXPECT_EQ(SplitString("a--b---c", "--"), (Pieces{"a", "b", "-c"}));
    EXPECT_EQ(StringReplace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(StringReplace("x.x", "x", "xx"), "xx.xx");
    EXPECT_EQ(StringReplace("abc", "", "x"), "abc");
    EXPECT_EQ(StringTrim(" \t\r\n a b \n"), "a b");
    EXPECT_EQ(StringTrim(" \n "), "");
    EXPECT_EQ(StringTrim("--a-", "-"), "a");
}

struct TimeCase
{
    const char* text;
    std::time_t expected;
};

/// Central European clocks without the system's zone files.
class KeelTimeTest : public testing::Test
{
protected:
    KeelTimeTest() { setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1); }
    ~KeelTimeTest() override { unsetenv("TZ"); }
};

TEST_F(KeelTimeTest, ReadsIsoTimes)
{
    const TimeCase cases[] = {
        {"2020-01-01T00:00:00Z", 1577836800},
        {"2020-01-01T08:00:00+08:00", 1577836800},
        {"2019-12-31T18:30:00-05:30", 1577836800},
        {"2020-01-01T00:00:00.999Z", 1577836800},
        {"2019-12-31T24:00:00Z", 1577836800},
        {"1969-12-31T23:59:58Z", -2},
        {"2100-02-28T00:00:00Z", 4107456000},
        {"2020-01-01T01:00:00", 1577836800},
        {"2020-07-01T02:00:00.5", 1593561600},
        {"2020-10-25T02:30:00", 1603585800},  // shown twice: the first
        {"2020-03-29T02:30:00", 1585445400},  // skipped: counted on from before
    };
    for (const TimeCase& c : cases) {
        EXPECT_EQ(Keel::TimeUtil::ISODatetime2TimeT(c.text), c.expected) << c.text;
    }
}

TEST_F(KeelTimeTest, RefusesWhatIsNoTime)
{
    for (const std::string& text : Keel::StringUtil::SplitString(
             "|2020-01-01|2020-01-01T00:00|2020-1-01T00:00:00Z|2020-13-01T00:00:00Z|0000-00-00T00:"
             "00:00|"
             "2019-02-29T00:00:00Z|2020-04-31T00:00:00Z|2020-01-01T24:00:01Z|"
             "2020-01-01T00:60:00Z|2020-01-01T00:00:60Z|2020-01-01 00:00:00|"
             "2020-01-01T00:00:00.|2020-01-01T00:00:00.Z|2020-01-01T00:00:00z|"
             "2020-01-01T00:00:00+0800|2020-01-01T00:00:00+08:60|2020-01-01T00:00:00+24:00|"
             "2020-01-01T00:00:00ZZ| 2020-01-01T00:00:00Z|2020-01-01T00:00:00Z |"
             "+020-01-01T00:00:00Z|2020-01-01T-1:00:00Z",
             "|")) {
        EXPECT_EQ(Keel::TimeUtil::ISODatetime2TimeT(text), -1) << text;
    }
    for (const char* text : {"", "2020-01-01T00:00:00", "2020-01-01 00:00:00Z",
                             "2020-01-01 00:00:00.5", "2020-02-30 00:00:00"}) {
        EXPECT_EQ(Keel::TimeUtil::StrDatetime2TimeT(text), -1) << text;
    }
    EXPECT_EQ(Keel::TimeUtil::StrDatetime2TimeT("2020-01-01 01:00:00"), 1577836800);
}

}  // namespace
