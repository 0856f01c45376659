// Receive buffers, alone and in operations, compared with a buffer allocated and cleared each time.
// SPDX-License-Identifier: Apache-2.0
#include <sys/resource.h>

#include <algorithm>
#include <cstring>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/private/query/ReceiveBuffer.h"
#include "Comparison.h"
#include "PelNetSDK/PelNetSDK.h"
#include "ScriptedSdk.h"
#include "Vsk/OutputDebug.h"

namespace
{

using CapabilitySet::BasicCapability;
using CapabilitySet::DeviceCap;

constexpr unsigned int kStep = 16384;
constexpr unsigned int kLimit = 16384000;
constexpr unsigned int kBasicSize = 8192;
constexpr char kDeviceCap[] = "<DeviceCap/>";
constexpr char kBasic[] = "<BasicCapability/>";

struct Cost
{
    double nanoseconds;
    double pageFaults;
};

double CpuNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return 1e9 * static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec);
}

double PageFaults()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_minflt);
}

/// CPU time and page faults per call, over `times` calls.
template <class Side>
Cost CostOf(int times, const Side& side)
{
    const double faults = PageFaults();
    const double start = CpuNanoseconds();
    for (int i = 0; i < times; ++i) {
        benchmark::DoNotOptimize(side());
    }
    const double end = CpuNanoseconds();
    return {(end - start) / times, (PageFaults() - faults) / times};
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Alternates the two sides, `times` calls each, and reports the medians of all rounds.
template <class Baseline, class Ours>
void ComparePaired(const char* work, int rounds, int times, Baseline baseline, Ours ours)
{
    const auto run = [=](benchmark::State& state) {
        std::vector<double> plain;
        std::vector<double> own;
        std::vector<double> ratios;
        std::vector<double> faults;
        benchmark::DoNotOptimize(baseline());
        benchmark::DoNotOptimize(ours());
        for (auto round : state) {
            const bool plainFirst = ratios.size() % 2 == 0;
            const Cost first = plainFirst ? CostOf(times, baseline) : CostOf(times, ours);
            const Cost second = plainFirst ? CostOf(times, ours) : CostOf(times, baseline);
            plain.push_back(plainFirst ? first.nanoseconds : second.nanoseconds);
            own.push_back(plainFirst ? second.nanoseconds : first.nanoseconds);
            ratios.push_back(own.back() / plain.back());
            faults.push_back(plainFirst ? second.pageFaults : first.pageFaults);
        }
        state.counters["baseline"] = Median(plain);
        state.counters["ours"] = Median(own);
        state.counters["ratio"] = Median(ratios);
        state.counters["faults"] = *std::max_element(faults.begin(), faults.end());
    };
    benchmark::RegisterBenchmark(work, run)->Iterations(rounds)->Unit(benchmark::kMillisecond);
}

/// What a callee does if its buffer is too small.
void WriteLittle(char* buffer)
{
    std::memset(buffer, 'x', 64);
    benchmark::DoNotOptimize(buffer);
    benchmark::ClobberMemory();
}

/// A buffer allocated and cleared for each attempt.
std::unique_ptr<char[]> ClearedBuffer(unsigned int size)
{
    std::unique_ptr<char[]> buffer(new char[size]);
    std::memset(buffer.get(), 0, size);
    return buffer;
}

unsigned int PlainLadder(unsigned int limit)
{
    unsigned int attempts = 0;
    for (unsigned int size = kStep; size <= limit; size += kStep, ++attempts) {
        WriteLittle(ClearedBuffer(size).get());
    }
    return attempts;
}

unsigned int OwnLadder(unsigned int limit)
{
    CapabilitySet::query::ReceiveBuffer buffer(kLimit);
    unsigned int attempts = 0;
    for (unsigned int size = kStep; size <= limit; size += kStep, ++attempts) {
        WriteLittle(buffer.Renew(size));
    }
    return attempts;
}

/// GetDeviceCapability with the plain buffer.
bool PlainDeviceCapability(DeviceCap& out, unsigned int& err, int userID)
{
    out = DeviceCap();
    err = 0;
    char line[] = "GET /TARN/System/capabilities\r\n";
    for (unsigned int size = kStep; size <= kLimit; size += kStep) {
        const auto buffer = ClearedBuffer(size);
        tagNET_ORB_XML_CONFIG_INPUT input{};
        input.size = sizeof input;
        input.requestUrl = line;
        input.requestUrlLength = sizeof line - 1;
        tagNET_ORB_XML_CONFIG_OUTPUT output{};
        output.size = sizeof output;
        output.outBuffer = buffer.get();
        output.outBufferSize = size;
        if (NET_ORB_STDXMLConfig(userID, &input, &output) != 0) {
            out.Parse(std::string(buffer.get()));
            return out.Capable();
        }
        if (NET_ORB_GetLastError() != NET_ORB_BUFFER_TOO_SMALL) {
            return false;
        }
    }
    return false;
}

/// GetBasicCapability with the plain buffer, when the first attempt succeeds.
bool PlainBasicCapability(BasicCapability& out, unsigned int& err, int userID)
{
    out = BasicCapability();
    err = 0;
    const auto buffer = ClearedBuffer(kBasicSize);
    VSK_OutputDebug("[AbilityTime]Start to get BasicCapability");
    if (NET_ORB_GetDeviceAbility(userID, 1, nullptr, 0, buffer.get(), kBasicSize) == 0) {
        return false;
    }
    VSK_OutputDebug("[AbilityTime]Finish to get BasicCapability");
    out.Parse(std::string(buffer.get()));
    return true;
}

/// A JSON query whose answer fits no buffer.
bool ExhaustQuery(unsigned int& err)
{
    CapabilitySet::FiberConvertCap out;
    return CapabilitySet::JsonCapApp::getFiberConvertCapability(out, err, 1);
}

/// A data package that fits no buffer.
bool ExhaustPackage(unsigned int& err)
{
    tagNET_ORB_XML_CONFIG_OUTPUT out{};
    return CapabilitySet::JsonConfigApp::GetHFPDDataPackage(out, "1", err, 1);
}

/// Either as a side of a comparison: the same number of attempts with another size.
auto Exhaustion(bool (*ask)(unsigned int&))
{
    return [ask] {
        Bench::script = {{}, 0xFFFFFFFF, 64};
        unsigned int err = 0;
        return ask(err) || err != NET_ORB_BUFFER_TOO_SMALL;
    };
}

/// An operation with its script, as a side of a comparison.
template <class Record>
auto Operation(bool (*query)(Record&, unsigned int&, int), const Bench::Script& script)
{
    return [=] {
        Bench::script = script;
        Record record;
        unsigned int err = 0;
        return query(record, err, 1);
    };
}

}  // namespace

