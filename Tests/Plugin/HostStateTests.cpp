#include "Plugin/HostStateFixture.h"

#include <chrono>
#include <optional>

namespace Zn::Audio::Plugin
{
namespace
{
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

const std::string song =
    R"({"pattern":"song","bars":4,"Params":{"Cutoff":"1.23"},"FlatParams":[0.1234567,0.5,1]})";
} // namespace

TEST (HostState, TakesWhatItCanFromABrokenProject)
{
    const std::string untouched = "default 0.5 0.25 0", flatOnly = "default 0.25 0.25 0";

    const struct
    {
        const char* what;
        std::string text, state;
    } rows[] = {
        { "no document", "{\"pattern\":", untouched },
        { "not a number", R"({"bars":NaN,"pattern":"x"})", untouched },
        { "beyond numbers", R"({"bars":1e999,"pattern":"x"})", untouched },
        { "nested 100,000 deep", std::string (100'000, '['), untouched },
        { "nested inside",
          R"({"pattern":)" + std::string (65, '{') + std::string (65, '}') + "}",
          untouched },
        { "a list", R"(["pattern"])", untouched },
        { "a number", "12", untouched },
        { "rest behind a NUL", std::string (R"({"pattern":"x"})") + '\0' + "{]", "x 0.5 0.25 0" },
        { "flat: too short", R"({"FlatParams":[0.25],"pattern":"x"})", "x 0.25 0.25 0" },
        { "flat: too long", R"({"FlatParams":[0.25,0.25,0,1,1],"pattern":"x"})", "x 0.25 0.25 0" },
        { "flat: out of range", R"({"FlatParams":[-7,1e30],"pattern":"x"})", "x 0 1 0" },
        { "flat: a text", R"({"FlatParams":[0.25,"1",1],"pattern":"x"})", flatOnly },
        { "flat: a boolean", R"({"FlatParams":[0.25,true,1],"pattern":"x"})", flatOnly },
        { "flat: null inside", R"({"FlatParams":[0.25,null,1],"pattern":"x"})", flatOnly },
        { "flat: no list", R"({"FlatParams":{"0":1},"pattern":"x"})", untouched },
        { "breaks off", R"({"FlatParams":[0.25],"pattern":"x","bars":"many"})", "x 0.25 0.25 0" },
    };

    for (const auto& [what, text, state] : rows)
    {
        ToyProcessor processor;
        EXPECT_NO_THROW (processor.restore (text)) << what;

        auto now = processor.pattern();

        for (const auto* parameter : processor.getParameters())
            now += ' ' + juce::String (parameter->getValue()).toStdString();

        EXPECT_EQ (now, state) << what;
        EXPECT_EQ (processor.document().at ("pattern"), processor.pattern()) << what;
        EXPECT_FALSE (processor.isLoadPending()) << what;
    }
}

TEST (HostState, IsLoadedUpToALimitOfItsSize)
{
    ToyProcessor processor;
    processor.restore (R"({"waste":")" + std::string (12'000'000, 'x') + R"(","pattern":"song"})");
    EXPECT_EQ (processor.pattern(), "song");

    processor.restore (R"({"waste":")" + std::string (70'000'000, 'x') + R"(","pattern":"too long"})");
    EXPECT_EQ (processor.pattern(), "song");
}

TEST (HostState, IsEmptyUntilTheProcessorIsComplete)
{
    struct Unfinished : ToyProcessor
    {
        Unfinished() { stopHostState(); }
    } processor;

    juce::MemoryBlock chunk;
    processor.getStateInformation (chunk);
    EXPECT_TRUE (chunk.isEmpty());
    EXPECT_NO_THROW (processor.restore (song));
}

TEST (HostState, AnswersAWorkerThatTheMessageThreadWaitsFor)
{
    ToyProcessor processor;
    nlohmann::json before, after;
    const auto start = Clock::now();

    whileMessageThreadWaits ([&] {
        before = processor.document();
        processor.restore (song);
        after = processor.document();
        processor.renderBlock();
    });

    EXPECT_LT (Clock::now() - start, 3s); // a second for each question
    EXPECT_EQ (before.at ("pattern"), "default");
    EXPECT_EQ (after.at ("pattern"), "song");
    EXPECT_FLOAT_EQ (after.at ("FlatParams")[0].get<float>(), 0.1234567f);
    EXPECT_EQ (processor.lastHeard, "silence");

    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return ! processor.isLoadPending(); }));
    processor.renderBlock();
    EXPECT_EQ (processor.lastHeard, "song");
    EXPECT_FLOAT_EQ (processor.getParameters()[0]->getValue(), 0.1234567f) << "the rounded text came later";
}

TEST (HostState, IsLoadedBeforeAWorkerRendersIt)
{
    for (auto isOffline : { false, true })
    {
        ToyProcessor processor;
        processor.setNonRealtime (isOffline);

        besideMessageThread ([&] {
            processor.restore (song);

            if (! isOffline)
                processor.prepareToPlay (48000.0, 16);

            processor.renderBlock();
        });

        EXPECT_EQ (processor.lastHeard, "song") << "offline: " << isOffline;
    }
}

TEST (HostState, IsWaitedForOnceInARenderThatTheMessageThreadWaitsFor)
{
    ToyProcessor processor;
    processor.setNonRealtime (true);
    const auto start = Clock::now();

    whileMessageThreadWaits ([&] {
        processor.restore (song);

        for (auto block = 0; block < 100; ++block)
            processor.renderBlock();
    });

    EXPECT_LT (Clock::now() - start, 2s);
    EXPECT_EQ (processor.lastHeard, "silence");

    processor.prepareToPlay (48000.0, 16); // on the message thread, which has never looked at its queue
    EXPECT_EQ (processor.pattern(), "song");
}

TEST (HostState, AskedForWhileItIsLoadedIsWhatItWillBe)
{
    ToyProcessor processor;
    std::string asked;
    processor.getState().duringReflect = [&] {
        if (std::exchange (processor.getState().duringReflect, nullptr)) // once, inside the load
            asked = processor.document().at ("pattern");
    };

    processor.restore (song);
    EXPECT_EQ (asked, "song");
}

TEST (HostState, IsAnsweredAtOnceForAnAudioUnitOnAnyThread)
{
    juce::AudioProcessor::setTypeOfNextNewPlugin (juce::AudioProcessor::wrapperType_AudioUnit);
    ToyProcessor processor;
    juce::AudioProcessor::setTypeOfNextNewPlugin (juce::AudioProcessor::wrapperType_Undefined);

    nlohmann::json answer;
    const auto ask = [&] { answer = processor.document(); };
    const auto start = Clock::now();

    processor.restore (song); // and no tick of the timer since
    processor.getParameters()[1]->setValueNotifyingHost (1.0f);
    whileMessageThreadWaits (ask);

    EXPECT_LT (Clock::now() - start, 500ms);
    EXPECT_EQ (answer.at ("pattern"), "song");
    EXPECT_EQ (answer.at ("bars"), 4);
    EXPECT_EQ (answer.at ("FlatParams")[1], 1.0);
}

TEST (HostState, GoesWithAProcessorThatDiesBeforeItIsLoaded)
{
    std::optional<ToyProcessor> processor { std::in_place };

    whileMessageThreadWaits ([&] {
        processor->restore (song);
        processor.reset();
    });

    Zn::Tests::runPendingMessages();
}
} // namespace Zn::Audio::Plugin
