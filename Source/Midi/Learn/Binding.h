#pragma once

#include <juce_core/juce_core.h>

namespace Zn
{
class Reflector;
}

namespace Zn::Midi::Learn
{
/** What a message can be bound to: a pattern slot, which a note switches to, or a parameter, which the pedal moves. */
struct Target
{
    static Target forSlot (int index) { return { index, {} }; }
    static Target forParam (const juce::String& hostIdentifier) { return { -1, hostIdentifier }; }

    bool isSlot() const noexcept { return slot >= 0; }
    bool operator== (const Target&) const = default;

    int slot = -1;      // from 0; negative: none
    juce::String param; // the identifier that the host knows it by; empty: none
};

/** A learned message and its target, as the editor lists it and a project keeps it. */
struct Binding
{
    Target target;
    int number = -1; // 0..127: of the note for a slot, of the controller for a parameter

    /** Loading never throws: an entry of an unknown kind, or one that cannot be read, is bound to nothing.
        Thread: message.
    */
    void reflect (Reflector& r);

    bool operator== (const Binding&) const = default;
};
} // namespace Zn::Midi::Learn
