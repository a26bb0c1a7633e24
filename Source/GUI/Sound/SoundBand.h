#pragma once

#include "GUI/Sound/DelayCard.h"
#include "GUI/Sound/EnvelopeCard.h"
#include "GUI/Sound/FilterCard.h"
#include "GUI/Sound/MasterCard.h"
#include "GUI/Sound/OscillatorCard.h"
#include "GUI/Sound/SoundHeader.h"
#include "GUI/Sound/SubCard.h"
#include "GUI/Sound/UnisonCard.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/Slider.h"

#include <array>
#include <optional>

namespace Zn::GUI
{
/** The synth's controls and pictures of what is heard. Folded, only its line remains, with the volume in it.
    Thread: message.
*/
class SoundBand : public AssetScheme::Element<>
{
public:
    explicit SoundBand (EditorContext& contextToUse);

    void schemeChanged() override;
    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    OscillatorCard::Callbacks callbacksOf (std::size_t oscillator);

    /** Whether one of them would be another by a drop there; none: marks none. */
    bool showDropTarget (const OscillatorCard* from, std::optional<juce::Point<int>> onScreen);

    void drop (std::size_t from, juce::Point<int> onScreen, bool swaps);
    void dropTable (int table, juce::Point<int> onScreen);
    OscillatorCard* cardAt (juce::Point<int> onScreen);
    void poll();

    EditorContext& context;
    SoundHeader header { context };
    std::array<OscillatorCard, Audio::WavetableSynth::numOscillators> oscillators;
    SubCard sub { context };
    UnisonCard unison { context };
    FilterCard filter { context };
    EnvelopeCard envelope { context };
    DelayCard delay { context };
    MasterCard masterCard { context };
    Slider master;
    Button fold;
    MasterValue foldedValue { context, "MasterFoldedValue" };
    Events::Listener pollListener;
};
} // namespace Zn::GUI
