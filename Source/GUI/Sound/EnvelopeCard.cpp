#include "GUI/Sound/EnvelopeCard.h"

#include "GUI/Sound/CardHeading.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
auto& paramsOf (EditorContext& context)
{
    return context.state().params.sound.synth.adsr;
}
} // namespace

EnvelopeCard::EnvelopeCard (EditorContext& contextToUse)
    : SoundCard (contextToUse, "Envelope", "Envelope")
    , title (contextToUse, "EnvelopeTitle", "Envelope", cardHeading())
    , curve (contextToUse, "EnvelopeCurve")
    , attack (contextToUse, "EnvelopeAttack", Parameters::createForwarder (paramsOf (contextToUse).attack))
    , decay (contextToUse, "EnvelopeDecay", Parameters::createForwarder (paramsOf (contextToUse).decay))
    , sustain (contextToUse, "EnvelopeSustain", Parameters::createForwarder (paramsOf (contextToUse).sustain))
    , release (contextToUse, "EnvelopeRelease", Parameters::createForwarder (paramsOf (contextToUse).release))
{
    add ({ &title, &curve, &attack, &decay, &sustain, &release });
}

void EnvelopeCard::schemeChanged()
{
    SoundCard::schemeChanged();
    fitLabels ({ &attack, &decay, &sustain, &release });
}
} // namespace Zn::GUI
