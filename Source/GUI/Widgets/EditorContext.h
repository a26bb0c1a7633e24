#pragma once

#include "Foundation/Events/Value.h"
#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Widgets/Edits.h"
#include "GUI/Widgets/Learning.h"
#include "GUI/Widgets/Overlay.h"
#include "GUI/Widgets/PageActions.h"
#include "GUI/Widgets/UserSettings.h"
#include "Plugin/Vornel/Processor.h"

namespace Zn::GUI
{
/** What the parts of one open editor share. The editor makes it first and destroys it last. Thread: message. */
struct EditorContext
{
    Audio::Plugins::Vornel::Processor& processor;
    AssetScheme::Canvas& canvas;
    UserSettings& settings;
    Edits& edits;
    Overlay& overlay;
    Learning& learning;

    /** Called every Events::UpdateTimer::screenInterval: the time to look whether what is shown has changed. */
    Events::Broadcaster& polls;

    /** The slot that is open for editing, 0..7; another one may be playing. */
    Events::Value<int>& shownSlot;

    PageActions& actions;

    /** Whether the last thing that a hand did was to press a key, and no click: only then the focus is shown. */
    bool& keysInUse;

    /** What was last dragged out of this editor as a file: over its own window it is not welcome. */
    juce::File& draggedOut;

    Audio::Plugins::Vornel::State& state() const noexcept { return processor.getState(); }
};
} // namespace Zn::GUI
