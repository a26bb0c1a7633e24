#include "GUI/Pattern/PatternEditor.h"

#include "GUI/Pattern/NoteEdits.h"
#include "GUI/Support/BareEditor.h"
#include "GUI/Support/Pen.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

#include <random>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;
using Tests::note;
using Mods = juce::ModifierKeys;

struct PatternEditing : testing::Test
{
    Tests::BareEditor bare;
    PatternEditor editor { bare.context };
    RollTools tools { bare.context, editor };
    Tests::Pen pen { editor, tools };

    int frames = 0; // published
    Events::Listener counter { bare.getState().patterns.getAudioBroadcaster(), [this] { ++frames; } };

    /** What plays is what is drawn. */
    void expectPublished()
    {
        const auto& events = bare.getState().patterns.getPatternData()->slots[0].events;
        Sequencer::RenderedEvents drawn;
        bare.slot().pattern.render (drawn);
        std::stable_sort (drawn.notes.begin(), drawn.notes.end(), [] (const auto& a, const auto& b) {
            return a.time.start < b.time.start;
        });

        EXPECT_EQ (events.notes, drawn.notes);
        EXPECT_EQ (editor.getDrawing().notes, bare.slot().pattern.steps);
    }

    void expectLimits()
    {
        const auto& drawing = editor.getDrawing();
        const NoteGrid grid { .columns = drawing.grid };
        constexpr auto rounding = 1.0e-9;

        for (const auto& each : drawing.notes)
        {
            const auto fits =
                each.time.start >= 0.0 && each.time.start <= grid.lastStart() + rounding
                && each.time.length >= grid.shortest() - rounding && each.time.end() <= 1.0 + rounding
                && each.event.noteNum >= 0 && each.event.noteNum <= 127 && each.event.velocity >= 0.0f
                && each.event.velocity <= 1.0f && each.event.chance >= 0.0f && each.event.chance <= 1.0f;
            ASSERT_TRUE (fits) << Tests::asText ({ each });
        }

        for (const auto selected : drawing.selection)
            ASSERT_TRUE (drawing.hasNote (selected));
    }

    /** One press with a few moves, and perhaps an Esc. Whether it was cancelled. */
    bool randomGesture (std::minstd_rand& random)
    {
        const auto upTo = [&] (int limit) {
            return static_cast<int> (random() / 7u % static_cast<unsigned> (limit));
        };
        const auto place = [&] {
            return RollPoint { upTo (1100) / 1000.0 - 0.05, upTo (1600) / 100.0 + 56.0 };
        };
        constexpr std::array brushes { Brush::pencil, Brush::cursor, Brush::velocity, Brush::chance };

        auto modifiers = 0;

        for (const auto each : { Mods::shiftModifier, Mods::ctrlModifier, Mods::altModifier })
            if (upTo (4) == 0)
                modifiers |= each;

        if (upTo (6) == 0)
            modifiers |= Mods::rightButtonModifier;

        bare.getState().brush.set (brushes[static_cast<std::size_t> (upTo (4))]);
        bare.getState().snap = upTo (3) > 0;

        auto start = place();

        if (const auto& notes = editor.getDrawing().notes; ! notes.empty() && upTo (3) > 0)
        {
            const auto& each = notes[static_cast<std::size_t> (upTo (static_cast<int> (notes.size())))];
            start = { each.time.start + each.time.length * upTo (100) / 100.0, each.event.noteNum + 0.5 };
        }

        pen.press (start, modifiers, 1 + upTo (8) / 7);

        for (auto moves = upTo (4); moves > 0; --moves)
            pen.moveTo (place());

        const auto isCancelled = upTo (5) == 0;
        isCancelled ? void (tools.cancel()) : pen.release();
        return isCancelled;
    }
};

TEST_F (PatternEditing, KeepsItsLawsWhateverTheHandDoes)
{
    std::minstd_rand random (2024);
    bare.set (
        { note (60, 0.0, 0.0625), note (64, 0.25, 0.25), note (127, 0.9375, 0.0625), note (0, 0.5, 0.03) });

    for (auto gesture = 0; gesture < 250; ++gesture)
    {
        SCOPED_TRACE (gesture);
        const auto before = bare.document();
        const auto selected = editor.getDrawing().selection;
        const auto isCancelled = randomGesture (random);
        const auto after = bare.document();

        expectLimits();
        expectPublished();

        if (isCancelled)
        {
            EXPECT_EQ (after, before);
            EXPECT_EQ (editor.getDrawing().selection, selected);
        }

        if (after == before || gesture % 5 > 0)
            continue;

        bare.edits.undo();
        EXPECT_EQ (bare.document(), before) << "one step back";
        expectPublished();
        bare.edits.redo();
        EXPECT_EQ (bare.document(), after) << "and forth";
    }
}

TEST_F (PatternEditing, MakesNoStepOfUndoWhenNothingChanges)
{
    bare.set (Tests::steps ("x-x."));
    bare.getState().brush.set (Brush::cursor);

    pen.drag ({ 0.1, 60.5 }, { 0.101, 60.6 }); // within one cell
    pen.press ({ 0.1, 60.5 });
    pen.moveTo ({ 0.6, 63.5 });
    pen.moveTo ({ 0.1, 60.5 }); // and back
    pen.release();
    editor.perform ("Nothing", [] (Drawing&) {});

    EXPECT_FALSE (bare.edits.getUndo().canUndo());
}

