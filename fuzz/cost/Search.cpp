// Searches for the input that costs most per byte, and measures a given one.
// SPDX-License-Identifier: Apache-2.0
//
// cost_search search SUBJECT SECONDS FOLDER PROFILES [SEED]
//     writes SUBJECT.time and SUBJECT.memory to FOLDER
//
// cost_search measure SUBJECT FILE PROFILES
//     prints the number of bytes, the peak of the heap and the number of log lines
//
// cost_search list PROFILES
//     prints the subjects
//
// Under callgrind, "measure" counts only the instructions spent on the input.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <mutex>
#include <stdexcept>
#include <thread>

#include <pthread.h>
#include <valgrind/callgrind.h>

#include "fuzz/cost/Meter.h"
#include "fuzz/cost/Subject.h"

namespace Cost
{
namespace
{

/// Large enough that quadratic work stands out, small enough for a hundred tries a second.
constexpr std::size_t kProbe = 48 * 1024;
/// The size at which the worst inputs are judged.
constexpr std::size_t kVerdict = 256 * 1024;
/// No input of these sizes takes as much CPU unless something is badly wrong.
constexpr double kPatience = 20;

struct Scored
{
    Shape shape;
    double score = 0;
};

/// The best shapes by one measure.
class Pool
{
public:
    void Offer(const Shape& shape, double score)
    {
        constexpr std::size_t kSize = 24;
        if (best_.size() == kSize && score <= best_.back().score) {
            return;
        }
        const auto place = std::ranges::upper_bound(best_, score, std::greater<>(), &Scored::score);
        best_.insert(place, {shape, score});
        if (best_.size() > kSize) {
            best_.pop_back();
        }
    }

    [[nodiscard]] const std::vector<Scored>& Best() const { return best_; }

private:
    std::vector<Scored> best_;
};

/// Ends the program, with the input kept, when one takes longer than anyone would wait.
class Watchdog
{
public:
    explicit Watchdog(std::filesystem::path keep) : keep_(std::move(keep))
    {
        pthread_getcpuclockid(pthread_self(), &clock_);
        thread_ = std::jthread([this](const std::stop_token& stop) { Watch(stop); });
    }

    void Begin(const std::string& input)
    {
        const std::lock_guard lock(mutex_);
        input_ = &input;
        deadline_ = Now() + kPatience;
    }

    void End()
    {
        const std::lock_guard lock(mutex_);
        input_ = nullptr;
    }

private:
    [[nodiscard]] double Now() const
    {
        timespec now{};
        clock_gettime(clock_, &now);
        return static_cast<double>(now.tv_sec);
    }

    void Watch(const std::stop_token& stop)
    {
        while (!stop.stop_requested()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            const std::lock_guard lock(mutex_);
            if (input_ != nullptr && Now() > deadline_) {
                std::ofstream(keep_, std::ios::binary) << *input_;
                std::fprintf(stderr, "an input takes more than %.0f s; kept as %s\n", kPatience,
                             keep_.c_str());
                std::_Exit(1);
            }
        }
    }

