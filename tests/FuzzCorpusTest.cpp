// The fuzzers' seeds and finds, and small changes of them, hold the properties that are fuzzed.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fuzz/Targets.h"

namespace
{

struct Target
{
    const char* name;
    void (*run)(const std::string& text);
};

class FuzzCorpusTest : public testing::TestWithParam<Target>
{
protected:
    static void Run(const std::string& text, const std::string& from)
    {
        try {
            GetParam().run(text);
        } catch (const std::exception& failure) {
            FAIL() << failure.what() << "\n" << from << ": " << testing::PrintToString(text);
        }
    }
};

TEST_P(FuzzCorpusTest, HoldsForEveryKeptFileAndItsNeighbours)
{
    std::mt19937 random(1);
    const auto below = [&random](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    std::vector<std::filesystem::path> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(FUZZ_CORPUS "/") + GetParam().name))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    ASSERT_GE(files.size(), 3U);
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        const std::string seed((std::istreambuf_iterator<char>(in)), {});
        Run(seed, file.string());
        for (int round = 0; round < 300 && !seed.empty() && !HasFailure(); ++round) {
            std::string text = seed;
            const std::size_t begin = below(text.size());
            const std::string piece = text.substr(begin, below(40) + 1);
            if (round % 3 == 0)
                text.erase(begin, piece.size());
            else if (round % 3 == 1)
                text.insert(below(text.size()), piece);
            else
                text[begin] = "<>/&\"'{}[],:0-9e. "[below(18)];
            Run(text, "changed from " + file.string());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzCorpusTest,
                         testing::Values(Target{"Xml", Fuzz::Xml}, Target{"Json", Fuzz::Json},
                                         Target{"Number", Fuzz::Number}),
                         [](const auto& each) { return each.param.name; });

}  // namespace
