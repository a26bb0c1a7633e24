#pragma once

#include "GUI/Presets/PresetActions.h"

namespace Zn::GUI
{
/** What the menu of a preset in a browser offers, by the numbers of its lines. */
enum class PresetFileCommand
{
    none,
    favourite,
    showFile,
    rename,
    remove
};

juce::PopupMenu presetFileMenu (const CataloguedPreset& preset);

/** What the menu beside a bar offers, by the numbers of its lines. */
enum class PresetCommand
{
    none,
    saveAs,
    loadDefault,
    loadInit,
    randomise,
    copy,
    paste,
    showFolder,
    rescan
};

/** Pasting is offered while a preset is on the clipboard. */
juce::PopupMenu presetMenu (const PresetKind& kind, bool canPaste);
} // namespace Zn::GUI
