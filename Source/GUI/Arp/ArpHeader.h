#pragma once

#include "GUI/Arp/BpmField.h"
#include "GUI/Arp/PlayButton.h"
#include "GUI/Arp/SlotBank.h"
#include "GUI/Widgets/Choice.h"
#include "GUI/Widgets/Divider.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/Label.h"
#include "GUI/Widgets/Segments.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The slots and the transport. Thread: message. */
class ArpHeader : public AssetScheme::Element<>
{
public:
    explicit ArpHeader (EditorContext& contextToUse);

    void paint (juce::Graphics& g) override;
    void paintOverChildren (juce::Graphics& g) override { slots.paintEdges (g); }
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    EditorContext& context;

    Toggle active;
    SlotBank slots { context };

    Label quantizeLabel, retriggerLabel;
    Choice quantize;
    Toggle retrigger;

    Divider divider { context, "TransportDivider" };
    PlayButton play { context };
    Label bpmLabel, clockLabel;
    BpmField bpm { context };
    Segments clock;
};
} // namespace Zn::GUI
