#include "GUI/Pattern/NoteClip.h"

#include "GUI/Pattern/Clipboard.h"
#include "GUI/Pattern/NoteEdits.h"
#include "Sequencer/Modifiers/Limits.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
constexpr Clipboard::Kind kind { .name = "Notes", .content = "Steps" };

bool isFirst (const Sequencer::TimedNote& a, const Sequencer::TimedNote& b)
{
    return std::pair (a.time.start, a.event.noteNum) < std::pair (b.time.start, b.event.noteNum);
}

/** From columns to parts of the pattern; text from elsewhere may hold any number. */
std::vector<Sequencer::TimedNote> scaled (std::vector<Sequencer::TimedNote> notes, const NoteGrid& grid)
{
    for (auto& note : notes)
    {
        note.time = { note.time.start / grid.columns, note.time.length / grid.columns };
        note.event.noteNum = std::clamp (note.event.noteNum, 0, NoteEdits::numRows - 1);
        note.event.velocity = std::clamp (note.event.velocity, 0.0f, 1.0f);
    }

    std::erase_if (notes, [] (const auto& note) { return note.time.start < 0.0 || note.time.start >= 1.0; });
    return notes;
}

void moveInside (std::vector<Sequencer::TimedNote>& notes, const NoteGrid& grid, double byTime, int byRows)
{
    auto start = 1.0, end = 0.0;
    auto low = NoteEdits::numRows, high = 0;

    for (const auto& note : notes)
    {
        start = std::min (start, note.time.start);
        end = std::max (end, note.time.end());
        low = std::min (low, note.event.noteNum);
        high = std::max (high, note.event.noteNum);
    }

    const auto room = (1.0 - end) * grid.columns + 1.0e-6;
    const auto last = std::max (grid.snaps ? std::floor (room) / grid.columns : 1.0 - end, 0.0);
    const auto delta = std::min (std::max (byTime, -start), last);
    const auto rows = std::clamp (byRows, -low, NoteEdits::numRows - 1 - high);

    for (auto& note : notes)
    {
        note.time.start = grid.tidied (note.time.start + delta);
        note.event.noteNum += rows;
    }
}
} // namespace

void NoteClip::copySelected (const Drawing& drawing)
{
    NoteClip clip;

    for (const auto note : drawing.selection)
        clip.notes.push_back (drawing.note (note));

    if (clip.notes.empty())
        return;

    const NoteGrid grid { .columns = drawing.grid };
    const auto first = std::min_element (clip.notes.begin(), clip.notes.end(), isFirst);
    const auto start = grid.columnStart (first->time.start);

    for (auto& note : clip.notes)
        note.time = { (note.time.start - start) * grid.columns, note.time.length * grid.columns };

    Clipboard::copy (kind, clip);
}

bool NoteClip::canPaste()
{
    return ! Clipboard::getDocument (kind).is_null();
}

void NoteClip::paste (Drawing& drawing, const NoteGrid& grid, double atTime, int row)
{
    NoteClip clip;

    if (! Clipboard::paste (kind, clip))
        return;

    auto notes = scaled (std::move (clip.notes), grid);

    if (notes.empty())
        return;

    const auto& first = *std::min_element (notes.begin(), notes.end(), isFirst);
    const auto byTime = grid.snaps ? grid.columnStart (atTime) : atTime - first.time.start;
    moveInside (notes, grid, byTime, row < 0 ? 0 : row - first.event.noteNum);
    drawing.selection = {};

    for (auto& note : notes)
    {
        if (note.time.start > grid.lastStart())
            continue;

        note.time = grid.limited (note.time);
        drawing.selection.set (NoteEdits::add (drawing, note), true);
    }
}

void NoteClip::reflect (Reflector& r)
{
    r.addChild ("Steps", ChildContainerSerializer (notes, false, Sequencer::Modifiers::maxNotes));
}
} // namespace Zn::GUI
