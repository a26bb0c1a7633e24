#include "GUI/Pattern/RollMenus.h"

#include "GUI/Pattern/NoteClip.h"
#include "GUI/Pattern/NoteEdits.h"
#include "GUI/Pattern/SlotEdits.h"
#include "GUI/Pattern/WholePattern.h"
#include "GUI/Widgets/TypedValue.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
const auto plusMinus = juce::String::fromUTF8 ("±");
}

/** Lines with what they do, for as long as the menus live. */
class RollMenus::Menu
{
public:
    explicit Menu (RollMenus& ownerToUse) : owner (ownerToUse) {}

    void add (const juce::String& text, CallbackFunc action, bool isEnabled = true)
    {
        addTo (popup, text, std::move (action), isEnabled);
    }

    void addEdit (const juce::String& text, PatternEditor::Change change)
    {
        addEditTo (popup, text, text, std::move (change));
    }

    /** One line for each value, each of them an edit. */
    template <typename Values, typename TextOf, typename Apply>
    void addValues (const juce::String& name, const Values& values, TextOf&& textOf, Apply&& apply)
    {
        juce::PopupMenu lines;

        for (const auto each : values)
            addEditTo (lines, textOf (each), name, [apply, each] (Drawing& drawing) {
                apply (drawing, each);
            });

        popup.addSubMenu (name, lines);
    }

    /** The lines that the function adds become a menu in the menu. */
    template <typename AddLines>
    void addGroup (const juce::String& name, AddLines&& addLines)
    {
        auto outer = std::exchange (popup, {});
        addLines();
        outer.addSubMenu (name, popup);
        popup = std::move (outer);
    }

    void addSeparator() { popup.addSeparator(); }

    void show (juce::Component* beside)
    {
        auto choose = [weak = std::weak_ptr (owner.token), lines = actions] (int id) {
            if (! weak.expired() && id > 0 && id <= static_cast<int> (lines.size()))
                lines[static_cast<std::size_t> (id) - 1]();
        };

        owner.context.overlay.showMenu (popup, beside, std::move (choose));
    }

private:
    void addTo (juce::PopupMenu& menu, const juce::String& text, CallbackFunc action, bool isEnabled = true)
    {
        actions.push_back (std::move (action));
        menu.addItem (static_cast<int> (actions.size()), text, isEnabled);
    }

    void addEditTo (juce::PopupMenu& menu,
                    const juce::String& text,
                    const juce::String& name,
                    PatternEditor::Change change)
    {
        addTo (menu, text, [&editor = owner.editor, name, edit = std::move (change)] {
            editor.perform (name, edit);
        });
    }

    RollMenus& owner;
    juce::PopupMenu popup;
    std::vector<CallbackFunc> actions; // ids count from 1
};

void RollMenus::showForRoll (const RollPointer& pointer)
{
    Menu menu (*this);

    if (editor.getDrawing().hasNote (pointer.note))
    {
        editor.select (NoteQueries::selectionOr (editor.getDrawing(), pointer.note));
        addNoteLines (menu);
    }
    else
        addEmptyLines (menu, pointer.at);

    menu.show (nullptr);
}

void RollMenus::addNoteLines (Menu& menu)
{
    const auto percent = [] (int value) { return juce::String (value) + " %"; };
    const auto changeAll = [] (Drawing& drawing, const NoteEdits::EventChange& change) {
        NoteEdits::changeEvents (drawing, NoteSelection (drawing.selection), change);
    };

    const auto setTo = [changeAll] (NoteValue value) {
        return [changeAll, value] (Drawing& drawing, int newPercent) {
            changeAll (drawing, [&] (auto& event) { setValue (event, value, 0.01f * float (newPercent)); });
        };
    };

    const auto& selected = editor.getDrawing().selection;
    const auto areOn = std::all_of (selected.begin(), selected.end(), [this] (int note) {
        return editor.getDrawing().note (note).enabled;
    });

    menu.addEdit (areOn ? "Disable" : "Enable", [] (Drawing& drawing) {
        NoteEdits::toggleEnabled (drawing, NoteSelection (drawing.selection));
    });

    menu.addValues ("Velocity", std::array { 100, 80, 60, 40, 20 }, percent, setTo (NoteValue::velocity));
    menu.addValues ("Chance", std::array { 100, 75, 50, 25 }, percent, setTo (NoteValue::chance));
    menu.addValues (
        "Spread",
        std::array { 0, 5, 10, 20 },
        [&] (int value) { return (value == 0 ? juce::String() : plusMinus) + percent (value); },
        [changeAll] (Drawing& drawing, int value) {
            changeAll (drawing, [&] (auto& event) { setSpread (event, 0.01f * float (value)); });
        });
    menu.addValues (
        "Length",
        std::array { 1.0, 0.5, 0.25 },
        [] (double part) {
            return part == 1.0 ? juce::String ("Full step")
                               : juce::String::fromUTF8 (part == 0.5 ? "½ step" : "¼ step");
        },
        [grid = editor.getGrid()] (Drawing& drawing, double part) {
            NoteEdits::setLengthOfSelected (drawing, grid, part);
        });

    menu.addSeparator();
    menu.addEdit ("Duplicate", [grid = editor.getGrid()] (Drawing& drawing) {
        NoteEdits::duplicateBehind (drawing, grid);
    });
    menu.add ("Copy", [this] { NoteClip::copySelected (editor.getDrawing()); });
    menu.add ("Cut", [this] {
        NoteClip::copySelected (editor.getDrawing());
        editor.perform ("Cut notes", NoteEdits::eraseSelected);
    });
    menu.addEdit ("Delete", NoteEdits::eraseSelected);
}

