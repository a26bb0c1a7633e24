#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** The keyboard's focus for the length of a drag of something that is no stop of Tab, so that Esc comes to it. Then the
    focus goes back. Thread: message.
*/
class BorrowedFocus
{
public:
    explicit BorrowedFocus (juce::Component& componentToHaveIt);
    ~BorrowedFocus();

private:
    juce::Component& borrower;
    const juce::Component::SafePointer<juce::Component> before;

    JUCE_DECLARE_NON_COPYABLE (BorrowedFocus)
};
} // namespace Zn::GUI
