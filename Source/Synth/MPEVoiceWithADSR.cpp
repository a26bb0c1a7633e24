#include "Synth/MPEVoiceWithADSR.h"

namespace Zn::Audio
{
void MPEVoiceWithADSR::noteStarted()
{
    Kernels::startNote (envelope, *rates);
    onNoteStart();
}

void MPEVoiceWithADSR::noteStopped (bool allowTailOff)
{
    if (allowTailOff)
    {
        Kernels::stopNote (envelope, *rates);
        return;
    }

    Kernels::stopWithoutTail (envelope);
    clearCurrentNote();
    publishActivity();
}

void MPEVoiceWithADSR::runEnvelope (std::span<float> levels) noexcept
{
    Kernels::followRates (envelope, *rates);
    Kernels::fillLevels (envelope, *rates, levels);

    if (! envelope.isSounding())
        clearCurrentNote();

    publishActivity();
}
} // namespace Zn::Audio
