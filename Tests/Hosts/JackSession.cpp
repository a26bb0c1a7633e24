#include "Hosts/JackSession.h"

#include <jack/jack.h>
#include <jack/midiport.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <thread>

namespace Zn::Tests
{
namespace
{
using namespace std::chrono_literals;

constexpr auto patience = 10s; // for what JACK answers at its own time
constexpr auto patienceForASong = 20s;
constexpr auto periodsAfterTheKeys = 200;
constexpr auto periodsToTrust = 20;
constexpr auto mostEvents = 100000;
constexpr jack_midi_data_t keys[] = { 60, 64, 67 };

constexpr jack_midi_data_t markController = 20;
constexpr auto secondsPerMinute = 60.0;
constexpr auto beatsPerBar = 4;
constexpr auto ticksPerBeat = 1920;

template <typename Condition>
void waitFor (const char* what, std::chrono::seconds limit, Condition&& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;

    while (! condition())
    {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error (std::string ("waited in vain for ") + what);

        std::this_thread::sleep_for (5ms);
    }
}

void check (const char* what, bool isDone)
{
    if (! isDone)
        throw std::runtime_error (std::string ("JACK does not ") + what);
}

struct CloseClient
{
    void operator() (jack_client_t* client) const noexcept { jack_client_close (client); }
};

using Client = std::unique_ptr<jack_client_t, CloseClient>;

Client openClient (const std::string& name)
{
    Client client { jack_client_open (name.c_str(), JackNoStartServer, nullptr) };
    check ("take a client", client != nullptr);
    return client;
}

/** Empty until the program has a MIDI port of that direction. */
std::string midiPortOf (jack_client_t& client, const std::string& program, unsigned long direction)
{
    const std::unique_ptr<const char*, decltype (&jack_free)> ports {
        jack_get_ports (&client, ("^" + program + ":").c_str(), JACK_DEFAULT_MIDI_TYPE, direction),
        jack_free
    };

    return ports != nullptr ? *ports.get() : std::string {};
}
} // namespace

double JackTempoMap::quartersAt (double otherFrame, double sampleRate) const noexcept
{
    return quarters + (otherFrame - frame) * tempo / (secondsPerMinute * sampleRate);
}

double JackTempoMap::frameOf (double otherQuarters, double sampleRate) const noexcept
{
    return frame + (otherQuarters - quarters) * secondsPerMinute * sampleRate / tempo;
}

void JackTempoMap::fillInBars (jack_position_t& position, double sampleRate) const noexcept
{
    const auto place = quartersAt (static_cast<double> (position.frame), sampleRate);
    const auto beats = std::floor (place);
    const auto bars = std::floor (beats / beatsPerBar);

    position.valid = JackPositionBBT;
    position.bar = static_cast<std::int32_t> (bars) + 1;
    position.beat = static_cast<std::int32_t> (beats - bars * beatsPerBar) + 1;
    position.tick = static_cast<std::int32_t> ((place - beats) * ticksPerBeat);
    position.bar_start_tick = bars * beatsPerBar * ticksPerBeat;
    position.beats_per_bar = beatsPerBar;
    position.beat_type = 4;
    position.ticks_per_beat = ticksPerBeat;
    position.beats_per_minute = tempo;
}

/** The two clients' callbacks run one after the other, with the program's between them. */
struct JackSession::Implementation : private Conductor
{
    explicit Implementation (const std::string& program)
        : keysClient (openClient (program + "-keys")), earsClient (openClient (program + "-ears"))
    {
        jack_set_process_callback (keysClient.get(), playKeys, this);
        jack_set_process_callback (earsClient.get(), hear, this);
        jack_set_freewheel_callback (keysClient.get(), freewheelChanged, this);
        jack_on_shutdown (keysClient.get(), serverEnded, this);

        check ("activate the keys", jack_activate (keysClient.get()) == 0);
        check ("activate the ears", jack_activate (earsClient.get()) == 0);

        connect (program);

        check ("freewheel", jack_set_freewheel (keysClient.get(), 1) == 0);
        waitFor ("JACK to freewheel", patience, [this] { return isFreewheeling.load(); });
    }

