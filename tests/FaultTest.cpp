// Every fault of the table on every kind of operation: its result, and that it occurred.
// SPDX-License-Identifier: Apache-2.0
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/AllocationFaults.h"
#include "support/FaultTable.h"

namespace
{

using namespace TestSupport;
using testing::ElementsAre;

std::vector<FaultRow> Rows()
{
    std::vector<FaultRow> rows;
    for (auto& part : {SdkFaults(), DocumentFaults(), ClientFaults()}) {
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return rows;
}

ScriptedSdk& Start(const Steps& steps)
{
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.steps = steps;
    sdk.channelStep = 1'234'000;  // a number that some locales group
    Keel::Error::SetLastError({kUntouched.first, kUntouched.second, {}});
    return sdk;
}

/// Tries one row on one subject.
class Try
{
public:
    Try(const FaultRow& row, const Subject& subject, const Steps& steps)
        : row_(row), subject_(subject), steps_(steps)
    {
        Comes comes = subject.Is(kXmlRoads) ? row.xml : subject.Is(kJsonRoads) ? row.json : row.raw;
        const SdkStep& last = steps.back();
        isBeyond_ =
            last.needsRoom && !subject.Is(kManager) && last.answer.size() > subject.policy.limit;
        if (isBeyond_) {
            comes = Comes::Fails;
        } else if (comes == Comes::TooSmall) {
            comes = TooSmall();
        }
        comes_ = comes;
    }

    /// Runs it; returns how often the fault occurred.
    unsigned Run(const std::string& request)
    {
        ScriptedSdk& sdk = Start(steps_);
        if (row_.prepare) {
            row_.prepare(sdk);
        }
        const LogCapture log;
        auto around = row_.around ? row_.around() : nullptr;
        given_ = subject_.ask();
        const unsigned struck = around ? around->Struck() : sdk.struck;
        around.reset();
        CheckResult();
        CheckRequests(sdk, request);
        if (row_.check) {
            row_.check(subject_, log);
        }
        const unsigned expected = isBeyond_ ? 0 : row_.strikes ? row_.strikes(subject_) : 1;
        if (expected == UINT_MAX) {
            EXPECT_GE(struck, 1U);
        } else {
            EXPECT_EQ(struck, expected) << "occurrences of the fault";
        }
        return struck;
    }

    static std::string RequestOf(const SdkCall& call)
    {
        return std::to_string(call.kind) + " " + std::to_string(call.code) + " " + call.line + " " +
               call.input;
    }

private:
    /// A buffer that never gets large enough gives 43, or the number that does not make it grow.
    [[nodiscard]] Comes TooSmall() const
    {
        const bool isForEver = steps_.size() == 1;
        return isForEver || !subject_.GrowsOn(row_.error) ? Comes::Fails : Comes::Sound;
    }

    [[nodiscard]] unsigned ExpectedError() const
    {
        if (isBeyond_ || (steps_.size() == 1 && subject_.GrowsOn(row_.error))) {
            return 43;
        }
        return row_.error == 1000 && subject_.policy.maps1000 ? 23 : row_.error;
    }

    void ExpectSuccess() const
    {
        EXPECT_TRUE(given_.success);
        EXPECT_EQ(given_.err, subject_.tellsError ? 0U : 77U);
        EXPECT_EQ(LastError(), kUntouched) << "a success sets no last error";
    }

    void ExpectFailure(unsigned err, std::pair<int, int> lastError) const
    {
        EXPECT_FALSE(given_.success);
        EXPECT_EQ(given_.err, subject_.tellsError ? err : 77U);
        EXPECT_TRUE(given_.held == Held::Defaults || subject_.Is(kManager));
        EXPECT_EQ(LastError(), lastError);
    }

    void CheckResult() const
    {
        switch (comes_) {
            case Comes::Sound:
                ExpectSuccess();
                EXPECT_TRUE(subject_.Is(kRawRoads) || given_.held == Held::Whole ||
                            given_.held == Held::Unknown);
                break;
            case Comes::Part:
                ExpectSuccess();
                EXPECT_EQ(given_.held, Held::Other);
                break;
            case Comes::Unread:
                CheckUnread();
                break;
            case Comes::Survives:
                if (given_.success) {
                    ExpectSuccess();
                } else {
                    ExpectFailure(23, kUntouched);
                }
                break;
            case Comes::Told:
                ExpectFailure(4711, kUntouched);
                EXPECT_EQ(managerReport.type, 3);
                break;
            case Comes::NoChannel:
                if (subject_.Is(kJsonRoads)) {
                    ExpectFailure(0, kUntouched);
                } else {
                    ExpectFailure(23, {50, 1000});
                }
                break;
            case Comes::Fails:
            case Comes::TooSmall:
                CheckFailure();
                break;
        }
    }

    void CheckUnread() const
    {
        if (subject_.needsFlag) {
            ExpectFailure(23, kUntouched);
        } else {
            ExpectSuccess();
        }
        if (subject_.Is(kXmlRoads)) {
            EXPECT_EQ(given_.held, Held::Defaults);
        } else {
            EXPECT_NE(given_.held, Held::Whole);
        }
    }

    void CheckFailure() const
    {
        const unsigned error = ExpectedError();
        const bool isLimit = error == 43;
        const std::pair told = row_.lastError.value_or(std::pair(50, static_cast<int>(row_.error)));
        ExpectFailure(error, subject_.setsLastError && !isLimit ? told : kUntouched);
        if (subject_.Is(kManager) && !row_.around) {
            EXPECT_THAT(managerReport.sdkErrors, ElementsAre(static_cast<int>(error)));
        }
    }

    /// What a raw operation returns of the last call's buffer.
    [[nodiscard]] std::string Delivered(const SdkCall& call) const
    {
        const SdkStep& step = steps_.back();
        std::string bytes(call.size, step.fills ? 'x' : '\0');
        const std::size_t size = std::min<std::size_t>(step.answer.size(), bytes.size());
        bytes.replace(0, size, step.answer, 0, size);
        return bytes.substr(0, step.returnedSize);
    }

    void CheckRequests(const ScriptedSdk& sdk, const std::string& request) const
    {
        unsigned size = subject_.policy.start;
        for (const SdkCall& call : sdk.calls) {
            if (call.kind == SdkCall::Channel) {
                continue;
            }
            ASSERT_NE(comes_, Comes::NoChannel) << "nothing may be sent";
            ASSERT_TRUE(call.isZeroed && call.isWellFilled) << "of " << call.size;
            ASSERT_EQ(RequestOf(call), request);
            if (!subject_.Is(kManager)) {
                ASSERT_EQ(call.size, size);
            }
            size += subject_.policy.step;
        }
        const bool isRaw = subject_.Is(kManager) || (subject_.Is(kPackage) && given_.success);
        if (isRaw && !isBeyond_) {
            EXPECT_EQ(given_.bytes, Delivered(sdk.calls.back()));
        }
    }

    const FaultRow& row_;
    const Subject& subject_;
    const Steps& steps_;
    Comes comes_ = Comes::Sound;
    bool isBeyond_ = false;
    Given given_;
};

class FaultTest : public testing::TestWithParam<FaultRow>
{
protected:
    /// Calls `use` with each script of the row on each subject.
    template <class Use>
    static void ForEachTry(const std::vector<Subject>& subjects, Use use)
    {
        const FaultRow& row = GetParam();
        for (const Subject& subject : subjects) {
            if (!subject.Is(row.roads)) {
                continue;
            }
            SCOPED_TRACE(subject.name);
            const ScriptedSdk& sdk = Start({Sound(subject)});
            ASSERT_TRUE(subject.ask().success);
            const std::string request = Try::RequestOf(sdk.calls.back());
            for (const Steps& steps : row.play(subject)) {
                SCOPED_TRACE(steps.back().answer.substr(0, 200));
                use([&] { return Try(row, subject, steps).Run(request); });
                if (HasFailure()) {
                    return;
                }
            }
        }
    }
};

TEST_P(FaultTest, StrikesAndComesOutAsItShould)
{
    const FaultRow& row = GetParam();
    std::size_t total = 0;
    ForEachTry(row.everyOperation ? AllOperations() : FamilyModels(),
               [&total](const auto& run) { total += run(); });
    EXPECT_GT(total, 0U) << "a fault that never occurred proves nothing";
}

/// Size of the process's address space in bytes.
std::size_t MappedBytes()
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

TEST_P(FaultTest, LeavesNoMemoryBehind)
{
    ForEachTry(FamilyModels(), [](const auto& run) {
        run();  // creates what is created once
        const long blocks = LiveBlocks();
        const std::size_t mapped = MappedBytes();
        run();
        EXPECT_EQ(LiveBlocks(), blocks);
        // Sanitizers keep freed memory and count it themselves.
        EXPECT_TRUE(blocks == 0 || MappedBytes() < mapped + (8U << 20U));
    });
}

INSTANTIATE_TEST_SUITE_P(Each, FaultTest, testing::ValuesIn(Rows()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
