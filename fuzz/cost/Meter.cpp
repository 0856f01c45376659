// What a piece of work costs the thread that does it.
// SPDX-License-Identifier: Apache-2.0
#include "fuzz/cost/Meter.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <ctime>
#include <memory>

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/basicconfigurator.h>
#include <log4cxx/logger.h>
#include <log4cxx/spi/loggingevent.h>
#include <malloc.h>

extern "C"
{
    // The allocator behind the counted functions below.
    // NOLINTBEGIN(bugprone-reserved-identifier): glibc's names
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);
    void __libc_free(void* block);
    // NOLINTEND(bugprone-reserved-identifier)
}

namespace
{

thread_local std::ptrdiff_t live = 0;
thread_local std::ptrdiff_t most = 0;
std::atomic<std::size_t> logLines{0};
std::atomic<std::size_t> logBytes{0};

std::ptrdiff_t SizeOf(void* block)
{
    return block == nullptr ? 0 : static_cast<std::ptrdiff_t>(malloc_usable_size(block));
}

void* Counted(void* block)
{
    live += SizeOf(block);
    most = std::max(most, live);
    return block;
}

class Counter : public log4cxx::AppenderSkeleton
{
public:
    void append(const log4cxx::spi::LoggingEventPtr& event,
                log4cxx::helpers::Pool& /*pool*/) override
    {
        ++logLines;
        logBytes += event->getMessage().size();
    }
    void close() override {}
    [[nodiscard]] bool requiresLayout() const override { return false; }
};

double ThreadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

}  // namespace

extern "C"
{
    void* malloc(std::size_t size)
    {
        return Counted(__libc_malloc(size));
    }

    void* calloc(std::size_t count, std::size_t size)
    {
        return Counted(__libc_calloc(count, size));
    }

    void* realloc(void* block, std::size_t size)
    {
        const std::ptrdiff_t before = SizeOf(block);
        void* const moved = __libc_realloc(block, size);
        if (moved != nullptr || size == 0) {
            live -= before;
        }
        return Counted(moved);
    }

    void free(void* block)
    {
        live -= SizeOf(block);
        __libc_free(block);
    }

}  // extern "C"

namespace Cost
{

Meter::Meter() : start_(ThreadSeconds()), linesBefore_(logLines), bytesBefore_(logBytes)
{
    live = 0;
    most = 0;
}

Spent Meter::Read() const
{
    return {ThreadSeconds() - start_, static_cast<std::size_t>(most), logLines - linesBefore_,
            logBytes - bytesBefore_};
}

void CountLogLines()
{
    log4cxx::BasicConfigurator::configure(std::make_shared<Counter>());
    log4cxx::Logger::getRootLogger()->setLevel(log4cxx::Level::getAll());
}

}  // namespace Cost