    ~Implementation() override
    {
        if (! hasServerEnded)
        {
            jack_transport_stop (keysClient.get());
            jack_set_freewheel (keysClient.get(), 0);
        }
    }

    Implementation (const Implementation&) = delete;
    Implementation& operator= (const Implementation&) = delete;

    void connect (const std::string& program)
    {
        std::string input, output;

        waitFor ("the program's MIDI ports", patience, [&] {
            input = midiPortOf (*keysClient, program, JackPortIsInput);
            output = midiPortOf (*keysClient, program, JackPortIsOutput);
            return ! input.empty() && ! output.empty();
        });

        // Ports appear before their program is active, and cannot be connected until then.
        waitFor ("connected ports", patience, [&] {
            return connect (jack_port_name (keysPort), input.c_str())
                   && connect (output.c_str(), jack_port_name (earsPort));
        });
    }

    bool connect (const char* source, const char* destination) const
    {
        const auto result = jack_connect (keysClient.get(), source, destination);
        return result == 0 || result == EEXIST;
    }

    JackRecording play (const JackSong& songToPlay)
    {
        song = &songToPlay;
        tempoMap = song->tempoMap.value_or (JackTempoMap {});
        recording = {};
        recording.onsets.reserve (mostEvents);
        period = -1;
        isFinished = false;

        if (song->tempoMap)
            check ("take a timebase", jack_set_timebase_callback (keysClient.get(), 0, tellBars, this) == 0);

        moveToStart();
        waitFor ("answers within the period", patience, [&] { return periodsInOrder > periodsToTrust; });
        isPlaying = true;

        waitFor ("the end of the song", patienceForASong, [&] { return isFinished || hasServerEnded; });
        check ("live through the song", ! hasServerEnded);
        check ("keep the programs in order", periodsInOrder >= period);
        return recording;
    }

    void moveToStart()
    {
        constexpr auto looksAtOneRequest = 100; // beside others it may get lost
        const auto start = static_cast<jack_nframes_t> (std::llround (tempoMap.frame));
        auto numLooks = 0;

        waitFor ("the song's start", patience, [&] {
            if (numLooks++ % looksAtOneRequest == 0)
                check ("locate", jack_transport_locate (keysClient.get(), start) == 0);

            jack_position_t position;
            return jack_transport_query (keysClient.get(), &position) == JackTransportStopped
                   && position.frame == start;
        });
    }

    bool isRolling() const noexcept override { return rolling; }
    void pressKeys() noexcept override { arePressed = true; }
    void start() noexcept override { jack_transport_start (keysClient.get()); }
    void stop() noexcept override { jack_transport_stop (keysClient.get()); }

    void locate (double quarters) noexcept override
    {
        const auto goal = std::llround (tempoMap.frameOf (quarters, sampleRate));
        jack_transport_locate (keysClient.get(), static_cast<jack_nframes_t> (goal));
    }

    void changeTempo (double tempo) noexcept override
    {
        const auto next = frame + static_cast<double> (jack_get_buffer_size (keysClient.get()));
        tempoMap = { next, tempoMap.quartersAt (next, sampleRate), tempo };
    }

    /** Each period has a mark, a controller that the program lets through. It tells the ears that they hear the
        answer to this period's keys: under load JACK may leave a program out, or start with it too late.
    */
    void mark (void* buffer) noexcept
    {
        currentMark = static_cast<jack_midi_data_t> ((currentMark + 1) % 128);
        const jack_midi_data_t message[] = { 0xb0, markController, currentMark };
        jack_midi_event_write (buffer, 0, message, sizeof (message));
    }

    bool isMark (const jack_midi_event_t& event) const noexcept
    {
        return event.size == 3 && event.buffer[0] == 0xb0 && event.buffer[1] == markController;
    }

    void conduct (void* buffer) noexcept
    {
        jack_position_t position;
        rolling = jack_transport_query (keysClient.get(), &position) == JackTransportRolling;
        frame = static_cast<double> (position.frame);
        heardMap = tempoMap;
        ++period;

        const auto werePressed = arePressed;

        if (period < song->numPeriods)
            song->script (*this, period);
        else
            arePressed = false;

        for (auto key : keys)
            if (arePressed != werePressed)
                send (buffer, key);
    }

