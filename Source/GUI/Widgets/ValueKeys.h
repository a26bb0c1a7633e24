#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** What a key asks of a control that has the focus. */
struct ValueKey
{
    enum class Wish
    {
        none, // it is not for the control: it goes on to the host
        stepUp,
        stepAlong, // left or right
        minimum,
        maximum,
        reset,
        type,      // Enter
        typeDigit, // the key begins the text
        menu,
        restore // Esc
    };

    static ValueKey of (const juce::KeyPress& key);

    Wish wish = Wish::none;
    int steps = 0; // signed
    bool fine = false;
};
} // namespace Zn::GUI
