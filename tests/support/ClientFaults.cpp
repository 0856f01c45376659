// Faults of the client around the library: settings, callbacks, appenders and threads.
// SPDX-License-Identifier: Apache-2.0
#include <locale>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <libxml/parser.h>
#include <libxml/xmlsave.h>
#include <log4cxx/appenderskeleton.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/spi/loggerrepository.h>

#include "CapabilitySet/BasicCapability.h"
#include "support/FaultTable.h"
#include "support/OutsideWatch.h"

namespace TestSupport
{
namespace
{

template <class Kind>
std::unique_ptr<Condition> Make()
{
    return std::make_unique<Kind>();
}

/// Counts the calls during which it is in effect.
struct CountingCondition : Condition
{
    CountingCondition()
    {
        ScriptedSdk::Instance().onCall = [this] { struck += IsInForce() ? 1 : 0; };
    }
    ~CountingCondition() override { ScriptedSdk::Instance().onCall = {}; }

    virtual bool IsInForce() { return true; }
};

/// libxml2 defaults and handlers that the client set for its own documents.
struct LibxmlSettings : CountingCondition
{
    LibxmlSettings()
    {
        xmlSubstituteEntitiesDefault(1);
        xmlKeepBlanksDefault(0);
        xmlLoadExtDtdDefaultValue = 1;
        xmlDoValidityCheckingDefaultValue = 1;
        xmlIndentTreeOutput = 0;
        xmlTreeIndentString = "\t";
        xmlSaveNoEmptyTags = 1;
        xmlSetStructuredErrorFunc(this, Count);
        testing::internal::CaptureStderr();
    }
    ~LibxmlSettings() override
    {
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_TRUE(IsInForce()) << "the client's settings are the client's";
        EXPECT_EQ(handled, 0) << "documents of devices are none of the client's";
        xmlSetStructuredErrorFunc(nullptr, nullptr);
        xmlSubstituteEntitiesDefault(0);
        xmlKeepBlanksDefault(1);
        xmlLoadExtDtdDefaultValue = xmlDoValidityCheckingDefaultValue = 0;
        xmlIndentTreeOutput = 1;
        xmlTreeIndentString = "  ";
        xmlSaveNoEmptyTags = 0;
    }

    bool IsInForce() override
    {
        return xmlSubstituteEntitiesDefaultValue == 1 && xmlKeepBlanksDefaultValue == 0 &&
               xmlLoadExtDtdDefaultValue == 1 && xmlDoValidityCheckingDefaultValue == 1 &&
               xmlIndentTreeOutput == 0 && std::string(xmlTreeIndentString) == "\t" &&
               xmlSaveNoEmptyTags == 1 && xmlStructuredError == Count &&
               xmlStructuredErrorContext == this;
    }

    static void Count(void* self, xmlErrorPtr) { ++static_cast<LibxmlSettings*>(self)->handled; }

    int handled = 0;
};

/// Fails if a document's file or address is accessed.
template <class Settings>
struct Watched : Settings
{
    Watched() { OutsideWatch::Instance().Arm(); }
    ~Watched() override { EXPECT_EQ(OutsideWatch::Instance().Seen(), ""); }
};

/// A global locale with decimal commas and points as thousands separators.
struct GroupingLocale : CountingCondition
{
    struct Punctuation : std::numpunct<char>
    {
        [[nodiscard]] char do_decimal_point() const override { return ','; }
        [[nodiscard]] char do_thousands_sep() const override { return '.'; }
        [[nodiscard]] std::string do_grouping() const override { return "\3"; }
    };

    ~GroupingLocale() override { std::locale::global(before); }
    bool IsInForce() override
    {
        std::ostringstream stream;
        stream << 12345 << ' ' << 0.5;
        return stream.str() == "12.345 0,5";
    }

    std::locale before = std::locale::global({std::locale::classic(), new Punctuation});
};

class ThrowingAppender : public log4cxx::AppenderSkeleton
{
public:
    void close() override {}
    [[nodiscard]] bool requiresLayout() const override { return false; }

    unsigned thrown = 0;

protected:
    void append(const log4cxx::spi::LoggingEventPtr&, log4cxx::helpers::Pool&) override
    {
        ++thrown;
        throw std::runtime_error("no space left on device");
    }
};

struct BrokenLog : Condition
{
    BrokenLog() { Root()->addAppender(appender); }
    ~BrokenLog() override { Root()->removeAppender(appender); }
    [[nodiscard]] unsigned Struck() const override { return appender->thrown; }

    static log4cxx::LoggerPtr Root()
    {
        return log4cxx::LogManager::getLoggerRepository()->getRootLogger();
    }