TEST_F (PatternEditing, PublishesADragSeldomAndAnEditOnce)
{
    bare.set (Tests::steps ("x..x"));
    bare.getState().brush.set (Brush::cursor);
    frames = 0;
    const auto start = juce::Time::getMillisecondCounter();
    pen.press ({ 0.1, 60.5 });

    for (auto row = 0; row < 400; ++row)
        pen.moveTo ({ 0.1, 60.5 + row % 60 });

    pen.release();
    const auto elapsed = juce::Time::getMillisecondCounter() - start;
    EXPECT_LE (frames, static_cast<int> (elapsed / 20u) + 2);
    expectPublished();

    frames = 0;
    editor.perform ("Many", [] (Drawing& drawing) {
        for (auto i = 0; i < 5000; ++i)
            NoteEdits::add (drawing, note (i % 128, 0.5, 0.1));
    });
    EXPECT_EQ (frames, 1);
    EXPECT_EQ (editor.getDrawing().numNotes(), 4096) << "and takes no more than can be saved";
}

TEST_F (PatternEditing, LastMoveOfADragIsHeardThoughTheHandRests)
{
    bare.set (Tests::steps ("x..."));
    bare.getState().brush.set (Brush::cursor);
    pen.press ({ 0.1, 60.5 });

    for (auto row = 60; row < 64; ++row)
        pen.moveTo ({ 0.1, row + 0.5 });

    juce::Thread::sleep (25);
    bare.polls.callListeners();
    EXPECT_EQ (bare.slot().pattern.steps.front().event.noteNum, 63);
    expectPublished();
}

TEST_F (PatternEditing, LetsGoWhenTheSlotIsTakenAway)
{
    struct Case
    {
        const char* what;
        std::function<void()> take;
        std::string remaining;
    };

    const std::vector<Case> cases {
        { "a load", [this] { bare.set ({ note (70, 0.5, 0.25) }); }, "70 @0.5+0.25" },
        { "another slot", [this] { bare.shownSlot.set (3); }, "" },
        { "an empty slot", [this] { bare.set ({}); }, "" },
    };

    for (const auto& [what, take, remaining] : cases)
    {
        SCOPED_TRACE (what);
        bare.shownSlot.set (0);
        bare.set (Tests::steps ("xx.."));
        bare.getState().brush.set (Brush::cursor);
        editor.select (NoteSelection::all (2));

        pen.press ({ 0.1, 60.5 });
        pen.moveTo ({ 0.6, 65.5 });
        take();
        const auto taken = bare.document (static_cast<std::size_t> (bare.shownSlot.get()));
        pen.moveTo ({ 0.7, 67.5 });
        pen.release();

        EXPECT_EQ (Tests::asText (editor.getDrawing().notes), remaining);
        EXPECT_EQ (bare.document (static_cast<std::size_t> (bare.shownSlot.get())), taken);
        EXPECT_TRUE (editor.getDrawing().selection.isEmpty());
    }
}

TEST_F (PatternEditing, UndoInTheMiddleOfADragLeavesWholeSteps)
{
    editor.perform ("Draw", [] (Drawing& drawing) { NoteEdits::add (drawing, note (60, 0.0, 0.25)); });
    const auto drawn = bare.document();
    bare.getState().brush.set (Brush::cursor);

    pen.press ({ 0.1, 60.5 });
    pen.moveTo ({ 0.6, 65.5 });
    bare.edits.undo();
    pen.moveTo ({ 0.7, 67.5 });
    pen.release();

    EXPECT_TRUE (editor.getDrawing().notes.empty());
    bare.edits.redo();
    EXPECT_EQ (bare.document(), drawn);

    editor.perform ("Draw", [] (Drawing& drawing) { NoteEdits::add (drawing, note (61, 0.0, 0.25)); });
    bare.edits.undo();
    EXPECT_EQ (bare.document(), drawn) << "later steps are whole";
}

TEST_F (PatternEditing, UndoOpensTheSlotThatItChanges)
{
    editor.perform ("Draw", [] (Drawing& drawing) { NoteEdits::add (drawing, note (60, 0.0, 0.25)); });
    bare.shownSlot.set (5);
    bare.edits.undo();
    EXPECT_EQ (bare.shownSlot.get(), 0);
    EXPECT_TRUE (editor.getDrawing().notes.empty());
}

TEST_F (PatternEditing, KeepsTheSelectionOfWhatIsStillThere)
{
    bare.set (Tests::steps ("xxxx"));
    editor.select ({ 1, 3 });
    editor.perform ("Erase", [] (Drawing& drawing) { NoteEdits::erase (drawing, { 1 }); });
    EXPECT_EQ (editor.getDrawing().selection, NoteSelection { 2 });

    bare.edits.undo();
    EXPECT_EQ (editor.getDrawing().selection, NoteSelection { 3 });

    bare.set (Tests::steps ("..xxxx"));
    EXPECT_TRUE (editor.getDrawing().selection.isEmpty()) << "as many notes, but others";
}
} // namespace
} // namespace Zn::GUI
