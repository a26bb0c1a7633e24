#pragma once

#include "Midi/Learn/Binding.h"

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Midi::Learn
{
/** What a learned message does: moves a parameter, switches a pattern. A message that matches is consumed.

    Never changes once it is made. The collector frees it, so its destructor touches nothing of the plug-in's.
*/
class Handler
{
public:
    virtual ~Handler() = default;

    /** Thread: audio. */
    virtual bool matches (const juce::MidiMessage& message) const noexcept = 0;

    /** Acts on a message that matches. Thread: audio. */
    virtual void handle (const juce::MidiMessage& message) noexcept = 0;

    /** What it was made for, to list and to save it. Thread: message. */
    virtual const Binding& getBinding() const noexcept = 0;
};
} // namespace Zn::Midi::Learn
