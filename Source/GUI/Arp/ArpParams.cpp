#include "GUI/Arp/ArpParams.h"

#include "GUI/Arp/NamedSwitch.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "Parameters/CreateForwarder.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
std::shared_ptr<Parameters::Parameter> forwarderTo (Audio::ParamHolderBase& holder)
{
    return Parameters::createForwarder (holder);
}

/** A parameter that the state owns. */
std::shared_ptr<Parameters::Parameter> unowned (Parameters::Parameter& parameter)
{
    return { std::shared_ptr<void>(), &parameter };
}
} // namespace

ArpParams::ArpParams (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "ArpParamModule")
    , context (contextToUse)
    , keyMode (context,
               "KeyMode",
               std::make_shared<NamedSwitch> (
                   context.state().keyMode,
                   "Key mode",
                   NamedSwitch::Texts { "Transpose", "Key" },
                   [&state = context.state()] { state.projectChanged.callListeners(); }))
    , transpose (context, "Transpose", forwarderTo (context.state().params.transpose))
    , key (context, "Key", forwarderTo (context.state().params.key))
    , octaveLabel (context, "OctaveLabel", controlText ("Octave").label)
    , octave (context, "Octave", forwarderTo (context.state().params.octave))
    , swingLabel (context, "SwingLabel", controlText ("Swing").label)
    , swingValue (context, "SwingValue", {}, { .colour = "Text" })
    , swing (context,
             "Swing",
             forwarderTo (context.state().params.swing),
             { .fromMiddle = true, .showsReadout = true })
    , swingRef (context, "SwingRef", forwarderTo (context.state().params.swingRef))
    , rangeLabel (context, "OctaveRangeLabel", controlText ("OctaveRange").label)
    , rangeValue (context, "OctaveRangeValue", {}, { .colour = "Text" })
    , range (context,
             "OctaveRange",
             unowned (context.state().lowestOctave),
             unowned (context.state().highestOctave))
{
    setTitle ("Pitch, swing and range");
    swingValue.setDoubleClick ([this] { swing.typeValue(); });
    rangeValue.setDoubleClick ([this] { range.typeValues(); });

    for (auto* child : std::initializer_list<juce::Component*> { &keyMode,
                                                                 &transpose,
                                                                 &key,
                                                                 &afterKey,
                                                                 &octaveLabel,
                                                                 &octave,
                                                                 &afterOctave,
                                                                 &swingLabel,
                                                                 &swing,
                                                                 &swingValue,
                                                                 &swingRef,
                                                                 &afterSwing,
                                                                 &rangeLabel,
                                                                 &range,
                                                                 &rangeValue })
        addAndMakeVisible (child);

    poll();
}

void ArpParams::paint (juce::Graphics& g)
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Band"));
}

void ArpParams::poll()
{
    const auto followsKey = context.state().keyMode.load();
    transpose.setVisible (! followsKey);
    key.setVisible (followsKey);

    if (const auto now = swing.getParameter()->getFloat(); std::exchange (shownSwing, now) != now)
        swingValue.setText (swing.getShownText());

    const ShownRange now { .lowest = context.state().lowestOctave.getInt(),
                           .highest = context.state().highestOctave.getInt(),
                           .middleC = context.settings.get().middleC };

    if (std::exchange (shownRange, now) != now)
        rangeValue.setText (range.getShownText());
}
} // namespace Zn::GUI
