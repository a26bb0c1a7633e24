#pragma once

#include "Synth/Kernels/Envelope.h"
#include "Synth/MPESynthVoice.h"

#include <span>

namespace Zn::Audio
{
/** A voice that an envelope starts and ends: it is free again when the envelope is. Thread: audio. */
class MPEVoiceWithADSR : public MPESynthVoice
{
public:
    /** The rates that all voices share; they outlive the voice. */
    void setEnvelopeRates (const Kernels::EnvelopeRates& ratesToFollow) noexcept { rates = &ratesToFollow; }

    void noteStarted() final;
    void noteStopped (bool allowTailOff) final;

protected:
    /** The levels of a run, after which a voice that has fallen silent is free. */
    void runEnvelope (std::span<float> levels) noexcept;

    virtual void onNoteStart() noexcept = 0;

private:
    const Kernels::EnvelopeRates* rates = nullptr;
    Kernels::EnvelopeState envelope;
};
} // namespace Zn::Audio
