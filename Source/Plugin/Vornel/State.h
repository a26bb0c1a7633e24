#pragma once

#include "Midi/Inbox.h"
#include "Midi/Learn/LearnerRecord.h"
#include "Midi/PitchTableRing.h"
#include "Parameters/ChangeWatcher.h"
#include "Plugin/Vornel/MidiSettings.h"
#include "Plugin/Vornel/OctaveRange.h"
#include "Plugin/Vornel/Params.h"
#include "Sequencer/BPMParameter.h"
#include "Sequencer/LiveSlots.h"
#include "Sequencer/PatternController.h"
#include "Sequencer/PlayHead.h"

#include <atomic>
#include <memory>

namespace Zn::Audio::Plugins::Vornel
{
/** Everything that the plug-in remembers, and the places where the editor and the audio thread meet.

    Made and changed on the message thread. The audio thread reads the parameters and the atomics, and owns the other
    end of the inbox, the learner and the pitch tables.
*/
class State
{
public:
    State();

    /** Reads what steers a segment. Thread: audio. */
    MidiSettings readMidiSettings() const noexcept;

    /** Ends all that sounds: lets go of every key and of the pedal. Thread: message. */
    void panic() noexcept;

    Params params;

    const std::shared_ptr<Sequencer::PlayHead> playHead;
    const std::shared_ptr<Sequencer::LiveSlots> liveSlots;
    Sequencer::BPMParameter bpm;
    Sequencer::PatternController patterns;

    /** Follow the song: its key, and its transport also while it is stopped. */
    std::atomic<bool> keyMode { false }; // written: GUI, read: audio
    OctaveRange octaveRange;

    Midi::Inbox inbox;
    Midi::Learn::LearnerRecord learner;
    Midi::PitchTableRing pitchTables;

    std::atomic<float> meter { 0.0f };        // peak of the left channel, a gain; written: audio, read: GUI
    std::atomic<int> numMeterListeners { 0 }; // the meter is worked out while there are any; written: GUI

    bool snap = true; // edits keep to the grid; thread: message

private:
    void followSwing();

    Parameters::ChangeWatcher swingWatcher;
};
} // namespace Zn::Audio::Plugins::Vornel
