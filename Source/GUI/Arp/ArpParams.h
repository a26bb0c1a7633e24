#pragma once

#include "GUI/Widgets/Choice.h"
#include "GUI/Widgets/Divider.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/Label.h"
#include "GUI/Widgets/NumberField.h"
#include "GUI/Widgets/RangeSlider.h"
#include "GUI/Widgets/Segments.h"
#include "GUI/Widgets/Slider.h"
#include "GUI/Widgets/Stepper.h"

#include <optional>

namespace Zn::GUI
{
/** What shapes every pattern: pitch, swing and the range of octaves. Thread: message. */
class ArpParams : public AssetScheme::Element<>
{
public:
    explicit ArpParams (EditorContext& contextToUse);

    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    void poll();

    EditorContext& context;

    Segments keyMode;
    NumberField transpose; // in one place with the key
    Choice key;
    Divider afterKey { context, "ArpParamDivider1" };

    Label octaveLabel;
    Stepper octave;
    Divider afterOctave { context, "ArpParamDivider2" };

    Label swingLabel, swingValue;
    std::optional<float> shownSwing;
    Slider swing;
    Segments swingRef;
    Divider afterSwing { context, "ArpParamDivider3" };

    struct ShownRange
    {
        bool operator== (const ShownRange&) const = default;

        int lowest, highest; // octaves
        int middleC;         // the octave that pitches are named by
    };

    Label rangeLabel, rangeValue;
    std::optional<ShownRange> shownRange;
    RangeSlider range;

    Events::Listener polls { context.polls, [this] { poll(); } };
};
} // namespace Zn::GUI
