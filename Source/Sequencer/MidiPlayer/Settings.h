#pragma once

#include "Sequencer/MidiPlayer/Resource.h"

namespace Zn::Sequencer::MidiPlayer
{
/** What a project remembers of the player that takes the place of the held keys. Thread: message. */
struct Settings
{
    Resource resource;
    bool playing = true; // while it is active
    bool active = false; // its notes are heard instead of the keys

    /** Keys `Resource`, `playing`, `active`. */
    void reflect (Reflector& r)
    {
        r.addChild ("Resource", resource);
        r.add ("playing", playing);
        r.add ("active", active);
    }

    bool operator== (const Settings&) const = default;
};
} // namespace Zn::Sequencer::MidiPlayer
