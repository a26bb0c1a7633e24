#pragma once

#include "GUI/Pattern/PatternEditor.h"
#include "GUI/Widgets/SlotExport.h"

namespace Zn::GUI
{
/** The menus that a click with the right button opens. They may stay open longer than the editor of notes lives; then
    their lines do nothing. Thread: message.
*/
class RollMenus
{
public:
    RollMenus (EditorContext& contextToUse, PatternEditor& editorToUse)
        : context (contextToUse), editor (editorToUse), slotExport (contextToUse)
    {}

    /** Of the note under the pointer, which becomes the selection if it is not part of it, or of an empty place. */
    void showForRoll (const RollPointer& pointer);

    void showForRuler (juce::Component& ruler);
    void showForRow (int row);

    /** All of them in one, for the selection or else the cell cursor. */
    void showForKeys (juce::Component& roll, juce::Component& ruler);

private:
    class Menu;

    void addNoteLines (Menu& menu);
    void addEmptyLines (Menu& menu, RollPoint at);
    void addPatternLines (Menu& menu, juce::Component& ruler);
    void addRowLines (Menu& menu, int row);
    void askForVelocityScale (juce::Component& ruler);

    EditorContext& context;
    PatternEditor& editor;
    SlotExport slotExport;
    const std::shared_ptr<int> token = std::make_shared<int>(); // gone with us
};
} // namespace Zn::GUI
