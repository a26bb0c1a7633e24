#include "GUI/Player/PlayerBand.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
PlayerBand::PlayerBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "MidiPlayer")
    , actions (contextToUse)
    , active (contextToUse,
              "PlayerActive",
              createPlayerActive (contextToUse.state()),
              { .icon = "power.svg", .accent = "Midi" })
    , sync (contextToUse,
            "PlayerSync",
            createPlayerSync (contextToUse.state()),
            { .icon = "loop.svg", .accent = "Midi" })
    , previous (contextToUse, "PlayerPrevious", { .icon = "previous.svg" }, [this] { actions.step (-1); })
    , next (contextToUse, "PlayerNext", { .icon = "next.svg" }, [this] { actions.step (1); })
    , open (contextToUse, "PlayerOpen", {}, [this] { actions.open(); })
    , timeline (contextToUse)
{
    setTitle ("MIDI player");

    for (auto* part : std::initializer_list<juce::Component*> { &active,
                                                                &sync,
                                                                &previous,
                                                                &next,
                                                                &file,
                                                                &open,
                                                                &timeline })
        addAndMakeVisible (part);
}

void PlayerBand::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();

    g.fillAll (scheme.colourOf ("Band"));
    g.setColour (scheme.colourOf ("Hairline"));
    g.fillRect (getLocalBounds().toFloat().withHeight (hairline));
}
} // namespace Zn::GUI
