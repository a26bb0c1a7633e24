#include "GUI/Arp/ArpHeader.h"

#include "GUI/Arp/NamedSwitch.h"
#include "GUI/Arp/QuantizeParam.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
ArpHeader::ArpHeader (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "ArpHeader")
    , context (contextToUse)
    , active (
          context,
          "ArpActive",
          Parameters::createForwarder (context.state().params.arpActive),
          { .icon = "power.svg", .arrangement = Caption::Arrangement::stacked, .iconSize = "IconSizeLarge" })
    , quantizeLabel (context, "QuantizeLabel", controlText ("Quantize").label)
    , retriggerLabel (context, "RetriggerLabel", controlText ("Retrigger").label)
    , quantize (context, "Quantize", std::make_shared<QuantizeParam> (context))
    , retrigger (context,
                 "Retrigger",
                 Parameters::createForwarder (context.state().params.retrigger),
                 { .look = Toggle::Look::pill })
    , bpmLabel (context, "BpmLabel", controlText ("Bpm").label)
    , clockLabel (context, "ClockLabel", controlText ("Clock").label)
    , clock (context,
             "Clock",
             std::make_shared<NamedSwitch> (
                 context.state().playHead->internalClock, "Clock", NamedSwitch::Texts { "Host", "Internal" }))
{
    setTitle ("Patterns and transport");
    clock.setUndoable (false);

    if (context.processor.wrapperType == juce::AudioProcessor::wrapperType_Standalone)
    {
        clock.setEnabledWhen ([] { return false; });
        clock.setHelp ("There is no host to follow.");
    }

    auto order = 0; // from the left: their upper edges would mix them up

    for (auto* child : std::initializer_list<juce::Component*> { &active,
                                                                 &slots,
                                                                 &quantizeLabel,
                                                                 &quantize,
                                                                 &retriggerLabel,
                                                                 &retrigger,
                                                                 &divider,
                                                                 &play,
                                                                 &bpmLabel,
                                                                 &bpm,
                                                                 &clockLabel,
                                                                 &clock })
    {
        child->setExplicitFocusOrder (++order);
        addAndMakeVisible (child);
    }
}

void ArpHeader::paint (juce::Graphics& g)
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Band"));
}
} // namespace Zn::GUI