    std::filesystem::path keep_;
    clockid_t clock_{};
    std::mutex mutex_;
    const std::string* input_ = nullptr;
    double deadline_ = 0;
    std::jthread thread_;  // last, so that it ends before what it uses
};

Spent Measure(const Subject& subject, const std::string& input)
{
    const Meter meter;
    CALLGRIND_TOGGLE_COLLECT;
    subject.run(input);
    CALLGRIND_TOGGLE_COLLECT;
    return meter.Read();
}

double PerByte(double cost, const std::string& input)
{
    return cost / static_cast<double>(std::max<std::size_t>(input.size(), 1));
}

/// The input of the pool's best shapes that is worst at the size of the verdict.
template <class Score>
std::string Worst(const Subject& subject, const Pool& pool, Watchdog& watchdog, Score score)
{
    constexpr std::size_t kCandidates = 4;
    std::string worst;
    double worstScore = -1;
    const std::size_t count = std::min(kCandidates, pool.Best().size());
    for (std::size_t index = 0; index < count; ++index) {
        std::string input = pool.Best()[index].shape.Text(kVerdict);
        watchdog.Begin(input);
        const double found = PerByte(score(Measure(subject, input)), input);
        watchdog.End();
        if (found > worstScore) {
            worstScore = found;
            worst = std::move(input);
        }
    }
    return worst;
}

void Keep(const std::filesystem::path& file, const std::string& input)
{
    std::ofstream stream(file, std::ios::binary);
    stream << input;
    if (!stream.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

int Search(const Subject& subject, double seconds, const std::filesystem::path& folder,
           std::uint64_t seed)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    Watchdog watchdog(folder / (subject.name + ".endless"));
    Random random(seed);
    Pool slow;
    Pool large;
    std::size_t tried = 0;
    const auto cpu = [](const Spent& spent) { return spent.seconds; };
    const auto heap = [](const Spent& spent) { return static_cast<double>(spent.peak); };
    const auto attempt = [&](const Shape& shape) {
        const std::string input = shape.Text(kProbe);
        ++tried;
        if (input.size() < kProbe / 2) {
            return;  // what any input costs would count for much
        }
        watchdog.Begin(input);
        const Spent spent = Measure(subject, input);
        watchdog.End();
        slow.Offer(shape, PerByte(cpu(spent), input));
        large.Offer(shape, PerByte(heap(spent), input));
    };
    for (const Shape& shape : subject.seeds) {
        attempt(shape);
    }
    while (std::chrono::steady_clock::now() < end) {
        const Pool& pool = tried % 2 == 0 ? slow : large;
        const auto& best = pool.Best();
        // One in eight begins anew, so that a pool full of one shape's kin does not end the search.
        const Shape& parent = random() % 8 == 0 ? subject.seeds[random() % subject.seeds.size()]
                                                : best[random() % best.size()].shape;
        attempt(Mutated(parent, subject.words, subject.seeds, random));
    }
    Keep(folder / (subject.name + ".time"), Worst(subject, slow, watchdog, cpu));
    Keep(folder / (subject.name + ".memory"), Worst(subject, large, watchdog, heap));
    std::cout << tried << '\n';
    return 0;
}

int MeasureFile(const Subject& subject, const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    const std::string input{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) {
        throw std::runtime_error("cannot read " + file);
    }
    subject.run(subject.seeds.front().Text(kProbe));  // what is made once for the process
    CALLGRIND_ZERO_STATS;
    const Spent spent = Measure(subject, input);
    std::cout << input.size() << ' ' << spent.peak << ' ' << spent.logLines << '\n';
    return 0;
}

int Run(const std::vector<std::string>& arguments)
{
    const std::string command = arguments.empty() ? "" : arguments.front();
    const bool lists = command == "list" && arguments.size() == 2;
    const bool searches = command == "search" && (arguments.size() == 5 || arguments.size() == 6);
    const bool measures = command == "measure" && arguments.size() == 4;
    if (!lists && !searches && !measures) {
        std::cerr << "usage: cost_search search SUBJECT SECONDS FOLDER PROFILES [SEED]\n"
                     "       cost_search measure SUBJECT FILE PROFILES\n"
                     "       cost_search list PROFILES\n";
        return 2;
    }
    CountLogLines();
    const std::vector<Subject> subjects = AllSubjects(arguments[lists ? 1 : (searches ? 4 : 3)]);
    if (lists) {
        for (const Subject& subject : subjects) {
            std::cout << subject.name << '\n';
        }
        return 0;
    }
    const auto subject = std::ranges::find(subjects, arguments[1], &Subject::name);
    if (subject == subjects.end()) {
        std::cerr << "there is no subject " << arguments[1] << '\n';
        return 2;
    }
    if (measures) {
        return MeasureFile(*subject, arguments[2]);
    }
    const std::uint64_t seed = arguments.size() == 6 ? std::stoull(arguments[5]) : 1;
    return Search(*subject, std::stod(arguments[2]), arguments[3], seed);
}

}  // namespace
}  // namespace Cost

int main(int argc, char** argv)
{
    try {
        return Cost::Run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "cost_search: " << error.what() << '\n';
        return 2;
    }
}