void RollMenus::addEmptyLines (Menu& menu, RollPoint at)
{
    const auto hasNotes = ! editor.getDrawing().notes.empty();

    menu.add (
        "Paste here",
        [this, at] {
            editor.perform ("Paste notes", [&] (Drawing& drawing) {
                NoteClip::paste (drawing, editor.getGrid(), at.time, at.nearestRow());
            });
        },
        NoteClip::canPaste());
    menu.add (
        "Select all",
        [this] { editor.select (NoteSelection::all (editor.getDrawing().numNotes())); },
        hasNotes);
    menu.add (
        "Clear all",
        [this] { SlotEdits (context).eraseNotes (context.shownSlot.get()); },
        hasNotes);

    menu.add (
        juce::String::fromUTF8 ("Save as MIDI…"),
        [this] { slotExport.saveAs (context.shownSlot.get()); },
        hasNotes);
}

void RollMenus::showForRuler (juce::Component& ruler)
{
    Menu menu (*this);
    addPatternLines (menu, ruler);
    menu.show (nullptr);
}

void RollMenus::showForRow (int row)
{
    Menu menu (*this);
    addRowLines (menu, row);
    menu.show (nullptr);
}

void RollMenus::showForKeys (juce::Component& roll, juce::Component& ruler)
{
    const auto& drawing = editor.getDrawing();
    const auto hasSelection = ! drawing.selection.isEmpty();
    const auto cell = editor.cellCursor.get().value_or (RollCell {});
    const auto row = hasSelection ? drawing.note (drawing.selection.first()).event.noteNum : cell.row;
    Menu menu (*this);

    if (hasSelection)
        addNoteLines (menu);
    else
        addEmptyLines (menu, { cell.column * editor.getGrid().column(), row + 0.5 });

    menu.addSeparator();
    menu.addGroup ("Row", [&] { addRowLines (menu, row); });
    menu.addGroup ("Pattern", [&] { addPatternLines (menu, ruler); });
    menu.show (&roll);
}

void RollMenus::addPatternLines (Menu& menu, juce::Component& ruler)
{
    menu.addEdit (juce::String::fromUTF8 ("Repeat ×2"), WholePattern::repeatTwice);
    menu.addEdit ("Halve", WholePattern::halve);
    menu.addSeparator();
    menu.addEdit ("Shift left one column", [] (Drawing& drawing) { WholePattern::shift (drawing, -1); });
    menu.addEdit ("Shift right one column", [] (Drawing& drawing) { WholePattern::shift (drawing, 1); });
    menu.addEdit ("Reverse", WholePattern::reverse);
    menu.addEdit ("Invert rows", WholePattern::invertRows);
    menu.addSeparator();
    menu.add (juce::String::fromUTF8 ("Scale velocities…"),
              [this, safe = juce::Component::SafePointer (&ruler)] {
                  if (safe != nullptr)
                      askForVelocityScale (*safe);
              });
}

void RollMenus::askForVelocityScale (juce::Component& ruler)
{
    constexpr auto mostPercent = 1000.0;

    const auto accept = [this, weak = std::weak_ptr (token)] (const juce::String& text) {
        const auto number = readNumber (text, ValueStyle::wholePercent);
        const auto percent = number ? number->getDoubleValue() : -1.0;

        if (weak.expired() || percent < 0.0 || percent > mostPercent)
            return false;

        editor.perform ("Scale velocities",
                        [=] (Drawing& drawing) { WholePattern::scaleVelocities (drawing, 0.01 * percent); });

        return true;
    };

    context.overlay.enterValue (ruler, "100 %", accept);
}

void RollMenus::addRowLines (Menu& menu, int row)
{
    const auto notes = NoteQueries::notesInRow (editor.getDrawing(), row);
    const auto moveBy = [this, row] (int rows) {
        editor.perform (rows > 0 ? "Row up" : "Row down", [&] (Drawing& drawing) {
            const auto selection = std::exchange (drawing.selection, NoteQueries::notesInRow (drawing, row));
            NoteEdits::moveSelected (drawing, editor.getGrid(), -1, 0.0, rows);
            drawing.selection = selection;
        });
    };

    menu.add (
        "Select row",
        [this, row] { editor.select (NoteQueries::notesInRow (editor.getDrawing(), row)); },
        ! notes.isEmpty());
    menu.add (
        "Erase row",
        [this, row] {
            editor.perform ("Erase row", [&] (Drawing& drawing) {
                NoteEdits::erase (drawing, NoteQueries::notesInRow (drawing, row));
            });
        },
        ! notes.isEmpty());
    menu.addSeparator();
    menu.add (
        "Row up",
        [moveBy] { moveBy (1); },
        ! notes.isEmpty());
    menu.add (
        "Row down",
        [moveBy] { moveBy (-1); },
        ! notes.isEmpty());
}
} // namespace Zn::GUI
