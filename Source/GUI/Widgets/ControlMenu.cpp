#include "GUI/Widgets/ControlMenu.h"

#include "GUI/Widgets/HostParameter.h"

namespace Zn::GUI
{
namespace
{
using Target = Learning::Target;

const auto ellipsis = [] { return juce::String::charToString (0x2026); };

juce::PopupMenu::Item
line (const juce::String& text, std::function<void()> action, const juce::String& key = {})
{
    juce::PopupMenu::Item item { text };
    item.itemID = -1; // chosen by what it does
    item.action = std::move (action);
    item.shortcutKeyDescription = key;
    return item;
}

void addValueLines (juce::PopupMenu& menu, ValueControl& control)
{
    const juce::Component::SafePointer<ValueControl> self (&control);

    const auto safely = [self] (void (*act) (ValueControl&)) {
        return [self, act] {
            if (self != nullptr)
                act (*self);
        };
    };

    menu.addItem (line ("Type a value" + ellipsis(), safely ([] (auto& c) { c.typeValue(); }), "Enter"));
    menu.addItem (
        line ("Reset to " + control.getDefaultText(), safely ([] (auto& c) { c.resetToDefault(); }), "Del"));
    menu.addItem (line ("Copy value", safely ([] (auto& c) {
                            juce::SystemClipboard::copyTextToClipboard (c.getShownText (ValueDetail::full));
                        })));

    auto paste =
        line ("Paste value",
              safely ([] (auto& c) { c.setFromTyped (juce::SystemClipboard::getTextFromClipboard()); }));
    paste.isEnabled = control.understands (juce::SystemClipboard::getTextFromClipboard());
    menu.addItem (std::move (paste));
}

void addLearnLine (juce::PopupMenu& menu, ValueControl& control, Learning& learning, const Target& target)
{
    const auto learned = learning.textOf (target);
    const juce::Component::SafePointer<ValueControl> self (&control); // lives no longer than what learns

    if (learned.isNotEmpty())
        menu.addItem (line ("Forget " + learned, [self, &learning, target] {
            if (self != nullptr)
                learning.forget (target);
        }));
    else
        menu.addItem (line ("Learn MIDI" + ellipsis(), [self, &learning, target] {
            if (self == nullptr)
                return;

            learning.setActive (true);
            learning.arm (target);
        }));
}

/** What a host adds, such as showing the automation. */
void addHostLines (juce::PopupMenu& menu, const ValueControl& control)
{
    const auto* parameter = hostParameterOf (*control.getParameter());
    const auto* editor = control.findParentComponentOfClass<juce::AudioProcessorEditor>();
    const auto* host = editor != nullptr ? editor->getHostContext() : nullptr;

    if (parameter == nullptr || host == nullptr)
        return;

    if (const auto hostMenu = host->getContextMenuForParameter (parameter))
        if (const auto lines = hostMenu->getEquivalentPopupMenu(); lines.getNumItems() > 0)
            menu.addSubMenu ("Host automation", lines);
}
} // namespace

juce::PopupMenu controlMenu (EditorContext& context, ValueControl& control)
{
    const auto* parameter = hostParameterOf (*control.getParameter());
    juce::PopupMenu menu;

    menu.addSectionHeader (parameter != nullptr ? control.getText().title + "\n" + parameter->getParameterID()
                                                : control.getText().title);
    addValueLines (menu, control);

    if (const auto target = control.getLearnTarget())
        addLearnLine (menu, control, context.learning, *target);

    addHostLines (menu, control);
    return menu;
}
} // namespace Zn::GUI
