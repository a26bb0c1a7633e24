#pragma once

#include "GUI/Pattern/PatternEditor.h"

#include <functional>

namespace Zn::GUI
{
/** The cell of the roll at which the keyboard draws and erases, while no note is selected. Thread: message. */
class CellCursor
{
public:
    using Reveal = std::function<void (double start, double end, int row)>; // parts of the pattern

    CellCursor (PatternEditor& editorToUse, Reveal revealToUse);

    /** The first time it only shows itself. */
    void move (int columns, int rows);

    /** Draws a note there, or erases those that are there. While notes are selected it takes the place of the selection,
        which hides it.
    */
    void edit();

    NoteSelection notesThere() const;

private:
    void showAt (int note);

    PatternEditor& editor;
    const Reveal reveal;
};
} // namespace Zn::GUI
