#include "GUI/Pattern/WholePattern.h"

#include "GUI/Pattern/NoteEdits.h"
#include "GUI/Pattern/NoteValue.h"
#include "Sequencer/Modifiers/Limits.h"

#include <algorithm>

namespace Zn::GUI::WholePattern
{
namespace
{
constexpr auto mostColumns = 128, mostBeats = 32, shortestBeat = 256;
constexpr auto tolerance = 1.0e-6; // columns

NoteGrid gridOf (const Drawing& drawing)
{
    return { .columns = drawing.grid };
}

/** In numbers that the controls offer, if there are some; else by more bars. */
void doubleTime (Sequencer::Bars& time)
{
    auto& bars = time.list;

    if (bars.size() == 1 && bars[0].num * 2 <= mostBeats)
        bars[0].num *= 2;
    else if (bars.size() == 1 && bars[0].denum % 4 == 0)
        bars[0].denum /= 2;
    else if (bars.size() * 2 <= static_cast<std::size_t> (Sequencer::maxBars))
    {
        const auto once = bars;
        bars.insert (bars.end(), once.begin(), once.end());
    }
}

void halveTime (Sequencer::Bars& time)
{
    auto& bars = time.list;
    const auto middle = bars.begin() + static_cast<std::ptrdiff_t> (bars.size() / 2);

    if (bars.size() % 2 == 0 && std::equal (bars.begin(), middle, middle))
    {
        bars.erase (middle, bars.end());
        return;
    }

    for (auto& bar : bars)
        if (bar.num % 2 == 0)
            bar.num /= 2;
        else if (bar.denum * 2 <= shortestBeat)
            bar.denum *= 2;
}

double lengthOf (const Drawing& drawing)
{
    return drawing.time.length() * (drawing.multiply ? drawing.grid : 1);
}

double mirrored (const Ranges::Span& span, const NoteGrid& grid)
{
    const auto firstColumn = std::floor (span.start * grid.columns + tolerance);
    const auto endColumn = std::ceil (span.end() * grid.columns - tolerance);
    const auto inColumn = span.start - firstColumn / grid.columns;
    return (grid.columns - endColumn) / grid.columns + inColumn;
}
} // namespace

void repeatTwice (Drawing& drawing)
{
    if (drawing.numNotes() * 2 > Sequencer::Modifiers::maxNotes)
        return;

    auto longer = drawing;

    if (drawing.grid * 2 <= mostColumns)
        longer.grid *= 2;

    if (! drawing.multiply || longer.grid == drawing.grid)
        doubleTime (longer.time);

    if (lengthOf (longer) <= lengthOf (drawing)) // there is no way to tell that it lasts longer
        return;

    for (auto& note : longer.notes)
        note.time = { 0.5 * note.time.start, 0.5 * note.time.length };

    auto second = longer.notes;

    for (auto& note : second)
        note.time.start += 0.5;

    longer.notes.insert (longer.notes.end(), second.begin(), second.end());
    drawing = std::move (longer);
}

void halve (Drawing& drawing)
{
    auto shorter = drawing;

    if (drawing.grid % 2 == 0)
        shorter.grid /= 2;

    if (! drawing.multiply || shorter.grid == drawing.grid)
        halveTime (shorter.time);

    if (lengthOf (shorter) >= lengthOf (drawing))
        return;

    NoteSelection beyond;

    for (auto i = 0; i < shorter.numNotes(); ++i)
    {
        auto& time = shorter.note (i).time;
        time = { 2.0 * time.start, 2.0 * time.length };

        if (time.start > gridOf (shorter).lastStart())
            beyond.set (i, true);
        else
            time = gridOf (shorter).limited (time);
    }

    NoteEdits::erase (shorter, beyond);
    drawing = std::move (shorter);
}

void shift (Drawing& drawing, int columns)
{
    const auto grid = gridOf (drawing);

    for (auto& note : drawing.notes)
    {
        auto start = note.time.start + columns * grid.column();
        start = grid.tidied (start - std::floor (start + tolerance * grid.column()));
        note.time = grid.limited ({ start, note.time.length });
    }
}

void reverse (Drawing& drawing)
{
    const auto grid = gridOf (drawing);

    for (auto& note : drawing.notes)
        note.time = grid.limited ({ grid.tidied (mirrored (note.time, grid)), note.time.length });
}

void invertRows (Drawing& drawing)
{
    if (drawing.notes.empty())
        return;

    const auto isLower = [] (const auto& a, const auto& b) { return a.event.noteNum < b.event.noteNum; };
    const auto [low, high] = std::minmax_element (drawing.notes.begin(), drawing.notes.end(), isLower);
    const auto sum = low->event.noteNum + high->event.noteNum;

    for (auto& note : drawing.notes)
        note.event.noteNum = sum - note.event.noteNum;
}

void scaleVelocities (Drawing& drawing, double factor)
{
    for (auto& note : drawing.notes)
        setValue (note.event, NoteValue::velocity, note.event.velocity * static_cast<float> (factor));
}

void clear (Drawing& drawing)
{
    drawing.notes.clear();
    drawing.selection = {};
}
} // namespace Zn::GUI::WholePattern
