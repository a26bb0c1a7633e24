#pragma once

#include "GUI/Presets/PresetBar.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The line above the synth's cards, which stays when they are folded away. Thread: message. */
class SoundHeader : public AssetScheme::Element<>
{
public:
    explicit SoundHeader (EditorContext& contextToUse);

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    Toggle enable;
    PresetBar sounds;
};
} // namespace Zn::GUI
