#pragma once

#include "Midi/Inbox.h"
#include "Midi/PitchTableRing.h"
#include "Parameters/ChangeWatcher.h"
#include "Plugin/Vornel/BrushParam.h"
#include "Plugin/Vornel/ConnectedIntParam.h"
#include "Plugin/Vornel/LearnMap.h"
#include "Plugin/Vornel/MidiSettings.h"
#include "Plugin/Vornel/OctaveRange.h"
#include "Plugin/Vornel/Params.h"
#include "Plugin/Vornel/SnapParam.h"
#include "Sequencer/BPMParameter.h"
#include "Sequencer/LiveSlots.h"
#include "Sequencer/PatternController.h"
#include "Sequencer/PlayHead.h"

#include <atomic>
#include <memory>
#include <optional>

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

    /** What a preset file holds, and the host's project and undo with it: `Params`, then `Patterns`. Loading
        rebuilds the patterns once, with the swing that was loaded, also when it throws.
    */
    void reflect (Reflector& r);

    /** The columns of a slot's drawing, for the editor. */
    ConnectedIntParam gridOf (std::size_t slotIndex);

    /** Takes in changes of parameters that wait for the timer, so that a render that begins now has them. Does nothing on
        another thread than the message thread.
    */
    void followChanges();

    /** Stops answering changes of parameters, so that nothing of the message thread's is under way in here. To be
        called before the state or its listeners are destroyed. Thread: any.
    */
    void stopFollowing() noexcept;

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
    LearnMap learnMap { *this };
    Midi::PitchTableRing pitchTables;

    std::atomic<float> meter { 0.0f };        // RMS of the left channel, a gain; written: audio, read: GUI
    std::atomic<int> numMeterListeners { 0 }; // the meter is worked out while there are any; written: GUI

    bool snap = true;           // edits keep to the grid; thread: message
    Events::Value<Brush> brush; // thread: message

    /** A preset file saved without them leaves the sound alone when it is loaded. */
    bool savesParams = true; // thread: message

    ConnectedIntParam slotParam;     // the slot that is wanted
    ConnectedIntParam lowestOctave;  // of the octave range
    ConnectedIntParam highestOctave; // of the octave range
    SnapParam snapParam { snap };
    BrushParam brushParam { brush };

private:
    void reflectParams (Reflector& r);
    void reflectPatterns (Reflector& r);
    void reflectSequencer (Reflector& r);
    void reflectTransport (Reflector& r);
    void followSwing();

    /** Kept from old files, which say more than patterns need; without effect. */
    struct Legacy
    {
        Sequencer::MusicalTime time;
        bool fitLoop = false;
    };

    Legacy legacy;

    std::optional<Parameters::ChangeWatcher> swingWatcher;
};
} // namespace Zn::Audio::Plugins::Vornel
