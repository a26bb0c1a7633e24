#include "GUI/Widgets/ControlMenu.h"

namespace Zn::GUI
{
void showControlMenu (EditorContext& context, ValueControl& control)
{
    juce::PopupMenu menu;
    const juce::Component::SafePointer<ValueControl> safe (&control);

    menu.addSectionHeader (control.getText().title);
    menu.addItem ("Type a value" + juce::String::charToString (0x2026), [safe] {
        if (safe != nullptr)
            safe->typeValue();
    });
    menu.addItem ("Reset", [safe] {
        if (safe != nullptr)
            safe->resetToDefault();
    });

    context.overlay.showMenu (menu, &control);
}

bool isMenuKey (const juce::KeyPress& key)
{
    return key == juce::KeyPress (juce::KeyPress::F10Key, juce::ModifierKeys::shiftModifier, 0);
}
} // namespace Zn::GUI