    void send (void* buffer, jack_midi_data_t key) const noexcept
    {
        const jack_midi_data_t message[] = { static_cast<jack_midi_data_t> (arePressed ? 0x90 : 0x80),
                                             key,
                                             100 };
        jack_midi_event_write (buffer, 0, message, sizeof (message));
    }

    void record (const jack_midi_event_t& event, jack_nframes_t numFrames)
    {
        const auto offset = static_cast<int> (event.time);
        const auto sample = period * static_cast<int> (numFrames) + offset;
        recording.events.addEvent (event.buffer, static_cast<int> (event.size), sample);

        if (const juce::MidiMessage message (event.buffer, static_cast<int> (event.size)); message.isNoteOn())
            recording.onsets.push_back ({ .sample = sample,
                                          .pitch = message.getNoteNumber(),
                                          .isRolling = rolling,
                                          .quarters = heardMap.quartersAt (frame + offset, sampleRate) });
    }

    static int playKeys (jack_nframes_t numFrames, void* context)
    {
        auto& self = *static_cast<Implementation*> (context);
        auto* buffer = jack_port_get_buffer (self.keysPort, numFrames);
        jack_midi_clear_buffer (buffer);

        self.mark (buffer);

        if (self.isPlaying)
            self.conduct (buffer);

        return 0;
    }

    static int hear (jack_nframes_t numFrames, void* context)
    {
        auto& self = *static_cast<Implementation*> (context);
        const auto isRecording = self.isPlaying && self.period >= 0;
        self.listen (numFrames, isRecording);

        if (isRecording && self.period == self.song->numPeriods + periodsAfterTheKeys)
        {
            self.isPlaying = false;
            self.isFinished = true;
        }

        return 0;
    }

    void listen (jack_nframes_t numFrames, bool isRecording)
    {
        auto* buffer = jack_port_get_buffer (earsPort, numFrames);
        auto hasMark = false;
        jack_midi_event_t event;

        for (std::uint32_t i = 0; i < jack_midi_get_event_count (buffer); ++i)
        {
            jack_midi_event_get (&event, buffer, i);

            if (isMark (event))
                hasMark = event.buffer[2] == currentMark;
            else if (isRecording)
                record (event, numFrames);
        }

        periodsInOrder = hasMark ? periodsInOrder + 1 : 0;
    }

    static void
    tellBars (jack_transport_state_t, jack_nframes_t, jack_position_t* position, int, void* context)
    {
        const auto& self = *static_cast<Implementation*> (context);
        self.tempoMap.fillInBars (*position, self.sampleRate);
    }

    static void freewheelChanged (int starting, void* context)
    {
        static_cast<Implementation*> (context)->isFreewheeling = starting != 0;
    }

    static void serverEnded (void* context) { static_cast<Implementation*> (context)->hasServerEnded = true; }

    std::atomic<bool> isPlaying { false }, isFinished { false };
    std::atomic<int> periodsInOrder { 0 };
    std::atomic<bool> isFreewheeling { false }, hasServerEnded { false };

    // Touched by the callbacks alone while a song plays.
    const JackSong* song = nullptr;
    JackTempoMap tempoMap, heardMap; // for the next period, and in this one
    JackRecording recording;
    int period = -1;
    jack_midi_data_t currentMark = 0;
    double frame = 0.0; // of the transport, at the period's start
    bool rolling = false, arePressed = false;

    // Closed before anything that their callbacks touch goes.
    const Client keysClient, earsClient;
    jack_port_t* const keysPort =
        jack_port_register (keysClient.get(), "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    jack_port_t* const earsPort =
        jack_port_register (earsClient.get(), "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    const double sampleRate = jack_get_sample_rate (keysClient.get());
};

JackSession::JackSession (const std::string& program)
    : implementation (std::make_unique<Implementation> (program))
{}

JackSession::~JackSession() = default;

JackRecording JackSession::play (const JackSong& song)
{
    return implementation->play (song);
}

double JackSession::getSampleRate() const noexcept
{
    return implementation->sampleRate;
}
} // namespace Zn::Tests
