#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn
{
class Reflector;
}

namespace Zn::Midi::Learn
{
/** What a learned message does: moves a parameter, switches a pattern. A message that matches is consumed. */
class Handler
{
public:
    virtual ~Handler() = default;

    /** Thread: audio. */
    virtual bool matches (const juce::MidiMessage& message) const noexcept = 0;

    /** Acts on a message that matches. Thread: audio. */
    virtual void handle (const juce::MidiMessage& message) noexcept = 0;

    /** Thread: message. */
    virtual void reflect (Reflector& r) = 0;
};
} // namespace Zn::Midi::Learn
