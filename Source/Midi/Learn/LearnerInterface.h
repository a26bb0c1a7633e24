#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <functional>

namespace Zn::Midi::Learn
{
/** Waits for the next message that someone can use. One wait at a time. Thread: message. */
class LearnerInterface
{
public:
    /** Is offered a message. False: it is of no use, and the wait goes on. */
    using Take = std::function<bool (const juce::MidiMessage&)>;

    virtual ~LearnerInterface() = default;

    /** Begins to wait, in place of whoever waited before. */
    virtual void learn (Take take) = 0;

    virtual void cancel() = 0;
    virtual bool isLearning() const noexcept = 0;
};
} // namespace Zn::Midi::Learn
