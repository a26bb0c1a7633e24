#include "GUI/Sound/SoundHeader.h"

#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
SoundHeader::SoundHeader (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "SoundHeader")
    , enable (contextToUse,
              "SynthEnable",
              Parameters::createForwarder (contextToUse.state().params.sound.synthEnable),
              { .icon = "power.svg", .text = "Synth", .accent = "Sound" })
    , sounds (contextToUse, PresetKind::sounds (contextToUse.state()))
{
    setTitle ("Synth and sounds");
    addAndMakeVisible (enable);
    sounds.addTo (*this);
}
} // namespace Zn::GUI
