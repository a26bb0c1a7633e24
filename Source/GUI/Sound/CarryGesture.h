#pragma once

#include "GUI/Widgets/BorrowedFocus.h"
#include "GUI/Widgets/NoEntryPointer.h"

#include <optional>

namespace Zn::GUI
{
/** A press on a component that is no stop of Tab, which may go on as a drag onto another: Esc comes to it meanwhile, and
    the pointer tells whether a drop would do anything. Its owner hands on the component's events. Thread: message.
*/
class CarryGesture
{
public:
    enum class End
    {
        none, // it was another button, or Esc has ended it
        click,
        drop
    };

    explicit CarryGesture (juce::Component& componentToCarry);

    void press (const juce::MouseEvent& event);

    /** Whether it is carried by now. */
    bool move (const juce::MouseEvent& event);
    void showWhetherItDrops (bool drops);

    End release (const juce::MouseEvent& event);

    /** Whether the key has ended it: Esc, while it was carried. */
    bool giveUp (const juce::KeyPress& key);

private:
    void end();

    juce::Component& component;
    bool isPressed = false;             // and not ended by a key
    std::optional<BorrowedFocus> focus; // while it is carried
    NoEntryPointer noEntry;
};
} // namespace Zn::GUI
