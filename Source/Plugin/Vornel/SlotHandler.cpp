#include "Plugin/Vornel/SlotHandler.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Plugin/Vornel/State.h"

namespace Zn::Audio::Plugins::Vornel
{
std::shared_ptr<Midi::Learn::Handler>
SlotHandler::createHandle (State& state, int slot, int note, Callback callback)
{
    if (callback == nullptr)
        callback = [live = state.liveSlots] (int asked) { live->pending.store (asked); };

    return Events::RefCountedHolder<SlotHandler>::create (slot, note, std::move (callback));
}

SlotHandler::SlotHandler (int slot, int note, Callback callbackToUse)
    : binding { Midi::Learn::Target::forSlot (slot), note }, callback (std::move (callbackToUse))
{}

bool SlotHandler::matches (const juce::MidiMessage& message) const noexcept
{
    return message.isNoteOnOrOff() && message.getNoteNumber() == binding.number;
}

void SlotHandler::handle (const juce::MidiMessage& message) noexcept
{
    if (message.isNoteOn())
        callback (binding.target.slot);
}
} // namespace Zn::Audio::Plugins::Vornel
