#pragma once

#include "Foundation/CallbackFunc.h"
#include "Parameters/MenuItems.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>
#include <memory>

namespace Zn::GUI
{
/** What comes up above the editor: pop-ups, menus, read-outs, messages, text entry. One of each at a time; all of
    them close with the editor. Thread: message.
*/
class Overlay
{
public:
    virtual ~Overlay() = default;

    /** Shows a pop-up, usually an Element that knows its place, above all bands, in place of the one that is open. It
        gets the focus and keeps it until a click outside, Esc or closePopup(); then the focus goes back to whoever had
        it.
    */
    virtual void openPopup (std::unique_ptr<juce::Component> popup) = 0;
    virtual void closePopup() = 0;
    virtual juce::Component* getPopup() const noexcept = 0;

    /** Shows a menu beside a component, or at the pointer without one. Lines may be empty: a separator. Whatever the
        lines hold on to must outlive the editor, or be held weakly.
    */
    virtual void showMenu (const Parameters::MenuItems::Item& menu, juce::Component* beside) = 0;
    virtual void showMenu (const juce::PopupMenu& menu,
                           juce::Component* beside,
                           std::function<void (int)> chosen = {}) = 0;

    /** Until the line that was chosen has acted. */
    virtual bool isMenuOpen() const noexcept = 0;

    /** A name and a value that follow the pointer while something without a place for its value is dragged. */
    virtual void
    showReadout (const juce::String& name, const juce::String& value, juce::Point<int> onScreen) = 0;
    virtual void hideReadout() = 0;

    /** A line at the foot of the editor, for five seconds; with an action it has a link that is clicked for it. */
    virtual void
    showMessage (const juce::String& text, const juce::String& actionText = {}, CallbackFunc action = {}) = 0;

    /** A line that offers to take back what has just been done, until something else is. */
    virtual void showUndo (const juce::String& done) = 0;

    /** Says to a screen reader what nothing that it follows tells. */
    virtual void announce (const juce::String& text) = 0;

    /** A field over a component in which a value is typed. `accept` says whether it has understood the text: then the
        field closes, else it shakes and stays. `next` is called after Tab.
    */
    virtual void enterValue (juce::Component& over,
                             const juce::String& text,
                             std::function<bool (const juce::String&)> accept,
                             CallbackFunc next = {}) = 0;
    virtual bool isEnteringValue() const noexcept = 0;
};
} // namespace Zn::GUI
