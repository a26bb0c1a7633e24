#pragma once

#include "Presets/Reflection/Reflector.h"

#include <string>

namespace Zn::Sequencer::MidiPlayer
{
/** Where a MIDI file is to be had: inside the program, inside the project, or on disk. */
struct Resource
{
    enum class Type
    {
        none,
        binary,       // `data` is the file itself, in base64
        sharedBinary, // `name` is that of a file inside the program
        externalFile  // `data` is the full path
    };

    Type type = Type::none;
    std::string name;
    std::string data; // empty unless the type needs it

    /** Keys `name`, `type`, `data`. A type that is not known is none, and so is data too large to be a MIDI file. */
    void reflect (Reflector& r);

    bool operator== (const Resource&) const = default;
};
} // namespace Zn::Sequencer::MidiPlayer
