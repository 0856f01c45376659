// Faults of the SDK itself: error numbers, sizes, status texts, channels.
// SPDX-License-Identifier: Apache-2.0
#include <climits>

#include <gmock/gmock.h>

#include "support/Deep.h"
#include "support/FaultTable.h"

namespace TestSupport
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned kManagerNeeds = 3000;

/// Too small `times` times, then a sound answer.
auto TooSmall(unsigned error, unsigned times)
{
    return [=](const Subject& subject) {
        Steps steps;
        for (unsigned i = 0; i < times; ++i) {
            steps.push_back({.error = error,
                             .answer = "<dirt/>",
                             .returnedSize = kManagerNeeds + i,
                             .isFault = true});
        }
        if (times > 0) {
            steps.push_back(Sound(subject));
        } else {
            steps.assign(1, {.error = error,
                             .answer = "<dirt/>",
                             .returnedSize = kManagerNeeds,
                             .isFault = true});
        }
        return std::vector<Steps>{steps};
    };
}

unsigned AttemptsOf(const Subject& subject)
{
    // The manager grows to the reported size and gives up if that was not enough.
    return subject.Is(kManager)
               ? 2
               : (subject.policy.limit - subject.policy.start) / subject.policy.step + 1;
}

/// For operations whose buffer grows on this number.
auto WhereItGrows(unsigned error, unsigned times)
{
    return [=](const Subject& subject) {
        return !subject.GrowsOn(error) ? 1 : times == 0 ? AttemptsOf(subject) : times;
    };
}

auto Play(SdkStep step)
{
    step.isFault = true;
    return [step](const Subject&) { return std::vector<Steps>{Steps{step}}; };
}

/// Sound answers with one change.
template <class Change>
auto Changed(Change change)
{
    return [change](const Subject& subject) {
        SdkStep step = Sound(subject);
        step.isFault = true;
        step.needsRoom = false;
        change(step, subject);
        return std::vector<Steps>{Steps{step}};
    };
}

auto ReturnedSize(unsigned (*size)(unsigned size))
{
    return Changed(
        [size](SdkStep& step, const Subject&) { step.returnedSize = size(step.returnedSize); });
}

void CheckLimitLines(const Subject& subject, const LogCapture& log)
{
    if (subject.xml == nullptr) {
        EXPECT_THAT(log.Messages(), IsEmpty());
        EXPECT_THAT(log.Messages("Vsk"), IsEmpty());
        return;
    }
    const std::string trace = subject.xml->limitTrace;
    const std::size_t name = trace.find(']') + 1;
    ASSERT_FALSE(log.Messages("Vsk").empty());
    EXPECT_EQ(log.Messages("Vsk").back(), trace.substr(0, name) +
                                              "failure to CCapabilityApp::" + trace.substr(name) +
                                              ", userID = [5], error code = [43]");
    const char* const line = subject.xml->limitLine;
    EXPECT_EQ(log.Messages(),
              line == nullptr ? std::vector<std::string>() : std::vector<std::string>{line});
}

std::string FileOf(const Subject& subject)
{
    if (subject.xml != nullptr) {
        return subject.xml->file;
    }
    const std::string app = subject.name.substr(0, subject.name.find(':'));
    return "JsonTARN/" + app.substr(0, app.size() - 3) + "/" + app + ".cpp";
}

const char* FailedCall(const Subject& subject)
{
    if (subject.xml != nullptr && subject.xml->failedCall != nullptr) {
        return subject.xml->failedCall;
    }
    return subject.Is(kDeviceAbility)     ? "NET_ORB_GetDeviceAbility"
           : subject.Is(kStandardAbility) ? "NET_ORB_GetSTDAbility"
                                          : "NET_ORB_STDXMLConfig";
}

/// Checks the log lines of a failure with a known model code, and their source location.
void CheckFailureLines(const Subject& subject, const LogCapture& log)
{
    if (!subject.setsLastError) {
        EXPECT_THAT(log.Messages(), ElementsAre(subject.json->onlyLine));
    } else {
        EXPECT_THAT(log.Messages(),
                    ElementsAre("NET_ORB_GetLastError: [7]",
                                "NET_ORB_GetLastErrorModelCode, ErrModelCode:[0x700005], "
                                "MErrDevSelfEx:[0x7].",
                                FailedCall(subject) + std::string(" failed, [72]-[7340037].")));
        EXPECT_EQ(log.Lines().front().function, "comm_method::getLastSDKError");
    }
    const LogLine line = log.Lines().back();
    EXPECT_EQ(line.level, "ERROR");
    EXPECT_GT(line.line, 0);
    EXPECT_EQ(line.file, "Common/CapabilitySet/" + FileOf(subject));
    EXPECT_EQ(line.function, "CapabilitySet::" + subject.name);
}

