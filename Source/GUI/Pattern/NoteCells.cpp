#include "GUI/Pattern/NoteCells.h"

#include "GUI/Pattern/NoteText.h"

namespace Zn::GUI
{
namespace
{
/** Tables are counted from the top. */
int tableRowOf (int row)
{
    return RollGeometry::numRows - 1 - row;
}
} // namespace

/** Paints nothing, lets the pointer through, and tells of one note. */
class NoteCells::Cell : public juce::Component
{
public:
    Cell (RollContext& contextToUse, int noteToTell) : note (noteToTell), context (contextToUse)
    {
        setInterceptsMouseClicks (false, false);
    }

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        /** Makes the text when somebody asks: there may be thousands of notes. */
        struct Handler : juce::AccessibilityHandler
        {
            Handler (Cell& cellToTell, const juce::AccessibilityActions& itsActions)
                : AccessibilityHandler (cellToTell, juce::AccessibilityRole::cell, itsActions)
                , cell (cellToTell)
            {}

            juce::String getTitle() const override { return cell.describe(); }

            juce::AccessibleState getCurrentState() const override
            {
                const auto state = AccessibilityHandler::getCurrentState().withSelectable();
                return cell.isSelected() ? state.withSelected() : state;
            }

            const Cell& cell;
        };

        const auto select = [this] { context.pattern.select ({ note }); };
        return std::make_unique<Handler> (*this,
                                          juce::AccessibilityActions()
                                              .addAction (juce::AccessibilityActionType::focus, select)
                                              .addAction (juce::AccessibilityActionType::press, select));
    }

    const int note;
    int column = 0, numColumns = 1, row = 0; // of the table

private:
    bool isSelected() const { return context.pattern.getDrawing().selection.contains (note); }

    juce::String describe() const
    {
        const auto& drawing = context.pattern.getDrawing();
        return drawing.hasNote (note)
                   ? noteText (drawing.note (note), context.rowNames.get(), RollBeats::of (drawing))
                   : juce::String();
    }

    RollContext& context;
};

class NoteCells::Table : public juce::AccessibilityTableInterface
{
public:
    explicit Table (const NoteCells& cellsToTell) : owner (cellsToTell) {}

    int getNumRows() const override { return RollGeometry::numRows; }
    int getNumColumns() const override { return owner.context.view.get().grid; }
    const juce::AccessibilityHandler* getRowHandler (int) const override { return nullptr; }
    const juce::AccessibilityHandler* getHeaderHandler() const override { return nullptr; }

    const juce::AccessibilityHandler* getCellHandler (int row, int column) const override
    {
        return owner.cellAt (row, column);
    }

    juce::Optional<Span> getRowSpan (const juce::AccessibilityHandler& handler) const override
    {
        if (const auto* cell = cellOf (handler))
            return Span { cell->row, 1 };

        return juce::nullopt;
    }

    juce::Optional<Span> getColumnSpan (const juce::AccessibilityHandler& handler) const override
    {
        if (const auto* cell = cellOf (handler))
            return Span { cell->column, cell->numColumns };

        return juce::nullopt;
    }

    void showCell (const juce::AccessibilityHandler& handler) const override
    {
        if (const auto* cell = cellOf (handler))
            if (const auto& drawing = owner.context.pattern.getDrawing(); drawing.hasNote (cell->note))
            {
                const auto& note = drawing.note (cell->note);
                owner.context.view.showCell (note.time.start, note.time.end(), note.event.noteNum);
            }
    }

private:
    static const Cell* cellOf (const juce::AccessibilityHandler& handler)
    {
        return dynamic_cast<const Cell*> (&handler.getComponent());
    }

    const NoteCells& owner;
};

NoteCells::NoteCells (RollContext& contextToUse, juce::Component& rollToServe)
    : context (contextToUse)
    , roll (rollToServe)
    , pollListener (contextToUse.editor.polls, [this] { update(); })
    , drawingListener (contextToUse.pattern.drawingChanged, [this] { isStale = true; })
    , viewListener (contextToUse.view, [this] { isStale = true; })
{}

NoteCells::~NoteCells() = default;

std::unique_ptr<juce::AccessibilityHandler> NoteCells::createTable()
{
    isWanted = isStale = true;
    return std::make_unique<juce::AccessibilityHandler> (
        roll,
        juce::AccessibilityRole::table,
        juce::AccessibilityActions(),
        juce::AccessibilityHandler::Interfaces { nullptr,
                                                 nullptr,
                                                 std::make_unique<Table> (*this),
                                                 nullptr });
}

void NoteCells::update()
{
    if (! isWanted || ! isStale)
        return;

    isStale = false;
    const auto& drawing = context.pattern.getDrawing();
    const auto& geometry = context.view.get();

    cells.resize (std::min (cells.size(), drawing.notes.size()));

    while (cells.size() < drawing.notes.size())
    {
        cells.push_back (std::make_unique<Cell> (context, static_cast<int> (cells.size())));
        roll.addChildComponent (*cells.back());
    }

    for (const auto& cell : cells)
    {
        const auto& note = drawing.note (cell->note);
        cell->row = tableRowOf (note.event.noteNum);
        cell->column = geometry.columnAt (note.time.start);
        cell->numColumns = std::max (1, juce::roundToInt (note.time.length * drawing.grid));

        const auto bounds = geometry.boundsOf (note).getSmallestIntegerContainer();
        cell->setVisible (roll.getLocalBounds().intersects (bounds));

        if (cell->isVisible())
            cell->setBounds (bounds);
    }
}

const juce::AccessibilityHandler* NoteCells::cellAt (int row, int column) const
{
    for (const auto& cell : cells)
        if (cell->row == row && cell->column <= column && column < cell->column + cell->numColumns)
            return cell->getAccessibilityHandler();

    return nullptr;
}
} // namespace Zn::GUI
