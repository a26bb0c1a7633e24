#include "GUI/Sound/SoundHeader.h"

#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
bool isFolded (const EditorContext& context)
{
    return context.canvas.getFold() == AssetScheme::Fold::folded;
}
} // namespace

SoundHeader::SoundHeader (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "SoundHeader")
    , context (contextToUse)
    , enable (contextToUse,
              "SynthEnable",
              Parameters::createForwarder (contextToUse.state().params.sound.synthEnable),
              { .icon = "power.svg", .text = "Synth", .accent = "Sound" })
    , fold (contextToUse,
            "SoundFold",
            { .text = "", .icon = "down.svg", .look = Button::Look::quiet },
            [&actions = contextToUse.actions] { actions.fold(); })
{
    for (auto* child : std::initializer_list<juce::Component*> { &enable, &fold })
        addAndMakeVisible (child);
}

void SoundHeader::schemeChanged()
{
    fold.setIcon (isFolded (context) ? "up.svg" : "down.svg");
    fold.setHelp (isFolded (context) ? "Open the sound again." : "Fold the sound away for a taller roll.");
}
} // namespace Zn::GUI
