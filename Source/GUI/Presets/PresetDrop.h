#pragma once

#include "GUI/Editor/FileDrops.h"
#include "GUI/Presets/PresetActions.h"

namespace Zn::GUI
{
/** Preset files that are dragged onto the window, of whichever library. Thread: message. */
class PresetDrop
{
public:
    explicit PresetDrop (EditorContext& context);

    /** Whether one of some files can be loaded; else the pointer says no. */
    bool accepts (const juce::StringArray& files) const;

    /** Loads the first that can be. */
    bool drop (const juce::StringArray& files);

private:
    PresetActions patterns, sounds;
};

/** For the window; the drop outlives it. */
FileDrops::Kind presetDrop (PresetDrop& drop);
} // namespace Zn::GUI
