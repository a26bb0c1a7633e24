#include "GUI/Pattern/PianoRoll.h"

#include "GUI/Support/OpenEditor.h"
#include "GUI/Support/ScreenReader.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;

struct OpenRoll : Tests::OpenEditor
{
    OpenRoll()
    {
        draw ({ { 0.0, 64 }, { 0.5, 66 } });
        paint();
    }

    struct Place
    {
        double start;
        int row;
    };

    /** Notes of one column in a pattern of 16. */
    void draw (std::initializer_list<Place> places, std::size_t slot = 0)
    {
        const Sequencer::PatternController::Edit edit (getState().patterns);
        auto& drawn = getState().patterns.getSlots()[slot];
        drawn.reset();

        for (const auto& place : places)
        {
            Sequencer::TimedNote note;
            note.time = { place.start, 1.0 / 16.0 };
            note.event.noteNum = place.row;
            note.enabled = true;
            drawn.pattern.steps.push_back (note);
        }
    }

    void paint() { page.createComponentSnapshot (page.getLocalBounds()); }

    void play (std::size_t slot, double quarters)
    {
        auto& state = getState();
        state.playHead->isPlaying = true;
        state.liveSlots->heard = static_cast<int> (slot);
        state.patterns.getSlots()[slot].pattern.getEmitter().getPosition()->position = quarters;
        poll();
    }

    /** The middle of a cell as it is first seen: the uppermost row is 73. */
    Tests::Hand::Point cell (double column, int row)
    {
        const auto height = double (roll.getHeight()) / 16.0;
        return { static_cast<float> ((column + 0.5) * roll.getWidth() / 16.0),
                 static_cast<float> ((73 - row + 0.5) * height) };
    }

    const std::vector<Sequencer::TimedNote>& notes()
    {
        return getState().patterns.getSlots().front().pattern.steps;
    }

    void take (Brush brush) { getState().brushParam.setInt (static_cast<int> (brush)); }

    PianoRoll& roll = find<PianoRoll> ("PianoRoll");
    PlayLine& line = find<PlayLine> ("PlayLine");
};
} // namespace

TEST (PianoRoll, OpensItsMenuByTheMenuKey)
{
    OpenRoll editor;
    EXPECT_TRUE (Tests::Hand::press (editor.roll, "shift + F10"));
}

TEST (PianoRoll, HandsTheMouseToTheToolInHand)
{
    OpenRoll editor;

    editor.take (Brush::pencil);
    Tests::Hand::click (editor.roll, editor.cell (4, 70));
    ASSERT_EQ (editor.notes().size(), 3u);
    EXPECT_EQ (editor.notes().back().event.noteNum, 70);
    EXPECT_NEAR (editor.notes().back().time.start, 0.25, 1.0e-9);

    editor.take (Brush::cursor);
    Tests::Hand::drag (editor.roll, { editor.cell (3.8, 70), editor.cell (4.8, 69), editor.cell (5.8, 68) });
    EXPECT_EQ (editor.notes().back().event.noteNum, 68);
    EXPECT_NEAR (editor.notes().back().time.start, 0.375, 1.0e-9);

    const auto up = [&] (Brush brush) {
        editor.take (brush);
        const auto from = editor.cell (0, 64);
        Tests::Hand::drag (editor.roll,
                           { from, from.translated (0.0f, 30.0f), from.translated (0.0f, 75.0f) });
    };

    up (Brush::velocity);
    EXPECT_NEAR (editor.notes().front().event.velocity, 0.3f, 0.02f);
    up (Brush::chance);
    EXPECT_NEAR (editor.notes().front().event.chance, 0.5f, 0.02f);
}

TEST (PianoRoll, PaintsNothingAnewWhileNothingChanges)
{
    OpenRoll editor;
    editor.play (0, 1.0);
    editor.paint();

    const auto& picture = editor.roll.getPicture();
    const auto grids = picture.getNumGridPaints(), notes = picture.getNumNotePaints();

    for (auto quarters : { 1.1, 1.2, 1.3 }) // between the notes
    {
        editor.play (0, quarters);
        editor.paint();
    }

    EXPECT_EQ (picture.getNumGridPaints(), grids);
    EXPECT_EQ (picture.getNumNotePaints(), notes);

    editor.draw ({ { 0.0, 64 } });
    EXPECT_EQ (picture.getNumGridPaints(), grids) << "an edit of notes leaves the grid";
    EXPECT_EQ (picture.getNumNotePaints(), notes + 1);
}

TEST (PlayLine, IsThereForTheSlotThatIsHeardAlone)
{
    OpenRoll editor;
    EXPECT_TRUE (editor.line.getDrawn().isEmpty()) << "nothing plays";

    editor.play (0, 1.0);
    EXPECT_FALSE (editor.line.getDrawn().isEmpty());
    const auto before = editor.line.getDrawn().getRight();
    editor.play (0, 2.0);
    EXPECT_NEAR (editor.line.getDrawn().getRight() - before, editor.roll.getWidth() / 4, 1);

    editor.draw ({ { 0.0, 64 } }, 1);
    editor.play (1, 1.0);
    editor.page.getContext().shownSlot.set (0); // it has followed
    editor.poll();
    EXPECT_TRUE (editor.line.getDrawn().isEmpty()) << "another slot is heard";
    auto& elsewhere = editor.find ("PlayingElsewhere");
    EXPECT_TRUE (elsewhere.isVisible());
    EXPECT_EQ (elsewhere.getTitle(), "Slot 2 plays");

    Tests::accessibilityOf (elsewhere)->getActions().invoke (juce::AccessibilityActionType::press);
    EXPECT_EQ (editor.page.getContext().shownSlot.get(), 1);
    EXPECT_FALSE (editor.line.getDrawn().isEmpty()) << "at once, even while the clock rests";
    editor.poll();
    EXPECT_FALSE (editor.find ("PlayingElsewhere").isVisible());

    editor.getState().playHead->isPlaying = false;
    editor.poll();
    EXPECT_TRUE (editor.line.getDrawn().isEmpty());
}

