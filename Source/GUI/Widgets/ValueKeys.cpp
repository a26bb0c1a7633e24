#include "GUI/Widgets/ValueKeys.h"

namespace Zn::GUI
{
namespace
{
constexpr int pageSteps = 10;

/** Shift-F10 everywhere, and on keyboards that have it the menu key as X11 names it. */
bool isMenuKey (const juce::KeyPress& key)
{
    constexpr auto menuKey = 0x10000067;
    return key.getKeyCode() == menuKey
           || key == juce::KeyPress (juce::KeyPress::F10Key, juce::ModifierKeys::shiftModifier, 0);
}

bool isDigitOrMinus (juce::juce_wchar character)
{
    return juce::CharacterFunctions::isDigit (character) || character == '-';
}
} // namespace

ValueKey ValueKey::of (const juce::KeyPress& key)
{
    const auto modifiers = key.getModifiers();
    const auto fine = modifiers.isShiftDown();

    if (isMenuKey (key))
        return { .wish = Wish::menu };

    if (modifiers.isCommandDown() || modifiers.isCtrlDown() || modifiers.isAltDown())
        return {};

    const struct
    {
        int code;
        ValueKey meaning;
    } keys[] = { { juce::KeyPress::upKey, { Wish::stepUp, 1, fine } },
                 { juce::KeyPress::downKey, { Wish::stepUp, -1, fine } },
                 { juce::KeyPress::rightKey, { Wish::stepAlong, 1, fine } },
                 { juce::KeyPress::leftKey, { Wish::stepAlong, -1, fine } },
                 { juce::KeyPress::pageUpKey, { Wish::stepUp, pageSteps, fine } },
                 { juce::KeyPress::pageDownKey, { Wish::stepUp, -pageSteps, fine } },
                 { juce::KeyPress::homeKey, { Wish::minimum } },
                 { juce::KeyPress::endKey, { Wish::maximum } },
                 { juce::KeyPress::deleteKey, { Wish::reset } },
                 { juce::KeyPress::backspaceKey, { Wish::reset } },
                 { juce::KeyPress::returnKey, { Wish::type } },
                 { juce::KeyPress::escapeKey, { Wish::restore } } };

    for (const auto& each : keys)
        if (key.getKeyCode() == each.code)
            return each.meaning;

    return { .wish = isDigitOrMinus (key.getTextCharacter()) ? Wish::typeDigit : Wish::none };
}
} // namespace Zn::GUI
