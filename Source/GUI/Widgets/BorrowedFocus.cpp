#include "GUI/Widgets/BorrowedFocus.h"

namespace Zn::GUI
{
BorrowedFocus::BorrowedFocus (juce::Component& componentToHaveIt)
    : borrower (componentToHaveIt), before (juce::Component::getCurrentlyFocusedComponent())
{
    borrower.setWantsKeyboardFocus (true);

    if (borrower.isShowing())
        borrower.grabKeyboardFocus();
}

BorrowedFocus::~BorrowedFocus()
{
    if (borrower.hasKeyboardFocus (false) && before != nullptr && before->isShowing())
        before->grabKeyboardFocus();

    borrower.setWantsKeyboardFocus (false);
}
} // namespace Zn::GUI