    std::shared_ptr<ThrowingAppender> appender = std::make_shared<ThrowingAppender>();
};

/// After each call, before the caller reads the error, another thread fails differently.
struct FailureElsewhere : Condition
{
    FailureElsewhere()
    {
        constexpr int kOther = kUser + 1;
        ScriptedSdk::Instance().userErrors[kOther] = 99;
        ScriptedSdk::Instance().onCall = [this] {
            std::thread([] {
                unsigned err = 0;
                CapabilitySet::BasicCapability record;
                EXPECT_FALSE(
                    CapabilitySet::BasicCapability::GetBasicCapability(record, err, kOther));
                EXPECT_EQ(err, 99U);
                EXPECT_EQ(LastError(), std::pair(50, 99));
            }).join();
            ++struck;
        };
    }
    ~FailureElsewhere() override { ScriptedSdk::Instance().onCall = {}; }
};

template <CallBack kWhich>
struct ThrowingCallBack : Condition
{
    ThrowingCallBack()
    {
        callBacksThrown = 0;
        throwingCallBack = kWhich;
    }
    ~ThrowingCallBack() override { throwingCallBack = CallBack::None; }
    [[nodiscard]] unsigned Struck() const override { return callBacksThrown; }
};

template <CallBack kWhich>
FaultRow CallBackRow(const char* name, const SdkStep& step)
{
    return {.name = name,
            .roads = kManager,
            .raw = Comes::Fails,
            .play = [step](const Subject&) { return std::vector<Steps>{Steps{step}}; },
            .error = 23,
            .around = Make<ThrowingCallBack<kWhich>>};
}

/// Whether an answer contains a decimal number, which JsonCpp rejects under such a locale.
bool HoldsDecimals(const std::string& text)
{
    for (std::size_t at = 1; at + 1 < text.size(); ++at) {
        if (text[at] == '.' && std::isdigit(text[at - 1]) && std::isdigit(text[at + 1])) {
            return true;
        }
    }
    return false;
}

std::vector<Steps> PlaySound(const Subject& subject)
{
    return {Steps{Sound(subject)}};
}

/// Twice: what is kept for the next document was created again after the first.
std::vector<Steps> PlayBroken(const Subject& subject)
{
    SdkStep broken = Sound(subject);
    broken.answer.back() = '!';
    return {Steps{broken}, Steps{broken}};
}

std::vector<Steps> PlayFailure(const Subject&)
{
    return {Steps{{.error = 7}}};
}

/// Documents that refer to a watched file and address.
FaultRow OutsideRow(const char* name, Comes comes, std::vector<std::string> types,
                    std::unique_ptr<Condition> (*around)())
{
    const auto play = [types = std::move(types)](const Subject& subject) {
        const OutsideWatch& watch = OutsideWatch::Instance();
        std::vector<Steps> scripts;
        for (const std::string& place : {"file://" + watch.File(), watch.File(), watch.Address()}) {
            for (const std::string& type : types) {
                const std::string& root = subject.root;
                SdkStep step = Sound(subject);
                step.answer = "<!DOCTYPE r " + type + "><" + root + "><a>&e;</a></" + root + ">";
                step.answer.replace(step.answer.find('?'), 1, "'" + place + "'");
                scripts.push_back({step});
            }
        }
        return scripts;
    };
    return {.name = name, .roads = kXmlRoads, .xml = comes, .play = play, .around = around};
}

const std::vector<std::string> kEntities{"[<!ENTITY e SYSTEM ?>]", "[<!ENTITY % e SYSTEM ?> %e;]",
                                         "[<!ENTITY e PUBLIC 'x' ?>]"};
const std::vector<std::string> kSubsets{"SYSTEM ?", "PUBLIC 'x' ?"};

}  // namespace

std::vector<FaultRow> ClientFaults()
{
    constexpr const char* kStatus = "<ResponseStatus/>";
    return {
        CallBackRow<CallBack::SdkError>("ThrowingSdkErrorCallBack", {.error = 7}),
        CallBackRow<CallBack::XmlError>("ThrowingXmlErrorCallBack",
                                        {.error = 7, .status = kStatus, .returnedSize = 17}),
        CallBackRow<CallBack::XmlErrorTrans>("ThrowingXmlErrorTranslator",
                                             {.error = 7, .status = kStatus, .returnedSize = 17}),
        {.name = "ThrowingAppenderOnAFailure",
         .roads = kAllRoads & ~kManager,
         .xml = Comes::Fails,
         .json = Comes::Fails,
         .raw = Comes::Fails,
         .play = PlayFailure,
         .strikes = SomeStrikes,
         .error = 7,
         .everyOperation = true,
         .around = Make<BrokenLog>},
        {.name = "ThrowingAppenderOnADocument",
         .roads = kXmlRoads,
         .xml = Comes::Unread,
         .play = PlayBroken,
         .strikes = SomeStrikes,
         .everyOperation = true,
         .around = Make<BrokenLog>},
        {.name = "FailureOfAnotherThread",
         .xml = Comes::Fails,
         .json = Comes::Fails,
         .raw = Comes::Fails,
         .play = PlayFailure,
         .error = 7,
         .everyOperation = true,
         .around = Make<FailureElsewhere>},
        {.name = "ClientsLibxmlSettings",
         .play = PlaySound,
         .everyOperation = true,
         .around = Make<LibxmlSettings>},
        {.name = "ClientsLibxmlHandlers",
         .roads = kXmlRoads,
         .xml = Comes::Unread,
         .play = PlayBroken,
         .everyOperation = true,
         .around = Make<LibxmlSettings>},
        {.name = "ClientsLocale",
         .play =
             [](const Subject& subject) {
                 const bool isRefused = subject.Is(kJsonRoads) && HoldsDecimals(subject.sound);
                 return isRefused ? std::vector<Steps>() : PlaySound(subject);
             },
         .everyOperation = true,
         .around = Make<GroupingLocale>},
        OutsideRow("ExternalEntity", Comes::Unread, kEntities, Make<Watched<CountingCondition>>),
        OutsideRow("ExternalEntityUnderTheClientsSettings", Comes::Unread, kEntities,
                   Make<Watched<LibxmlSettings>>),
        // A document with an external subset is not refused.
        OutsideRow("ExternalSubset", Comes::Survives, kSubsets, Make<Watched<CountingCondition>>),
        OutsideRow("ExternalSubsetUnderTheClientsSettings", Comes::Survives, kSubsets,
                   Make<Watched<LibxmlSettings>>),
    };
}

}  // namespace TestSupport