void CheckToldWithoutCode(const Subject&, const LogCapture&)
{
    EXPECT_THAT(managerReport.translated, ElementsAre(std::pair(0, std::string())));
    EXPECT_THAT(managerReport.xmlErrors, ElementsAre(4711));
}

void AddErrors(std::vector<FaultRow>& rows)
{
    for (const unsigned error : {43U, 1001U}) {
        for (const auto& [times, often] : {std::pair{1U, "Once"}, {4U, "FourTimes"}}) {
            const Comes comes = error == 43 ? Comes::Sound : Comes::TooSmall;
            rows.push_back({.name = "TooSmall" + std::to_string(error) + often,
                            .xml = comes,
                            .json = comes,
                            .raw = comes,
                            .play = TooSmall(error, times),
                            .strikes = WhereItGrows(error, times),
                            .error = error,
                            .everyOperation = true});
        }
        rows.push_back({.name = "TooSmall" + std::to_string(error) + "ForEver",
                        .xml = Comes::TooSmall,
                        .json = Comes::TooSmall,
                        .raw = Comes::TooSmall,
                        .play = TooSmall(error, 0),
                        .strikes = WhereItGrows(error, 0),
                        .error = error,
                        .everyOperation = IsDeep(),  // up to a thousand attempts each
                        .check = [error](const Subject& subject, const LogCapture& log) {
                            if (subject.GrowsOn(error) && !subject.Is(kRawRoads)) {
                                CheckLimitLines(subject, log);
                            }
                        }});
    }
    for (const unsigned error : {7U, 23U, 1000U, 4000000000U}) {
        rows.push_back({.name = "Error" + std::to_string(error),
                        .xml = Comes::Fails,
                        .json = Comes::Fails,
                        .raw = Comes::Fails,
                        .play = Play({.error = error, .answer = "hello", .returnedSize = 5}),
                        .error = error,
                        .everyOperation = true});
    }
    rows.push_back({.name = "Error1000AfterTooSmall",
                    .xml = Comes::Fails,
                    .json = Comes::Fails,
                    .raw = Comes::Fails,
                    .play =
                        [](const Subject&) {
                            return std::vector<Steps>{
                                Steps{{.error = 43, .returnedSize = kManagerNeeds},
                                      {.error = 1000, .isFault = true}}};
                        },
                    .error = 1000,
                    .everyOperation = true});
}

void AddModelCodes(std::vector<FaultRow>& rows)
{
    struct Code
    {
        const char* name;
        std::optional<int> model;
        std::optional<std::pair<int, int>> lastError;
    };
    for (const Code& code : {Code{"KnownModelCode", 0x700005, std::pair{72, 0x700005}},
                             {"UnknownModelCode", 0x700006, {}},
                             {"UntouchedModelCode", {}, {}}}) {
        const bool isKnown = code.lastError.has_value();
        rows.push_back(
            {.name = code.name,
             .roads = kXmlRoads | kJsonRoads | kPackage,
             .xml = Comes::Fails,
             .json = Comes::Fails,
             .raw = Comes::Fails,
             .play = [](const Subject&) { return std::vector<Steps>{Steps{{.error = 7}}}; },
             .strikes = [](const Subject& subject) { return subject.setsLastError ? 1U : 0U; },
             .error = 7,
             .everyOperation = true,
             .prepare =
                 [model = code.model](ScriptedSdk& sdk) {
                     sdk.countsModelCodes = true;
                     sdk.modelCode = model;
                 },
             .lastError = code.lastError,
             .check =
                 [isKnown](const Subject& subject, const LogCapture& log) {
                     if (isKnown && !subject.Is(kRawRoads)) {
                         CheckFailureLines(subject, log);
                     }
                 }});
    }
}

void AddSizes(std::vector<FaultRow>& rows)
{
    const unsigned sized = kAllRoads & ~kDeviceAbility;
    rows.push_back({.name = "NothingWritten",
                    .xml = Comes::Unread,
                    .json = Comes::Unread,
                    .play = Play({}),
                    .everyOperation = true});
    rows.push_back({.name = "FilledToTheLastByte",
                    .play = Changed([](SdkStep& step, const Subject& subject) {
                        step.answer.resize(subject.policy.start, ' ');
                        step.returnedSize = subject.policy.start;
                    }),
                    .everyOperation = true});
    rows.push_back({.name = "FilledWithOtherText",
                    .xml = Comes::Unread,
                    .play = Changed([](SdkStep& step, const Subject& subject) {
                        step.fills = true;
                        step.returnedSize = subject.policy.start;
                    }),
                    .everyOperation = true});
    rows.push_back({.name = "TextBehindTheNul",
                    .play = Changed([](SdkStep& step, const Subject&) {
                        step.answer += std::string("\0<{", 3);
                    }),
                    .everyOperation = true});
    rows.push_back({.name = "ReturnedSizeZero", .roads = sized, .play = ReturnedSize([](unsigned) {
                                                                    return 0U;
                                                                })});
    rows.push_back({.name = "ReturnedSizeTooSmall",
                    .roads = sized,
                    .play = ReturnedSize([](unsigned size) { return size / 2; })});
    rows.push_back({.name = "ReturnedSizeBeyondTheAnswer",
                    .roads = sized,
                    .play = ReturnedSize([](unsigned size) { return size + 1000; })});
    rows.push_back({.name = "ReturnedSizeFourGiB",
                    .roads = sized,
                    .play = ReturnedSize([](unsigned) { return UINT_MAX; })});
}

