#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "Foundation/Events/TimerCallback.h"
#include "Midi/Learn/State.h"
#include "Parameters/HostParamList.h"
#include "Plugin/Bases/DefaultMidiLearner.h"
#include "Plugin/Bases/LearnedParam.h"

#include <map>
#include <optional>

namespace Zn::Audio::Plugins::Vornel
{
class State;

/** Which keys switch to which pattern slots, and which parameters the sustain pedal moves; kept with the host's project.

    A target has one message, and a key has one slot: the newest binding replaces what stands against it, as a key
    that names two slots could only ever leave one of them playing. The pedal may move several parameters. While it
    moves any, it sustains nothing. A key that was down when it was learned still ends what it began.

    Its own broadcaster tells the editor of every change of the table, and of the beginning and end of learning.
    Thread: message.
*/
class LearnMap : public Events::HasBroadcaster
{
public:
    using Target = Midi::Learn::Target;
    using Binding = Midi::Learn::Binding;

    /** The state outlives it. */
    explicit LearnMap (State& stateToUse);

    /** The parameters that can be learned; until then only slots can. The list outlives this. Thread: prepare. */
    void setParameters (const HostParamList& hostParameters) noexcept { parameters = &hostParameters; }

    /** Waits for the next key to name a slot, or for the pedal to move a parameter, in place of what was waited for.
        The message itself still sounds. Does nothing for a target that does not exist.
    */
    void learn (const Target& target);
    void cancel();

    /** What is being waited for. */
    const std::optional<Target>& getLearning() const noexcept { return learning; }

    /** Binds without waiting. False: there is no such target or number. */
    bool bind (const Binding& binding);

    /** Gives the eight slots eight keys side by side. A row that leaves the keyboard is moved down until it fits. */
    void bindKeySwitches (int lowestNote);

    void clear (const Target& target);
    void clearAll();

    /** In the order in which they act, the oldest first. */
    std::vector<Binding> getBindings() const;
    const Midi::Learn::Handlers& getHandlers() const noexcept { return handlers; }

    /** Hands a new table to the audio thread and to the host's project. */
    Events::Broadcaster& getTableBroadcaster() noexcept { return tableBroadcaster; }

    /** Around each change of the table that a user makes; a load is none. */
    Events::Broadcaster editBegins, editEnds;

    /** An array. Loading replaces the table by what can be bound of the first 128 entries. */
    void reflect (Reflector& r);

    /** Does what the timer does, for whoever cannot wait for it. */
    void update();

    /** Tells the host and the editor of the parameters that learned messages have moved, if they do not know yet. */
    void tellOfMoves();

    /** The timer does nothing from now on, and is not in here. Thread: any. */
    void stopUpdating() noexcept { timer.reset(); }

private:
    struct Edit;

    void tableChanged();
    bool exists (const Target& target) const;
    bool add (const Binding& binding);
    bool take (const juce::MidiMessage& message);
    std::shared_ptr<Midi::Learn::Handler> makeHandler (const Binding& binding);
    Plugin::LearnedParam& learnedParam (const juce::String& hostIdentifier);

    State& state;
    const HostParamList* parameters = nullptr;
    Midi::Learn::Handlers handlers;
    Events::Broadcaster tableBroadcaster;

    /** By host identifier. They stay when nothing is bound to them any more: the audio thread may still be moving
        one, and the host has to hear of it.
    */
    std::map<juce::String, Plugin::LearnedParam> learnedParams;

    Plugin::DefaultMidiLearner learner;
    std::optional<Target> learning;
    std::optional<Events::TimerCallback> timer; // last: it uses all others
};
} // namespace Zn::Audio::Plugins::Vornel
