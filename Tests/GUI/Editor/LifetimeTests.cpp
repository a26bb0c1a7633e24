#include "GUI/Editor/Page.h"
#include "GUI/Support/Hand.h"
#include "Plugin/Bases/StateEditor.h"
#include "Plugin/Bases/WithEditor.h"
#include "Support/Documents.h"
#include "Support/MessageLoop.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <limits>
#include <thread>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Processor;
using Audio::Plugins::Vornel::StartUp;
using Editor = Audio::Plugin::StateEditor<Processor, Page>;
using Hosted = Audio::Plugin::WithEditor<Processor, Editor>;

/** More of them find more: VORNEL_EDITOR_ROUNDS=500 under the sanitizers. */
int numRounds()
{
    constexpr auto usual = "20";
    return juce::SystemStats::getEnvironmentVariable ("VORNEL_EDITOR_ROUNDS", usual).getIntValue();
}

/** A host that plays the plug-in on a thread of its own, as long as this lives. */
class PlayingHost
{
public:
    explicit PlayingHost (juce::AudioProcessor& processorToPlay) : processor (processorToPlay)
    {
        processor.setPlayConfigDetails (2, 2, 48000.0, 256);
        processor.prepareToPlay (48000.0, 256);
        thread = std::thread ([this] { play(); });
    }

    ~PlayingHost()
    {
        ends = true;
        thread.join();
    }

private:
    void play()
    {
        juce::AudioBuffer<float> audio (2, 256);
        juce::MidiBuffer midi;

        for (auto block = 0; ! ends; ++block)
        {
            midi.clear();

            if (block % 200 == 0) // chords come and go
                midi.addEvent (juce::MidiMessage::noteOn (1, 60 + block / 200 % 12, 0.8f), 0);
            else if (block % 200 == 150)
                midi.addEvent (juce::MidiMessage::noteOff (1, 60 + block / 200 % 12), 0);

            processor.processBlock (audio, midi);
            std::this_thread::sleep_for (std::chrono::microseconds (200));
        }
    }

    juce::AudioProcessor& processor;
    std::atomic<bool> ends { false };
    std::thread thread;
};

/** Closes an editor as hosts do. */
struct Close
{
    void operator() (Editor* editor) const
    {
        editor->processor.editorBeingDeleted (editor);
        delete editor;
    }
};

std::unique_ptr<Editor, Close> open (Hosted& processor)
{
    return std::unique_ptr<Editor, Close> (dynamic_cast<Editor*> (processor.createEditorIfNeeded()));
}

void draw (juce::Component& editor)
{
    editor.createComponentSnapshot (editor.getLocalBounds());
}
} // namespace

TEST (EditorLifetime, ClosesInTheMiddleOfAnythingWhileItPlays)
{
    const Singleton::UserToken singletonsStay;
    Hosted processor { StartUp::empty };
    PlayingHost host { processor };

    // Each is pressed and never let go; some open pop-ups, start drags or ask for a menu.
    const juce::StringArray pressed { "PianoRoll", "NoteLane", "Osc1Volume", "PresetName",
                                      "Settings",  "Logo",     "Slot3",      "Bpm",
                                      "MidiLearn", "Help",     "Grid",       "FilterCurve" };

    for (auto round = 0; round < numRounds(); ++round)
    {
        const auto editor = open (processor);
        ASSERT_NE (editor, nullptr);

        if (round % 5 == 0)
            draw (*editor);

        const auto& name = pressed[round % pressed.size()];
        auto* part = Tests::Hand::findOrNull (*editor, name);
        ASSERT_NE (part, nullptr) << name;

        const auto centre = part->getLocalBounds().toFloat().getCentre();
        const auto button = round % 3 == 2 ? Tests::Hand::rightButton : Tests::Hand::leftButton;
        part->mouseDown (Tests::Hand::mouseEvent (*part, centre, centre, button));
        part->mouseDrag (Tests::Hand::mouseEvent (*part, centre.translated (20, 9), centre, button, 1, true));
        Zn::Tests::runPendingMessages();
    }

    EXPECT_EQ (processor.getActiveEditor(), nullptr);
    EXPECT_EQ (processor.getState().numMeterListeners.load(), 0) << "a closed editor costs nothing";
}