/// A status text with an answer or an error.
FaultRow StatusRow(const char* name, SdkStep step, Comes comes,
                   std::function<void(const Subject&, const LogCapture&)> check)
{
    return {.name = name,
            .roads = kManager,
            .raw = comes,
            .play = Play(std::move(step)),
            .error = step.error,
            .check = std::move(check)};
}

auto StatusIs(std::string text)
{
    return [text](const Subject&, const LogCapture&) { EXPECT_EQ(managerReport.status, text); };
}

void AddStatuses(std::vector<FaultRow>& rows)
{
    const std::string full(512, 's');
    const auto refusal = [](const char* status, unsigned size) {
        return SdkStep{.error = 43, .status = status, .returnedSize = size};
    };
    rows.push_back(StatusRow("StatusWithSuccess",
                             {.answer = "a", .status = "warning", .returnedSize = 4}, Comes::Sound,
                             StatusIs("warn")));
    rows.push_back(StatusRow("FullStatusWithSuccessAndALyingSize",
                             {.status = full, .returnedSize = UINT_MAX}, Comes::Sound,
                             StatusIs(full)));
    rows.push_back(
        StatusRow("StatusWithFailure",
                  refusal("<ResponseStatus><statusCode>4</statusCode><subStatusCode>notSupport"
                          "</subStatusCode></ResponseStatus>",
                          500),
                  Comes::Told, [](const Subject&, const LogCapture&) {
                      EXPECT_THAT(managerReport.translated,
                                  ElementsAre(std::pair(4, std::string("notSupport"))));
                      EXPECT_EQ(managerReport.status, "before");
                  }));
    const std::pair<const char*, SdkStep> unread[] = {
        {"StatusNotXml", refusal("not XML", 500)},
        {"StatusCut", refusal("<ResponseStatus><statusCode>4</statusCode>", 500)},
        {"StatusOfAnotherRoot", refusal("<Other><statusCode>4</statusCode></Other>", 500)},
        {"StatusWithEntities",
         refusal("<!DOCTYPE r [<!ENTITY e '4'>]><ResponseStatus><statusCode>&e;</statusCode>"
                 "</ResponseStatus>",
                 500)},
        {"StatusWithASizeOfZero",
         refusal("<ResponseStatus><statusCode>4</statusCode></ResponseStatus>", 0)},
        {"StatusWithASizeTooSmall",
         refusal("<ResponseStatus><statusCode>4</statusCode></ResponseStatus>", 10)},
        {"FullStatusWithALyingSize", {.error = 7, .status = full, .returnedSize = UINT_MAX}}};
    for (const auto& [name, step] : unread) {
        rows.push_back(StatusRow(name, step, Comes::Told, CheckToldWithoutCode));
    }
}

}  // namespace

std::vector<FaultRow> SdkFaults()
{
    std::vector<FaultRow> rows;
    AddErrors(rows);
    AddModelCodes(rows);
    AddSizes(rows);
    AddStatuses(rows);
    rows.push_back({.name = "NoChannel",
                    .roads = kXmlRoads | kJsonRoads,
                    .xml = Comes::NoChannel,
                    .json = Comes::NoChannel,
                    .play =
                        [](const Subject& subject) {
                            return subject.convertsChannel
                                       ? std::vector<Steps>{Steps{Sound(subject)}}
                                       : std::vector<Steps>();
                        },
                    .error = 1000,
                    .everyOperation = true,
                    .prepare = [](ScriptedSdk& sdk) { sdk.channelError = 1000; },
                    .check =
                        [](const Subject& subject, const LogCapture& log) {
                            if (subject.Is(kXmlRoads)) {
                                EXPECT_EQ(log.Messages().back(),
                                          "NET_ORB_SDKChannelToTARN failed, [50]-[1000].");
                            } else {
                                EXPECT_THAT(log.Messages(), IsEmpty());
                            }
                        }});
    return rows;
}

}  // namespace TestSupport
