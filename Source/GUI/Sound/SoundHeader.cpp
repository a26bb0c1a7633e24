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
    , sounds (contextToUse, PresetKind::sounds (contextToUse.state()))
    , fold (contextToUse,
            "SoundFold",
            { .text = "", .icon = "down.svg", .look = Button::Look::quiet },
            [&actions = contextToUse.actions] { actions.fold(); })
{
    addAndMakeVisible (enable);
    sounds.addTo (*this);
    addAndMakeVisible (fold);
}

void SoundHeader::schemeChanged()
{
    fold.setIcon (isFolded (context) ? "up.svg" : "down.svg");
    fold.setHelp (isFolded (context) ? "Open the sound again." : "Fold the sound away for a taller roll.");
}
} // namespace Zn::GUI
