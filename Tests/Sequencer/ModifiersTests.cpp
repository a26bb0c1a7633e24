#include "Sequencer/Modifiers/Empty.h"
#include "Sequencer/Modifiers/ModRef.h"
#include "Sequencer/Modifiers/NoteList.h"
#include "Sequencer/Modifiers/Pattern.h"
#include "Sequencer/Modifiers/RenderedLists.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

namespace Zn::Sequencer::Modifiers
{
namespace
{
using namespace Tests;

/** Four quarter notes on rows 60 to 63, the last one overrunning the bar. */
NoteList quarterNotes()
{
    NoteList list;
    list.notes = { note (60, 0, 1), note (61, 1, 1), note (62, 2, 1), note (63, 3, 2) };
    return list;
}

TEST (ClipToSpan, KeepsOrDropsByTheStartAloneAndCutsAtTheEnd)
{
    const std::pair<Ranges::Span, std::string> rows[] {
        { { 1, 2 }, "61 @1+1, 62 @2+1, 64 @2.5+0.5" },
        { { 0.5, 1.75 }, "61 @1+1, 62 @2+0.25" },
        { { 2.5, 9 }, "64 @2.5+4" },
        { { 1, 0 }, "60 @0+1.5, 61 @1+1, 62 @2+1, 64 @2.5+4" },
        { { 1, -5 }, "60 @0+1.5, 61 @1+1, 62 @2+1, 64 @2.5+4" },
        { { 7, 1 }, "" },
    };

    for (const auto& [span, kept] : rows)
    {
        std::vector list { note (60, 0, 1.5), note (61, 1, 1), note (62, 2, 1), note (64, 2.5, 4) };
        clipToSpan (list, span);
        EXPECT_EQ (asText (list), kept) << span.start << "+" << span.length;
    }
}

TEST (ClipToSpan, NeverLeavesANegativeLength)
{
    std::vector list { note (60, 1, -3) };
    clipToSpan (list, { 0, 4 });
    EXPECT_EQ (asText (list), "60 @1+0");
}

/** A part that fills all three lists. */
struct ThreeLists : Cloneable<Base, ThreeLists>
{
    void render (RenderedEvents& target) const override
    {
        target.length = 4.0;

        for (auto start : { 0.0, 1.0, 2.0 })
        {
            target.notes.push_back (note (60, start, 1.5));
            target.sequences.push_back ({ { start, 1.5 }, emitter.getPosition(), true });
            target.marks.push_back ({ { start, 1.5 }, emitter.getPosition(), true });
        }
    }

    void reflectFields (Reflector&) override {}

    Emitter emitter;
};

TEST (Clip, PlaysAWindowOfAllThreeListsFromItsStartOn)
{
    Clip clip;
    clip.setChild (std::make_unique<ThreeLists>());
    clip.time = { 1.0, 1.25 };

    EXPECT_EQ (asText (rendered (clip)),
               "0+1.25 notes: 60 @0+1.25, 60 @1+0.25 sequences: @0+1.25, @1+0.25 marks: @0+1.25, @1+0.25");
}

TEST (NoteList, CutsItsNotesAtTheEndOfItsBars)
{
    EXPECT_EQ (asText (rendered (quarterNotes())),
               "0+4 notes: 60 @0+1, 61 @1+1, 62 @2+1, 63 @3+1 sequences: @0+4 marks: ");
}

TimedClip placed (const Base& child, Ranges::Span window, Ranges::Span time)
{
    TimedClip result;
    result.clip.setChild (child.clone());
    result.clip.time = window;
    result.time = time;
    return result;
}

TEST (Pattern, MadeOfAdjoiningWindowsPlaysTheWhole)
{
    const auto whole = quarterNotes();
    const auto expected = asText (rendered (whole).notes);

    for (auto width : { 0.25, 1.0, 2.0, 4.0 })
    {
        Pattern pattern;

        // Last window first: the order of the clips must not matter.
        for (auto start = 4.0 - width; start >= 0.0; start -= width)
            pattern.clips.push_back (placed (whole, { start, width }, { start, width }));

        auto notes = rendered (pattern).notes;

        if (width < 1.0) // cut at each window's end, none lost
            for (auto& element : notes)
                element.time.length = 1.0;

        EXPECT_EQ (asText (notes), expected) << width;
    }
}

TEST (Pattern, PlacesSortsAndCutsItsClips)
{
    Pattern pattern;
    pattern.clips = { placed (quarterNotes(), { 0, 0 }, { 3, 0 }),
                      placed (quarterNotes(), { 1, 2 }, { 0, 1.5 }) };

    EXPECT_EQ (asText (rendered (pattern)),
               "0+4 notes: 61 @0+1, 62 @1+0.5, 60 @3+1 sequences: @0+4, @3+1 marks: ");
}

TEST (Clones, RenderLikeTheirOriginalsAndLiveByThemselves)
{
    Pattern inner;
    inner.clips = { placed (quarterNotes(), { 1, 2 }, { 0.5, 3 }) };

    auto original = std::make_unique<Pattern>();
    original->name = "Outer";
    original->clips = { placed (inner, { 0, 0 }, { 0, 4 }), placed (quarterNotes(), { 0, 1 }, { 3, 1 }) };

    const auto copy = original->clone();
    const auto events = rendered (*original);
    ASSERT_EQ (asText (rendered (*copy)), asText (events));
    EXPECT_EQ (copy->name, "Outer");

    // Marks tell which emitter they came from, and a copy is another one.
    EXPECT_NE (rendered (*copy).sequences.back().emitter, events.sequences.back().emitter);

    const auto expected = asText (events);
    original.reset();
    EXPECT_EQ (asText (rendered (*copy)), expected);
}

TEST (ModRef, StandsForTheSameModifierWhenCloned)
{
    auto target = quarterNotes();
    const auto copy = ModRef (target).clone();
    target.notes.clear();

    EXPECT_EQ (asText (rendered (*copy)), "0+4 notes:  sequences: @0+4 marks: ");
    EXPECT_EQ (rendered (*copy).sequences.front().emitter, rendered (target).sequences.front().emitter);
}
} // namespace
} // namespace Zn::Sequencer::Modifiers
