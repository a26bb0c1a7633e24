#pragma once

#include <atomic>
#include <cstdint>

namespace Zn::Sequencer
{
/** The transport as the editor and the audio thread share it. One object for the processor's life. */
struct PlayHead
{
    enum class Control
    {
        nobody, // it always runs
        editor,
        host
    };

    /** Whether the internal clock is in force, which the editor may move. Thread: any. */
    bool isMovable() const noexcept { return control.load() != Control::host; }

    /** Puts the internal clock at a position in quarter notes. Thread: message. */
    void moveTo (double ppq) noexcept
    {
        // The audio thread takes another sample count for a jump; it counts upwards, and never comes to this one.
        positionPpq.store (ppq);
        positionSamples.fetch_sub (1);
    }

    std::atomic<bool> isPlaying { false };     // written: audio; GUI while the internal clock is in force
    std::atomic<float> bpm { 100.0f };         // written: audio from the host; GUI otherwise
    std::atomic<bool> internalClock { false }; // true: ignore the host's clock; written: GUI
    std::atomic<Control> control { Control::nobody }; // who starts and stops it now; written: audio
    std::atomic<bool> hasHostTempo { false };         // bpm comes from the host; written: audio
    std::atomic<double> positionPpq { 0.0 }; // quarter notes at the end of the last block, or moved to
    std::atomic<std::int64_t> positionSamples { 0 }; // samples at the end of the last block
};
} // namespace Zn::Sequencer
