#include "GUI/Sound/SubCard.h"

#include "GUI/Sound/CardHeading.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
SubCard::SubCard (EditorContext& contextToUse)
    : SoundCard (contextToUse, "Sub", "Sub oscillator")
    , title (contextToUse, "SubTitle", "Sub", cardHeading())
    , octave (contextToUse,
              "SubOctave",
              Parameters::createForwarder (contextToUse.state().params.sound.synth.sub.subOctave))
    , volume (contextToUse,
              "SubVolume",
              Parameters::createForwarder (contextToUse.state().params.sound.synth.sub.subVolume))
{
    octave.setShortLabel (true); // as those of the oscillators beside it
    volume.setShortLabel (true);
    add ({ &title, &octave, &volume });
}
} // namespace Zn::GUI
