#pragma once

#include <atomic>

namespace Zn::Sequencer
{
/** The slot switch, as the editor and the audio thread share it. One object for the processor's life. */
struct LiveSlots
{
    std::atomic<int> pending { -1 };     // slot asked for, -1 none; written: GUI and MIDI learn, taken: audio
    std::atomic<int> index { 0 };        // slot wanted, 0..7; written: audio
    std::atomic<int> heard { 0 };        // slot that sounds, 0..7; written: audio
    std::atomic<bool> enable { true };   // changes wait for the quantum; written: GUI
    std::atomic<double> quantum { 1.0 }; // quarter notes between the moments of change; written: audio

    // Quarter notes on the clock, -1 none; written: audio, read: GUI.
    std::atomic<double> switchPosition { -1.0 };   // where the change will be
    std::atomic<double> switchedPosition { -1.0 }; // where the last change was
};
} // namespace Zn::Sequencer
