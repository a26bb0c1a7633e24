#pragma once

#include "GUI/Pattern/RollContext.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** What a screen reader finds in the roll: a table of columns by rows, in which each note is a cell.

    The cells are components, as JUCE wants it, which are there only once somebody has asked for the table. Thread:
    message.
*/
class NoteCells
{
public:
    NoteCells (RollContext& contextToUse, juce::Component& rollToServe);
    ~NoteCells();

    /** The roll's own handler; from then on there are cells. */
    std::unique_ptr<juce::AccessibilityHandler> createTable();

private:
    class Cell;
    class Table;

    void update();
    const juce::AccessibilityHandler* cellAt (int row, int column) const;

    RollContext& context;
    juce::Component& roll;
    bool isWanted = false, isStale = true;
    std::vector<std::unique_ptr<Cell>> cells; // by notes
    Events::Listener pollListener, drawingListener, viewListener;
};
} // namespace Zn::GUI
