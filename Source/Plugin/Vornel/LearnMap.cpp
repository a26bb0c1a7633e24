#include "Plugin/Vornel/LearnMap.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Parameters/CreateForwarder.h"
#include "Plugin/Bases/ParamMidiCCHandler.h"
#include "Plugin/Vornel/SlotHandler.h"
#include "Plugin/Vornel/State.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr int highestNumber = 127; // of notes and controllers

bool excludeEachOther (const Midi::Learn::Binding& a, const Midi::Learn::Binding& b)
{
    return a.target == b.target || (a.target.isSlot() && b.target.isSlot() && a.number == b.number);
}

/** The number to bind, if the message is one for this target. */
std::optional<int> numberFor (const Midi::Learn::Target& target, const juce::MidiMessage& message)
{
    if (target.isSlot() && message.isNoteOn())
        return message.getNoteNumber();

    if (! target.isSlot() && message.isController())
        return message.getControllerNumber();

    return {};
}
} // namespace

struct LearnMap::Edit
{
    explicit Edit (LearnMap& mapToEdit) : map (mapToEdit) { map.editBegins.callListeners(); }
    ~Edit() { map.editEnds.callListeners(); }

    LearnMap& map;
};

LearnMap::LearnMap (State& stateToUse)
    : state (stateToUse), learner (stateToUse.learner), timer (std::in_place, [this] { update(); })
{}

void LearnMap::learn (const Target& target)
{
    if (! exists (target))
        return;

    learner.learn ([this] (const juce::MidiMessage& message) { return take (message); });
    learning = target;
    callListeners();
}

void LearnMap::cancel()
{
    if (! learning.has_value())
        return;

    learner.cancel();
    learning.reset();
    callListeners();
}

bool LearnMap::bind (const Binding& binding)
{
    const Edit edit (*this);
    const auto isBound = add (binding);

    if (isBound)
        tableChanged();

    return isBound;
}

void LearnMap::bindKeySwitches (int lowestNote)
{
    const Edit edit (*this);
    const auto first = juce::jlimit (0, highestNumber + 1 - Sequencer::numSlots, lowestNote);

    for (auto slot = 0; slot < Sequencer::numSlots; ++slot)
        add ({ Target::forSlot (slot), first + slot });

    tableChanged();
}

void LearnMap::clear (const Target& target)
{
    const Edit edit (*this);

    if (std::erase_if (handlers, [&] (const auto& h) { return h->getBinding().target == target; }) > 0)
        tableChanged();
}

void LearnMap::clearAll()
{
    const Edit edit (*this);

    if (! std::exchange (handlers, {}).empty())
        tableChanged();
}

std::vector<Midi::Learn::Binding> LearnMap::getBindings() const
{
    std::vector<Binding> bindings;

    for (const auto& handler : handlers)
        bindings.push_back (handler->getBinding());

    return bindings;
}

void LearnMap::reflect (Reflector& r)
{
    const auto present = getBindings();
    auto bindings = present;
    ChildContainerSerializer (bindings, r.isLoading(), Midi::Learn::maxEntries).reflect (r);

    if (! r.isLoading() || bindings == present)
        return;

    handlers.clear();

    for (const auto& binding : bindings)
        add (binding);

    tableChanged();
}

void LearnMap::update()
{
    learner.updateFlag();
    tellOfMoves();
}

void LearnMap::tellOfMoves()
{
    for (auto& [identifier, param] : learnedParams)
        param.tellListeners();
}

void LearnMap::tableChanged()
{
    tableBroadcaster.callListeners();
    callListeners();
}

bool LearnMap::exists (const Target& target) const
{
    return target.isSlot() ? target.slot < Sequencer::numSlots
                           : parameters != nullptr && parameters->find (target.param) != nullptr;
}

bool LearnMap::add (const Binding& binding)
{
    if (! exists (binding.target) || ! juce::isPositiveAndNotGreaterThan (binding.number, highestNumber))
        return false;

    std::erase_if (handlers, [&] (const auto& h) { return excludeEachOther (h->getBinding(), binding); });

    if (handlers.size() >= Midi::Learn::maxEntries)
        return false;

    handlers.push_back (makeHandler (binding));
    return true;
}

bool LearnMap::take (const juce::MidiMessage& message)
{
    const auto target = *learning;
    const auto number = numberFor (target, message);

    if (! number.has_value())
        return false;

    const Edit edit (*this);
    learning.reset();
    add ({ target, *number });
    tableChanged();
    return true;
}

std::shared_ptr<Midi::Learn::Handler> LearnMap::makeHandler (const Binding& binding)
{
    const auto& [target, number] = binding;

    if (target.isSlot())
        return SlotHandler::createHandle (state, target.slot, number);

    return Events::RefCountedHolder<Plugin::ParamMidiCCHandler>::create (binding,
                                                                         learnedParam (target.param));
}

Plugin::LearnedParam& LearnMap::learnedParam (const juce::String& hostIdentifier)
{
    const auto found = learnedParams.find (hostIdentifier);

    if (found != learnedParams.end())
        return found->second;

    auto forwarder = Parameters::createForwarder (*parameters->find (hostIdentifier));
    return learnedParams.try_emplace (hostIdentifier, std::move (forwarder)).first->second;
}
} // namespace Zn::Audio::Plugins::Vornel
