#pragma once

#include "GUI/Pattern/CellCursor.h"
#include "GUI/Pattern/RollTools.h"
#include "GUI/Pattern/RowNames.h"

namespace Zn::GUI
{
/** The keys of the roll: tools, the selection, and a cell cursor that moves while nothing is selected.

    Slots, undo and whatever else it does not know are the page's. Thread: message.
*/
class RollKeys
{
public:
    /** What keys need of what is seen. None may be empty. */
    struct View
    {
        std::function<int()> rowsPerCycle; // keys that are held, 1 at least
        std::function<double()> pasteTime; // where the pointer or the play head is, part of the pattern
        std::function<void (double)> zoom; // a factor above 1 shows less
        CallbackFunc fit;                  // shows the whole pattern
        std::function<void (double, double, int)> reveal; // start, end and row of what must be seen
        std::function<const RowNames&()> names;           // for those who hear what is reached
    };

    RollKeys (EditorContext& contextToUse, PatternEditor& editorToUse, RollTools& toolsToUse, View viewToUse);

    /** False for a key of somebody else. */
    bool press (const juce::KeyPress& key);

    /** Shows the cell cursor, unless the selection shows where the keys act. */
    void showCell();

    /** Esc: ends a drag, or else the selection; false when there is neither. */
    bool escape();

private:
    bool pressLetter (const juce::KeyPress& key);
    bool pressCommand (const juce::KeyPress& key);
    bool pressZoom (const juce::KeyPress& key);
    bool pressArrow (const juce::KeyPress& key);
    bool pressOther (const juce::KeyPress& key);

    void moveSelection (int columns, int rows);
    void moveByBeats (int beats);
    void moveCell (int columns, int rows);
    void editCell();
    void lengthen (int columns);
    void selectNext (bool backwards);
    void take (Audio::Plugins::Vornel::Brush brush);
    void reveal (int note);
    void tellOfCell() const;

    EditorContext& context;
    PatternEditor& editor;
    RollTools& tools;
    const View view;
    CellCursor cell;
};
} // namespace Zn::GUI
