// Runs the fuzz targets over seeds and finds, and over small changes of them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

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

namespace TestSupport
{

struct FuzzTarget
{
    const char* name;
    void (*run)(const std::string& text);
};

/// A program instantiates this suite with its targets as "Targets".
class FuzzCorpusTest : public testing::TestWithParam<FuzzTarget>
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

    static std::vector<std::filesystem::path> FilesIn(const std::string& folder)
    {
        std::vector<std::filesystem::path> files;
        const std::filesystem::path path = folder + "/" + GetParam().name;
        if (std::filesystem::exists(path)) {
            for (const auto& entry : std::filesystem::directory_iterator(path)) {
                files.push_back(entry.path());
            }
        }
        std::sort(files.begin(), files.end());
        return files;
    }

    static std::string TextOf(const std::filesystem::path& file)
    {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
};

inline std::string NameOf(const testing::TestParamInfo<FuzzTarget>& each)
{
    return each.param.name;
}

TEST_P(FuzzCorpusTest, HoldsForEveryFind)
{
    for (const auto& file : FilesIn(FUZZ_FINDS)) {
        Run(TextOf(file), file.string());
    }
}

TEST_P(FuzzCorpusTest, HoldsForEverySeedAndItsNeighbours)
{
    std::mt19937 random(1);
    const auto below = [&random](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    const auto files = FilesIn(FUZZ_CORPUS);
    ASSERT_GE(files.size(), 2U);
    for (const auto& file : files) {
        const std::string seed = TextOf(file);
        Run(seed, file.string());
        for (int round = 0; round < 300 && !seed.empty() && !HasFailure(); ++round) {
            std::string text = seed;
            const std::size_t begin = below(text.size());
            const std::string piece = text.substr(begin, below(40) + 1);
            if (round % 3 == 0) {
                text.erase(begin, piece.size());
            } else if (round % 3 == 1) {
                text.insert(below(text.size()), piece);
            } else {
                text[begin] = "<>/&\"'{}[],:0-9e. "[below(18)];
            }
            Run(text, "changed from " + file.string());
        }
    }
}

}  // namespace TestSupport