TEST (PlayLine, RepaintsWhereItWasAndIsAndNothingElseDoes)
{
    /** Takes down what becomes invalid. */
    struct Repaints : juce::CachedComponentImage
    {
        explicit Repaints (juce::RectangleList<int>& areasToFill) : areas (areasToFill) {}

        void paint (juce::Graphics&) override {}
        bool invalidateAll() override { return invalidate ({ 10000, 10000 }); }
        bool invalidate (const juce::Rectangle<int>& area) override { return areas.add (area), false; }
        void releaseResources() override {}

        juce::RectangleList<int>& areas;
    };

    juce::RectangleList<int> repaints;
    OpenRoll editor;
    editor.page.setVisible (true);
    editor.poll();
    editor.page.setCachedComponentImage (new Repaints (repaints));
    repaints.clear();

    for (auto look = 0; look < 50; ++look)
        editor.poll();

    EXPECT_TRUE (repaints.isEmpty()) << repaints.getBounds().toString() << " while the clock stands still";

    const auto placeOf = [&] (juce::Component& part, juce::Rectangle<int> area) {
        return editor.page.getLocalArea (&part, area);
    };

    editor.play (0, 1.0);
    auto& tile = editor.find ("Slot1");
    const auto before = placeOf (editor.line, editor.line.getDrawn());
    repaints.clear();
    editor.play (0, 1.03);

    juce::RectangleList<int> lines (before);
    lines.add (placeOf (editor.line, editor.line.getDrawn()));
    auto missed = lines, others = repaints;
    missed.subtract (repaints);
    others.subtract (lines);
    others.subtract (placeOf (tile, tile.getLocalBounds().removeFromBottom (4))); // its progress
    EXPECT_TRUE (missed.isEmpty()) << missed.getBounds().toString();
    EXPECT_TRUE (others.isEmpty()) << others.getBounds().toString();
}

TEST (RollView, ScrollsAndZoomsAndStaysSoThroughEdits)
{
    OpenRoll editor;
    auto& area = editor.find<PatternArea> ("ArpEditing");
    const auto seen = [&area] { return area.getView().get(); };
    const auto first = seen();

    Tests::Hand::turnWheel (editor.roll, 0.2f);
    EXPECT_GT (seen().topRow, first.topRow);
    EXPECT_EQ (seen().topRow, std::floor (seen().topRow)) << "by whole rows";

    const juce::ModifierKeys ctrl { juce::ModifierKeys::ctrlModifier },
        shift { juce::ModifierKeys::shiftModifier };
    Tests::Hand::turnWheel (editor.roll, 1.0f, ctrl);
    EXPECT_LT (seen().time.getLength(), 0.5);
    EXPECT_NEAR (seen().timeAt (0.5 * editor.roll.getWidth()), 0.5, 1.0e-6);

    const auto start = seen().time.getStart();
    Tests::Hand::turnWheel (editor.roll, -0.5f, shift);
    EXPECT_GT (seen().time.getStart(), start);

    Tests::Hand::turnWheel (editor.find ("PitchMap"), 0.3f);
    EXPECT_GT (seen().rowHeight, first.rowHeight);

    const auto zoomed = seen();
    const auto openAnotherAndBack = [&] {
        editor.page.getContext().shownSlot.set (3);
        editor.page.getContext().shownSlot.set (0);
    };
    editor.draw ({ { 0.25, static_cast<int> (zoomed.centreRow()) } });
    openAnotherAndBack();
    EXPECT_EQ (seen(), zoomed);

    editor.draw ({ { 0.25, 20 } });
    EXPECT_EQ (seen(), zoomed);
    openAnotherAndBack();
    EXPECT_TRUE (seen().shows ({ 20, 21 })) << "it is not taken for an empty one";

    editor.draw ({ { 0.25, 20 }, { 0.5, 110 } });
    Tests::Hand::click (editor.find ("ZoomFit"));
    EXPECT_EQ (seen().time, first.time);
    EXPECT_LT (seen().rowHeight, zoomed.rowHeight);
}

TEST (RollView, FoldsAndUnfoldsAroundTheSameRows)
{
    OpenRoll editor;
    auto& area = editor.find<PatternArea> ("ArpEditing");
    const auto before = area.getView().get();

    editor.page.getContext().canvas.setFold (AssetScheme::Fold::folded);
    EXPECT_GT (area.getView().get().topRow, before.topRow);
    editor.page.getContext().canvas.setFold (AssetScheme::Fold::open);
    EXPECT_EQ (area.getView().get(), before);
}
} // namespace Zn::GUI
