#pragma once

#include "Midi/Learn/Handler.h"

#include <functional>
#include <memory>

namespace Zn::Audio::Plugins::Vornel
{
class State;

/** Asks for a pattern slot when its key goes down. The key's lift matches too: with the arpeggiator off it would reach
    the host otherwise, a note-off without a note.
*/
class SlotHandler : public Midi::Learn::Handler
{
public:
    /** Is called on the audio thread with the slot. */
    using Callback = std::function<void (int)>;

    /** Makes a handler that the collector frees. Without a callback the state's live slots are asked, as the editor
        asks them: the change waits for the quantum. Thread: message.
    */
    static std::shared_ptr<Handler> createHandle (State& state, int slot, int note, Callback callback = {});

    SlotHandler (int slot, int note, Callback callbackToUse);

    bool matches (const juce::MidiMessage& message) const noexcept override;
    void handle (const juce::MidiMessage& message) noexcept override;
    const Midi::Learn::Binding& getBinding() const noexcept override { return binding; }

private:
    const Midi::Learn::Binding binding;
    const Callback callback;
};
} // namespace Zn::Audio::Plugins::Vornel
