#include "GUI/Arp/SlotMenu.h"

#include <functional>

namespace Zn::GUI
{
namespace
{
using Owner = juce::Component::SafePointer<juce::Component>;

juce::PopupMenu::Item
line (const Owner& owner, const juce::String& text, bool isEnabled, std::function<void()> action)
{
    return juce::PopupMenu::Item (text).setEnabled (isEnabled).setAction (
        [owner, action = std::move (action)] {
            if (owner != nullptr)
                action();
        });
}
} // namespace

juce::PopupMenu slotMenu (const SlotMenuTools& tools, int slot, bool isEmpty)
{
    const Owner owner (&tools.owner);
    const auto ellipsis = juce::String::charToString (0x2026);
    const auto target = Learning::Target::forSlot (slot);
    const auto learned = tools.learning.textOf (target);
    const auto canPaste = tools.edits.canPaste();
    auto* const edits = &tools.edits;
    auto* const files = &tools.files;
    auto* const learning = &tools.learning;

    juce::PopupMenu menu;
    menu.addItem (line (owner, "Copy", ! isEmpty, [=] { edits->copyToClipboard (slot); }));
    menu.addItem (line (owner, "Paste", canPaste, [=] { edits->paste (slot); }));
    menu.addItem (line (owner, "Paste as variation", canPaste, [=] { edits->pasteAsVariation (slot); }));
    menu.addItem (line (owner, "Clear", true, [=] { edits->clear (slot); }));
    menu.addSeparator();
    menu.addItem (line (owner, "Save as MIDI" + ellipsis, ! isEmpty, [=] { files->saveAs (slot); }));
    menu.addItem (line (owner, "Learn MIDI" + ellipsis, true, [=] {
        learning->setActive (true);
        learning->arm (target);
    }));

    if (learned.isNotEmpty())
        menu.addItem (line (owner, "Forget " + learned, true, [=] { learning->forget (target); }));

    return menu;
}
} // namespace Zn::GUI
