#pragma once

#include <span>

namespace Zn::Audio::Kernels
{
/** What the four knobs of an envelope mean at one sample rate. */
struct EnvelopeRates
{
    float attackStep = 0.0f, decayStep = 0.0f; // per sample
    float sustainLevel = 1.0f;
    float releaseSeconds = 0.0f;
    double sampleRate = 44100.0;
    int holdSamples = 0;       // of sustain, before a release may start
    bool forceRelease = false; // ends the sustain of a key that is still down
};

/** Times in seconds, the sustain as a level. A time that is not above 0 leaves its part out. */
EnvelopeRates makeEnvelopeRates (float attackSeconds,
                                 float decaySeconds,
                                 float sustainLevel,
                                 float releaseSeconds,
                                 double sampleRate) noexcept;

enum class EnvelopeStage
{
    idle,
    attack,
    decay,
    sustain,
    release
};

/** Where one voice is in its linear envelope. Thread: audio. */
struct EnvelopeState
{
    EnvelopeStage stage = EnvelopeStage::idle;
    float level = 0.0f;
    float releaseStep = 0.0f; // per sample
    int heldSamples = 0;      // of sustain, since the note began
    bool noteIsDown = false;

    bool isSounding() const noexcept { return stage != EnvelopeStage::idle; }
};

/** Starts a note; a voice that still sounds goes on from the level it has. */
void startNote (EnvelopeState&, const EnvelopeRates&) noexcept;

/** Lets go of the key: releases from the present level, or first sees the hold through. */
void stopNote (EnvelopeState&, const EnvelopeRates&) noexcept;

/** Silences the voice at once. */
void stopWithoutTail (EnvelopeState&) noexcept;

/** Follows the knobs, once per block: a release that has not begun takes its new length. */
void followRates (EnvelopeState&, const EnvelopeRates&) noexcept;

/** The level of each sample of a run. Does not follow the knobs by itself. */
void fillLevels (EnvelopeState&, const EnvelopeRates&, std::span<float> levels) noexcept;
} // namespace Zn::Audio::Kernels
