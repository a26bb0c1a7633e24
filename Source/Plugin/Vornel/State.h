#pragma once

#include "Foundation/Events/Listener.h"
#include "Midi/Inbox.h"
#include "Midi/PitchTableRing.h"
#include "Parameters/ChangeWatcher.h"
#include "Plugin/Bases/StateBase.h"
#include "Plugin/Vornel/BrushParam.h"
#include "Plugin/Vornel/ConnectedIntParam.h"
#include "Plugin/Vornel/LearnMap.h"
#include "Plugin/Vornel/MidiSettings.h"
#include "Plugin/Vornel/OctaveRange.h"
#include "Plugin/Vornel/Params.h"
#include "Plugin/Vornel/ScreenState.h"
#include "Plugin/Vornel/SnapParam.h"
#include "Plugin/Vornel/SynthPreset.h"
#include "Sequencer/BPMParameter.h"
#include "Sequencer/LiveSlots.h"
#include "Sequencer/MidiPlayer/ChoiceParam.h"
#include "Sequencer/PatternController.h"
#include "Sequencer/PlayHead.h"

#include <atomic>
#include <memory>
#include <optional>

namespace Zn::Audio::Plugins::Vornel
{
/** Everything that the plug-in remembers, and the places where the editor and the audio thread meet. It is the library
    of pattern presets, too.

    Made and changed on the message thread. The audio thread reads the parameters and the atomics, and owns the other
    end of the inbox, the learner and the pitch tables.
*/
class State : public Plugin::StateBase
{
public:
    State();

    Version getMinimumVersion() const override { return { 0, 5, 3 }; }
    juce::File getDefaultPresetFile() const override;

    /** Makes both libraries ready and loads the default preset of each. */
    void init() override;

    Presets::Screen& getScreen() noexcept override { return screen; }

    /** The columns of a slot's drawing, for the editor. */
    ConnectedIntParam gridOf (std::size_t slotIndex);

    /** Takes in changes of parameters that wait for the timer, so that a render that begins now has them. Does nothing on
        another thread than the message thread.
    */
    void followChanges();

    /** Answers changes from now on, on the message thread: of the swing, of what is saved, of the project. Until then
        the state is its maker's alone, on whatever thread. Called once, when the host knows its parameters.
    */
    void startFollowing();

    /** What parameters have changed so far was done by a load, and is no edit. */
    void forgetChanges() noexcept;

    /** Stops answering changes, so that nothing of the message thread's is under way in here. To be called before the
        state or its listeners are destroyed. Thread: any.
    */
    void stopFollowing() noexcept;

    /** Reads what steers a segment. Thread: audio. */
    MidiSettings readMidiSettings() const noexcept;

    /** Has the MIDI player's notes take the place of the keys, or no longer. Its chords are written around C and are
        moved by the key, so key mode goes with it. Thread: message.
    */
    void setPlayerActive (bool shouldBeHeard);

    /** Ends all that sounds, here and in the instruments behind: lets go of every key and of the pedal, whatever they
        have been learned for. Thread: message.
    */
    void panic() noexcept
    {
        inbox.clear(); // first, or its keys would come down again behind the panic
        panicAsked.store (true);
    }

    /** Whether there was a panic since the last call. Thread: audio. */
    bool takePanic() noexcept { return panicAsked.exchange (false); }

    Params params;
    SynthPreset synthPreset { params.sound };

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
    Midi::PitchTableRing lastChords; // as pitchTables, but stays when the keys are lifted

    Sequencer::MidiPlayer::Controller player;
    Sequencer::MidiPlayer::ChoiceParam midiFile { player };
    ScreenState screen;

    std::atomic<float> meter { 0.0f };        // RMS of the left channel, a gain; written: audio, read: GUI
    std::atomic<int> numMeterListeners { 0 }; // the meter is worked out while there are any; written: GUI

    bool snap = true;           // edits keep to the grid; thread: message
    Events::Value<Brush> brush; // thread: message

    /** A preset file saved without them leaves the sound alone when it is loaded. */
    bool savesParams = true; // thread: message

    /** What the host's project holds of us is another than before, and not by a parameter that the host knows.
        Thread: message.
    */
    Events::Broadcaster projectChanged;

    ConnectedIntParam slotParam;     // the slot that is wanted
    ConnectedIntParam lowestOctave;  // of the octave range
    ConnectedIntParam highestOctave; // of the octave range
    SnapParam snapParam { snap, [this] { projectChanged.callListeners(); } };
    BrushParam brushParam { brush };

protected:
    const Binaries::Library& getArchives() const override;

    /** The key `Params`. */
    void reflectExtra (Reflector& r) override;

    /** The key `Patterns`, and what only the host's project and undo hold. Loading rebuilds the patterns once, with the
        swing that was loaded, also when it throws.
    */
    void reflectMembers (Reflector& r) override;

private:
    void reflectDocument (Reflector& r);
    void reflectPatterns (Reflector& r);
    void reflectSequencer (Reflector& r);
    void reflectSlots (Reflector& r);
    void reflectOctaves (Reflector& r);
    void followSwing();
    void answerPatternChange();
    void settleAfterLoad (const ReflectorContext& context);
    ConnectedIntParam::Connection wantedSlot();
    ConnectedIntParam::Connection connectionTo (std::atomic<int>& value);

    /** Kept from old files, which say more than patterns need; without effect. */
    struct Legacy
    {
        Sequencer::MusicalTime time;
        bool fitLoop = false;
    };

    Legacy legacy;

    std::atomic<bool> panicAsked { false }; // set: GUI, cleared: audio

    bool patternsChangeByHand = true; // false while they follow a load or the swing
    Events::Listener patternListener { patterns.getAudioBroadcaster(), [this] { answerPatternChange(); } };

    std::optional<Parameters::ChangeWatcher> swingWatcher, presetWatcher, projectWatcher;
};
} // namespace Zn::Audio::Plugins::Vornel
