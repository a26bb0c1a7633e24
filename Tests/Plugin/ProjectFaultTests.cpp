#include "Plugin/ProcessorFixture.h"
#include "Plugin/Projects.h"

#include "Presets/Undo/Transaction.h"
#include "Support/MessageLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <thread>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using nlohmann::json;
using Tests::runMessageLoopUntil;

/** What a project holds but for the tempo, which follows the host. */
json withoutTempo (json document)
{
    document["Patterns"]["Sequencer"]["Transport"].erase ("BPM");
    return document;
}
} // namespace

/** Hosts hold their audio thread in a block, or between two, while they save. */
TEST (Project, IsSavedAndRestoredWhileTheHostHoldsItsAudioThread)
{
    using Clock = std::chrono::steady_clock;
    constexpr auto patience = std::chrono::seconds (5);
    ProcessorFixture f;
    const auto chunk = save (f.processor);
    std::atomic<bool> holds { false }, ends { false };

    std::thread audio ([&] {
        const juce::ScopedLock block (f.processor.getCallbackLock());
        const auto start = Clock::now();
        holds = true;

        while (! ends && Clock::now() - start < patience)
            std::this_thread::yield();
    });

    while (! holds)
        std::this_thread::yield();

    const auto start = Clock::now();
    restore (f.processor, chunk);
    EXPECT_EQ (textIn (save (f.processor)), textIn (chunk));
    EXPECT_LT (Clock::now() - start, patience / 2);

    ends = true;
    audio.join();
}

/** From inside a block, with the message thread at work or waiting for that very block. */
TEST (Project, IsSavedAndRestoredFromInsideABlock)
{
    for (const auto messageThreadWaits : { false, true })
    {
        ProcessorFixture f;
        f.set ("Transpose", "5");
        f.drawQuarters (0, 2);
        const auto chunk = save (f.processor);
        f.drawQuarters (0, 0);

        TestHost host (f.processor);
        host.watchesRealTime = false;
        juce::MemoryBlock saved;
        host.playHead.edit = [&] (auto&) {
            restore (f.processor, chunk);
            saved = save (f.processor);
        };

        std::atomic<bool> ended { false };
        std::thread audio ([&] {
            const juce::ScopedLock block (f.processor.getCallbackLock());
            host.runBlock (64);
            ended = true;
        });

        if (! messageThreadWaits)
        {
            EXPECT_TRUE (runMessageLoopUntil ([&] { return ended.load(); }));
        }

        audio.join();
        host.playHead.edit = {};
        EXPECT_TRUE (runMessageLoopUntil ([&] { return ! f.processor.isLoadPending(); }));

        for (const auto& document : { documentIn (saved), documentIn (save (f.processor)) })
            EXPECT_EQ (withoutTempo (document), withoutTempo (documentIn (chunk))) << messageThreadWaits;
    }
}

/** In a process of its own, as the first instance of a process is the one that installs them. */
TEST (ProjectDeathTest, BeginsWithTheSamePresetsInAHomeWhereNothingCanBeWritten)
{
    const auto soundsIn = [] (const char* home) {
        for (const auto* variable : { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME" })
            ::setenv (variable, home, 1);

        Processor processor;
        processor.prepareToPlay (48000.0, 4800);
        juce::AudioBuffer<float> audio (2, 4800);
        auto midi = events ("on 48 @0");
        processor.processBlock (audio, midi);

        return processor.getState().getName() == "WELCOME"
               && processor.getState().synthPreset.getName() == "Spacey Piano"
               && audio.getMagnitude (0, 4800) > 0.01f;
    };

    GTEST_FLAG_SET (death_test_style, "threadsafe");

    for (const auto* home : { "/proc/nowhere", "/dev/null", "" })
        EXPECT_EXIT (std::_Exit (soundsIn (home) ? 0 : 1), testing::ExitedWithCode (0), "") << home;
}

namespace
{
/** The row that all steps of a document are on; none if they are on several, as in a torn one. */
std::optional<int> rowOf (const json& document)
{
    std::optional<int> row;

    for (const auto& pattern : document.at ("Patterns").at ("Patterns"))
        for (const auto& step : pattern.at ("Pattern").at ("Steps"))
        {
            const int noteNum = step.at ("Event").at ("noteNum");

            if (row.value_or (noteNum) != noteNum)
                return {};

            row = noteNum;
        }

    return row;
}

/** Steps in all slots, on one row. */
void drawRow (ProcessorFixture& f, int row)
{
    const Sequencer::PatternController::Edit edit (f.state.patterns);

    for (std::size_t slot = 0; slot < Sequencer::numSlots; ++slot)
        f.drawSteps (slot, 6, row);

    f.state.setName (juce::String (row));
}
} // namespace

TEST (Project, IsWholeHoweverManyThreadsSaveAndRestoreItWhileItPlays)
{
    ProcessorFixture f;
    const auto folder = f.state.getUserFolder();
    std::vector<juce::MemoryBlock> projects;

    for (const auto row : { 1, 2 })
    {
        drawRow (f, row);
        projects.push_back (save (f.processor));
        ASSERT_TRUE (f.state.save (juce::URL (folder.getChildFile (juce::String (row) + ".json"))));
    }

    auto& undo = f.processor.getUndo();
    std::atomic<bool> ends { false };
    std::atomic<int> numTorn { 0 }, numSaved { 0 }, numWorking { 2 };
    std::vector<std::thread> threads;

    threads.emplace_back ([&] {
        juce::AudioBuffer<float> audio (2, 128);

        while (! ends)
        {
            auto midi = events ("on 60 @0, off 60 @100");
            f.processor.processBlock (audio, midi);
        }
    });

    for (auto worker = 0; worker < 2; ++worker)
        threads.emplace_back ([&, worker] {
            for (auto i = 0; i < 40; ++i)
            {
                restore (f.processor, projects[static_cast<std::size_t> ((i + worker) % 2)]);
                const auto document = documentIn (save (f.processor));
                numTorn += rowOf (document).has_value() ? 0 : 1;
                ++numSaved;
            }

            --numWorking;
        });

    EXPECT_TRUE (runMessageLoopUntil (
        [&] {
            f.state.step (1);
            {
                Undo::Transaction drawing (undo, "Draw");
                drawRow (f, 3);
                drawing.markChanged();
            }
            undo.undo();
            undo.redo();
            f.state.step (-1);
            return numWorking == 0;
        },
        std::chrono::seconds (60)));

    ends = true;

    for (auto& thread : threads)
        thread.join();

    EXPECT_EQ (numTorn, 0);
    EXPECT_EQ (numSaved, 80);

    restore (f.processor, projects.front());
    EXPECT_EQ (rowOf (documentIn (save (f.processor))), ProcessorFixture::lowestHeld + 1);
}
} // namespace Zn::Audio::Plugins::Vornel
