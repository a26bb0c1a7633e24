#include "GUI/Pattern/CellCursor.h"

#include "GUI/Pattern/NoteEdits.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto rounding = 1.0e-6; // of a column: by so little notes may reach over its lines
} // namespace

CellCursor::CellCursor (PatternEditor& editorToUse, Reveal revealToUse)
    : editor (editorToUse), reveal (std::move (revealToUse))
{}

void CellCursor::move (int columns, int rows)
{
    const auto grid = editor.getGrid();
    const auto& cursor = editor.cellCursor.get();
    auto cell = cursor.value_or (RollCell {});

    if (cursor) // the first key only shows it
    {
        cell.column = std::clamp (cell.column + columns, 0, grid.columns - 1);
        cell.row = std::clamp (cell.row + rows, 0, NoteEdits::numRows - 1);
    }

    editor.cellCursor.set (cell);
    reveal (cell.column * grid.column(), (cell.column + 1) * grid.column(), cell.row);
}

void CellCursor::edit()
{
    if (! editor.getDrawing().selection.isEmpty())
        return showAt (editor.getDrawing().selection.first());

    const auto cell = editor.cellCursor.get();

    if (! cell)
        return move (0, 0);

    const auto grid = editor.getGrid();
    const RollPoint place { (cell->column + 0.5) * grid.column(), cell->row + 0.5 };
    const auto notes = notesThere();

    if (notes.isEmpty())
        editor.perform ("Draw note", [&] (Drawing& drawing) {
            const NoteGrid wholeColumns { .columns = grid.columns };
            NoteEdits::add (drawing, NoteEdits::newNote (drawing, wholeColumns, place));
        });
    else
        editor.perform ("Erase notes", [&] (Drawing& drawing) { NoteEdits::erase (drawing, notes); });
}

NoteSelection CellCursor::notesThere() const
{
    const auto& cell = editor.cellCursor.get();

    if (! cell)
        return {};

    const auto column = editor.getGrid().column();
    const auto middle = cell->row + 0.5;
    return NoteQueries::notesIn (editor.getDrawing(),
                                 { .from = { (cell->column + rounding) * column, middle },
                                   .to = { (cell->column + 1.0 - rounding) * column, middle } });
}

/** In place of the selection, which hides the cursor. */
void CellCursor::showAt (int note)
{
    const auto& shown = editor.getDrawing().note (note);
    const auto grid = editor.getGrid();
    const auto column =
        std::clamp (static_cast<int> (shown.time.start / grid.column() + rounding), 0, grid.columns - 1);

    editor.cellCursor.set (RollCell { .column = column, .row = shown.event.noteNum });
    editor.select ({});
    move (0, 0);
}
} // namespace Zn::GUI
