#pragma once

#include "GUI/Header/HistoryButton.h"
#include "GUI/Header/Logo.h"
#include "GUI/Presets/PresetBar.h"
#include "GUI/Widgets/GroupHandler.h"

namespace Zn::GUI
{
/** Presets, undo, learn, help and settings, along the top. Thread: message. */
class HeaderBand : public AssetScheme::Element<>
{
public:
    explicit HeaderBand (EditorContext& contextToUse);

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    EditorContext& context;

    Logo logo;
    PresetBar presets;
    HistoryButton undo, redo;
    Button learn, help, settings;
};
} // namespace Zn::GUI