TEST (EditorLifetime, StaysOpenWhileProjectsAreLoadedAndSavedOnOtherThreads)
{
    const Singleton::UserToken singletonsStay;
    Hosted processor { StartUp::presets };
    juce::MemoryBlock project;
    processor.getStateInformation (project);
    PlayingHost host { processor };

    std::atomic<bool> loads { true };
    std::thread worker ([&] {
        for (auto round = 0; round < numRounds(); ++round)
        {
            processor.setStateInformation (project.getData(), static_cast<int> (project.getSize()));
            juce::MemoryBlock copy;
            processor.getStateInformation (copy);
        }

        loads = false;
    });

    auto numOpened = 0;

    while (loads)
    {
        const auto editor = open (processor);
        ++numOpened;
        processor.getState().step (1);
        draw (*editor);
        editor->getPage().getContext().polls.callListeners();
        Zn::Tests::runPendingMessages();
        editor->getPage().getContext().edits.undo();
    }

    worker.join();
    EXPECT_GT (numOpened, 0);
}

/** Caches grow now and then, but what is lost each time is lost in every stretch of rounds. */
TEST (EditorLifetime, TakesNoMoreMemoryEachTime)
{
    Hosted processor { StartUp::empty };
    PlayingHost host { processor };
    constexpr auto roundsOfAStretch = 10;
    const auto bytesInUse = [] {
        const auto info = ::mallinfo2();
        return static_cast<double> (info.uordblks + info.hblkhd);
    };

    auto leastGrowth = std::numeric_limits<double>::max();

    for (auto stretch = 0; stretch < std::max (10, numRounds() / roundsOfAStretch); ++stretch)
    {
        const auto before = bytesInUse();

        for (auto round = 0; round < roundsOfAStretch; ++round)
        {
            const auto editor = open (processor);

            if (round % 5 == 0)
                draw (*editor);

            Zn::Tests::runPendingMessages();
        }

        leastGrowth = std::min (leastGrowth, bytesInUse() - before);
    }

    EXPECT_LT (leastGrowth / roundsOfAStretch, 4000.0) << "bytes; an editor has many times as many";
    EXPECT_EQ (juce::Desktop::getInstance().getNumComponents(), 0);
}

/** What editors share goes with the last instance, and is there again for the next. */
TEST (EditorLifetime, OfOneInstanceLeavesTheOthersAlone)
{
    for (auto round = 0; round < 2; ++round)
    {
        auto shown = std::make_unique<Hosted> (StartUp::empty),
             other = std::make_unique<Hosted> (StartUp::empty);
        auto hidden = std::make_unique<Hosted> (StartUp::empty);
        const auto documentBefore = Tests::saved (hidden->getState());
        auto shownEditor = open (*shown), otherEditor = open (*other);
        draw (*shownEditor);
        draw (*otherEditor);

        Tests::Hand::click (*Tests::Hand::findOrNull (*shownEditor, "Slot3"));
        EXPECT_EQ (shown->getState().liveSlots->pending, 2);
        EXPECT_LT (other->getState().liveSlots->pending, 0);
        EXPECT_EQ (Tests::saved (hidden->getState()), documentBefore);

        shownEditor.reset();
        shown.reset();
        hidden.reset();

        Tests::Hand::click (*Tests::Hand::findOrNull (*otherEditor, "Slot5"));
        EXPECT_EQ (other->getState().liveSlots->pending, 4);
        draw (*otherEditor);
        otherEditor.reset();
        draw (*open (*other));
    }
}
} // namespace Zn::GUI
