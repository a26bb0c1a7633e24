#pragma once

#include "Midi/Messages.h"

namespace Zn::Midi::Learn
{
/** Remembers where each key and the pedal went when they went down: on to the pattern, or to a handler.

    A key is held while it is learned, and may be held while its binding is cleared or a project is loaded. Its lift
    must go where its press went, whatever the table says by then: else the key would be held for ever, or a note
    would end that nobody heard. Thread: audio.
*/
class DownKeys
{
public:
    /** Whether a note or pedal message goes on to the pattern. To be asked once for each, in their order. */
    bool goesOn (const Event& event, bool isHandled) noexcept;

private:
    enum class Went : std::uint8_t
    {
        nowhere, // it is up
        toHandler,
        on
    };

    std::array<Went, 128> keys {};
    Went pedal = Went::nowhere;
};
} // namespace Zn::Midi::Learn
