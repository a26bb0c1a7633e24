#pragma once

#include "GUI/Player/PlayerActions.h"
#include "GUI/Player/PlayerFile.h"
#include "GUI/Player/PlayerTimeline.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The player that takes the place of the held keys: its switches, its file, and that file's chords. Thread: message.
*/
class PlayerBand : public AssetScheme::Element<>
{
public:
    explicit PlayerBand (EditorContext& contextToUse);

    PlayerActions& getActions() noexcept { return actions; }

    void schemeChanged() override { hairline = getCanvas().pixelsOf ("HairlineStroke"); }
    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    PlayerActions actions;
    Toggle active, sync;
    Button previous, next;
    PlayerFile file { actions };
    Button open;
    PlayerTimeline timeline;
    float hairline = 1.0f; // pixels
};
} // namespace Zn::GUI
