// Faults of an SDK, of devices and of the surrounding client, as rows of one table.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <climits>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/FaultSubjects.h"
#include "support/LogCapture.h"

namespace TestSupport
{

/// The expected result of an operation.
enum class Comes
{
    Sound,     ///< as if nothing had happened
    Unread,    ///< not a document: defaults, and 23 where the record's flag is checked
    Part,      ///< success, with some of the answer
    Survives,  ///< success with anything, or 23 with defaults
    Fails,     ///< the row's error and defaults
    TooSmall,  ///< 43 if the row's error makes the buffer grow, else that error; defaults
    Told,      ///< a refusal, reported to the manager's callbacks
    NoChannel  ///< nothing is sent
};

/// A condition that holds during its lifetime; it counts how often it took effect.
struct Condition
{
    Condition() = default;
    virtual ~Condition() = default;
    Condition(const Condition&) = delete;
    Condition& operator=(const Condition&) = delete;

    [[nodiscard]] virtual unsigned Struck() const { return struck; }

    unsigned struck = 0;
};

using Steps = std::vector<SdkStep>;

/// For faults that occur at least once.
inline unsigned SomeStrikes(const Subject& /*subject*/)
{
    return UINT_MAX;
}

struct FaultRow
{
    std::string name;
    unsigned roads = kAllRoads;
    Comes xml = Comes::Sound;
    Comes json = Comes::Sound;
    Comes raw = Comes::Sound;
    /// The scripts to try, one after the other; their faults are marked.
    std::function<std::vector<Steps>(const Subject&)> play;
    /// How often each script's faults occur; empty: once.
    std::function<unsigned(const Subject&)> strikes{};
    unsigned error = 0;
    bool everyOperation = false;  ///< try every operation, not only one or two per family
    std::function<void(ScriptedSdk&)> prepare{};
    std::function<std::unique_ptr<Condition>()> around{};
    std::optional<std::pair<int, int>> lastError{};  ///< if it is not the error's
    std::function<void(const Subject&, const LogCapture&)> check{};
};

inline void PrintTo(const FaultRow& row, std::ostream* out)
{
    *out << row.name;
}

/// A sound answer.
inline SdkStep Sound(const Subject& subject)
{
    return {.answer = subject.sound,
            .returnedSize = static_cast<unsigned>(subject.sound.size()),
            .needsRoom = true};
}

std::vector<FaultRow> SdkFaults();       ///< error numbers, sizes, statuses, channels
std::vector<FaultRow> DocumentFaults();  ///< answers that are not what they seem
std::vector<FaultRow> ClientFaults();    ///< what the client around the library does

}  // namespace TestSupport
