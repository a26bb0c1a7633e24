#pragma once

#include "Midi/Mapper/NoteModifierProcessor.h"

namespace Zn::Midi::Mapper
{
/** Moves notes by semitones; what would leave the keyboard stays at its end. Thread: audio. */
class TransposeProcessor : public NoteModifierProcessor
{
public:
    /** Restarts what sounds, with the next buffer, if the amount is a new one. */
    void setSemitones (int newSemitones) noexcept
    {
        if (std::exchange (semitones, newSemitones) != newSemitones)
            markChanged();
    }

    int map (int note) const noexcept override { return std::clamp (note + semitones, 0, 127); }

private:
    int semitones = 0;
};
} // namespace Zn::Midi::Mapper