int main(int argc, char** argv)
{
    const Bench::Script deviceCap{kDeviceCap, kLimit, 64};
    ComparePaired("1000 attempts: GetDeviceCapability", 7, 1,
                  Operation<DeviceCap>(PlainDeviceCapability, deviceCap),
                  Operation<DeviceCap>(
                      [](DeviceCap& out, unsigned int& err, int userID) {
                          return DeviceCap::GetDeviceCapability(out, err, userID);
                      },
                      deviceCap));
    ComparePaired(
        "1000 attempts: the buffer alone", 7, 1, [] { return PlainLadder(kLimit); },
        [] { return OwnLadder(kLimit); });

    ComparePaired("1000 MiB ladder beside 16 MB ladder", 21, 1, Exhaustion(ExhaustQuery),
                  Exhaustion(ExhaustPackage));

    const Bench::Script basic{kBasic, 0, 0};
    ComparePaired("first attempt: GetBasicCapability", 201, 500,
                  Operation<BasicCapability>(PlainBasicCapability, basic),
                  Operation<BasicCapability>(
                      [](BasicCapability& out, unsigned int& err, int userID) {
                          return BasicCapability::GetBasicCapability(out, err, userID);
                      },
                      basic));
    ComparePaired(
        "first attempt: the buffer alone", 201, 2500, [] { return PlainLadder(kStep); },
        [] { return OwnLadder(kStep); });
    return Bench::Run(argc, argv);
}
