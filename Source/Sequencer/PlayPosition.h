#pragma once

#include <atomic>

namespace Zn::Sequencer
{
/** Where the audio thread is inside one emitter of notes, for the editor to draw.

    Made through RefCountedHolder, so that the audio thread never holds the last handle.
*/
struct PlayPosition
{
    std::atomic<double> position { -1.0 }; // quarter notes in the emitter, -1 silent; audio to GUI
    std::atomic<bool> fired { false };     // a mark was passed; set: audio, cleared by who has seen it
};
} // namespace Zn::Sequencer
