#include "GUI/Presets/PresetMenus.h"

namespace Zn::GUI
{
namespace
{
template <typename Command>
void add (juce::PopupMenu& menu,
          Command command,
          const juce::String& text,
          bool isEnabled = true,
          bool isTicked = false)
{
    menu.addItem (static_cast<int> (command), text, isEnabled, isTicked);
}

juce::String withEllipsis (const juce::String& text)
{
    return text + juce::String::fromUTF8 ("\xe2\x80\xa6");
}
} // namespace

juce::PopupMenu presetFileMenu (const CataloguedPreset& preset)
{
    using enum PresetFileCommand;

    // No box asks whether this is meant: the second line is the answer.
    juce::PopupMenu deletion;
    add (deletion, remove, "Move " + preset.name.quoted() + " to the bin");

    juce::PopupMenu menu;
    menu.addSectionHeader (preset.name + "\n" + (preset.isOwn ? "Your own" : "Factory"));
    add (menu, favourite, "Favourite", true, preset.isFavourite);
    add (menu, showFile, "Show file");
    menu.addSeparator();
    add (menu, rename, withEllipsis ("Rename"), preset.isOwn);
    menu.addSubMenu (withEllipsis ("Delete"), deletion, preset.isOwn);
    return menu;
}

juce::PopupMenu presetMenu (const PresetKind& kind, bool canPaste)
{
    using enum PresetCommand;

    juce::PopupMenu menu;
    add (menu, saveAs, withEllipsis ("Save as"));
    menu.addSeparator();
    add (menu, loadDefault, "Load Default");
    add (menu, loadInit, "Load Init");

    if (! kind.hasPatterns)
        add (menu, randomise, "Randomise");

    menu.addSeparator();
    add (menu, copy, "Copy " + kind.noun);
    add (menu, paste, "Paste " + kind.noun, canPaste);
    menu.addSeparator();
    add (menu, showFolder, "Show folder");
    add (menu, rescan, "Rescan");
    return menu;
}
} // namespace Zn::GUI
