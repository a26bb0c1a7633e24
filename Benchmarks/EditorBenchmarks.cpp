#include "Foundation/Singleton.h"
#include "GUI/Editor/Page.h"

#include <benchmark/benchmark.h>

namespace Zn::GUI
{
namespace
{
juce::Component& find (juce::Component& root, const juce::String& element)
{
    for (auto* child : root.getChildren())
    {
        if (child->getComponentID() == element)
            return *child;

        if (auto& found = find (*child, element); &found != child)
            return found;
    }

    return root;
}

/** An editor of the usual size over a pattern with so many notes, and the screen it is painted on. */
struct PaintedEditor
{
    explicit PaintedEditor (int numNotes)
    {
        draw (numNotes);
        const auto [width, height] = Page::defaultSize();
        page.setSize (width, height);
        page.setVisible (true);
        page.getContext().polls.callListeners();
        screen = { juce::Image::ARGB, width, height, true }; // as windows are
        paint (page.getLocalBounds());
    }

    void draw (int numNotes)
    {
        const Sequencer::PatternController::Edit edit (processor.getState().patterns);
        auto& pattern = processor.getState().patterns.getSlots().front().pattern;
        juce::Random random (1);
        pattern.grid = 64;
        pattern.steps.clear();

        for (auto index = 0; index < numNotes; ++index)
        {
            Sequencer::TimedNote note;
            note.time = { index % pattern.grid / double (pattern.grid), 1.0 / pattern.grid };
            note.event.noteNum = 58 + random.nextInt (16);
            note.event.velocity = random.nextFloat();
            note.event.chance = random.nextBool() ? 1.0f : 0.5f;
            note.enabled = true;
            pattern.steps.push_back (note);
        }
    }

    /** As a window does with what has become invalid. */
    void paint (juce::Rectangle<int> area)
    {
        juce::Graphics g (screen);
        g.reduceClipRegion (area);
        page.paintEntireComponent (g, true);
    }

    const juce::ScopedJuceInitialiser_GUI juceIsRunning; // whoever runs this is the message thread
    const Singleton::UserToken singletonsStay;
    Audio::Plugins::Vornel::Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    Page page { processor };
    juce::Image screen;
};

/** What the play head uncovers and covers each frame: 60 of them a second may take 3 % of a core, so 500 us each. */
void paintFrameOfPlayHead (benchmark::State& run)
{
    PaintedEditor editor (static_cast<int> (run.range (0)));
    auto& state = editor.processor.getState();
    auto& position = *state.patterns.getSlots().front().pattern.getEmitter().getPosition();
    auto& line = dynamic_cast<PlayLine&> (find (editor.page, "PlayLine"));
    state.playHead->isPlaying = true;
    auto quarters = 0.0;

    for (auto _ : run)
    {
        constexpr auto perFrame = 2.0 / 60.0; // at 120 beats a minute
        quarters = quarters + perFrame < 4.0 ? quarters + perFrame : 0.0;
        position.position = quarters;

        const auto before = line.getDrawn();
        editor.page.getContext().polls.callListeners();
        editor.paint (editor.page.getLocalArea (&line, before.getUnion (line.getDrawn())));
    }
}

/** What an open editor does 30 times a second while nothing changes: 0.5 % of a core are 160 us each. */
void lookForChanges (benchmark::State& run)
{
    PaintedEditor editor (64);

    for (auto _ : run)
        editor.page.getContext().polls.callListeners();
}

/** From the click that opens an editor to its first picture: at most 150 ms. */
void openAndPaint (benchmark::State& run)
{
    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const Singleton::UserToken singletonsStay;
    Audio::Plugins::Vornel::Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    const auto [width, height] = Page::defaultSize();
    const juce::Image screen (juce::Image::ARGB, width, height, true);

    for (auto _ : run)
    {
        Page page (processor);
        page.setSize (width, height);
        page.setVisible (true);
        juce::Graphics g (screen);
        page.paintEntireComponent (g, true);
    }
}

/** The roll with everything in it, after a scroll or a zoom. */
void paintRollAfterScroll (benchmark::State& run)
{
    PaintedEditor editor (static_cast<int> (run.range (0)));
    auto& roll = find (editor.page, "PianoRoll");
    const auto area = editor.page.getLocalArea (&roll, roll.getLocalBounds());

    for (auto _ : run)
    {
        editor.page.getContext().canvas.callListeners(); // all pictures are made anew
        editor.paint (area);
    }
}
} // namespace

BENCHMARK (paintFrameOfPlayHead)->Arg (64)->Arg (1000)->Unit (benchmark::kMicrosecond);
BENCHMARK (lookForChanges)->Unit (benchmark::kMicrosecond);
BENCHMARK (openAndPaint)->Unit (benchmark::kMillisecond);
BENCHMARK (paintRollAfterScroll)->Arg (64)->Arg (1000)->Unit (benchmark::kMicrosecond);
} // namespace Zn::GUI
