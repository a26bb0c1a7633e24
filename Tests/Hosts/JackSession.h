#pragma once

#include <jack/transport.h>
#include <juce_audio_basics/juce_audio_basics.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Zn::Tests
{
/** Where a song's quarter notes lie on the frames of JACK's transport, from one known place on. */
struct JackTempoMap
{
    double frame = 0.0, quarters = 0.0; // the known place
    double tempo = 120.0;               // quarter notes a minute

    double quartersAt (double otherFrame, double sampleRate) const noexcept;
    double frameOf (double otherQuarters, double sampleRate) const noexcept;

    /** Adds bar, beat and tick in 4/4 to a position that has its frame, as programs with a timebase do. */
    void fillInBars (jack_position_t& position, double sampleRate) const noexcept;
};

/** What a song's script may do at the start of each JACK period. The transport obeys one period later. */
class Conductor
{
public:
    virtual ~Conductor() = default;

    virtual bool isRolling() const noexcept = 0;
    virtual void pressKeys() noexcept = 0; // once; they are released at the song's end
    virtual void start() noexcept = 0;
    virtual void stop() noexcept = 0;
    virtual void locate (double quarters) noexcept = 0;
    virtual void changeTempo (double tempo) noexcept = 0;
};

/** A piece of music for a program on JACK: a chord of C, E and G under a transport that the script moves.

    The transport stands at the known place of the tempo map when the song begins.
*/
struct JackSong
{
    std::function<void (Conductor&, int period)> script;
    int numPeriods = 0;
    std::optional<JackTempoMap> tempoMap {}; // without one JACK knows frames only, and no tempo
};

/** What came back. */
struct JackRecording
{
    struct Onset
    {
        int sample = 0; // from the first period on
        int pitch = 0;
        bool isRolling = false; // whether the song was, and at which quarter note
        double quarters = 0.0;
    };

    std::vector<Onset> onsets;
    juce::MidiBuffer events; // by sample from the first period on, until well after the keys' release
};

/** Plays songs to a program that has one MIDI input and one output on JACK, and hears what it answers.

    The server freewheels meanwhile: periods follow each other as fast as all programs are through with them,
    so a busy machine costs none, and minutes of music take seconds. Keys and ears are two clients, so that an
    answer is heard in the period of its key. What JACK refuses throws, and so does a song of which a period
    was lost.
*/
class JackSession
{
public:
    /** Waits until the program's ports are there. */
    explicit JackSession (const std::string& program);
    ~JackSession();

    JackRecording play (const JackSong& song);

    double getSampleRate() const noexcept;

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation;
};
} // namespace Zn::Tests
