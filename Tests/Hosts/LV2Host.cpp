#include "Hosts/LV2Host.h"

#include "Support/RealTimeGuard.h"

#include <lv2/atom/forge.h>
#include <lv2/atom/util.h>
#include <lv2/buf-size/buf-size.h>
#include <lv2/core/lv2.h>
#include <lv2/midi/midi.h>
#include <lv2/options/options.h>
#include <lv2/state/state.h>
#include <lv2/time/time.h>
#include <lv2/urid/urid.h>

#include <dlfcn.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <stdexcept>

namespace Zn::Tests
{
namespace
{
constexpr auto portBytes = 1 << 16;

/** The plug-in's ports in their order: those of the audio, two in and two out or none, and then these. */
enum Port : std::uint32_t
{
    eventsIn,
    eventsOut,
    latency,
    freeWheeling,
    enabled
};

constexpr std::size_t numStereoPorts = 4, firstOutput = 2;

class Library
{
public:
    explicit Library (const std::string& path) : handle (::dlopen (path.c_str(), RTLD_NOW | RTLD_LOCAL))
    {
        if (handle == nullptr)
            throw std::runtime_error (::dlerror());
    }

    ~Library() { ::dlclose (handle); }

    Library (const Library&) = delete;
    Library& operator= (const Library&) = delete;

    const LV2_Descriptor& descriptor() const
    {
        using Function = const LV2_Descriptor* (*)(std::uint32_t);
        const auto function = reinterpret_cast<Function> (::dlsym (handle, "lv2_descriptor"));
        const auto* result = function != nullptr ? function (0) : nullptr;

        return result != nullptr ? *result : throw std::runtime_error ("no LV2 descriptor");
    }

private:
    void* handle;
};

class UridMap
{
public:
    LV2_URID operator[] (const char* uri)
    {
        return urids.try_emplace (uri, static_cast<LV2_URID> (urids.size() + 1)).first->second;
    }

    LV2_URID_Map feature()
    {
        return { this, [] (LV2_URID_Map_Handle handle, const char* uri) -> LV2_URID {
                    return (*static_cast<UridMap*> (handle))[uri];
                } };
    }

private:
    std::map<std::string, LV2_URID> urids;
};

/** Memory for a sequence of events, aligned as atoms are. */
struct EventPort
{
    std::array<std::uint64_t, portBytes / sizeof (std::uint64_t)> words {};

    LV2_Atom_Sequence& sequence() { return *reinterpret_cast<LV2_Atom_Sequence*> (words.data()); }
    std::uint8_t* bytes() { return reinterpret_cast<std::uint8_t*> (words.data()); }
};

struct SavedState
{
    LV2_URID key = 0, type = 0;
    std::uint32_t flags = 0;
    std::vector<char> value;
};
} // namespace

struct LV2Host::Implementation
{
    Implementation (const std::string& path, double sampleRate, int maxBlockSize, LV2Audio ports)
        : library (path)
        , descriptor (library.descriptor())
        , blockSize (maxBlockSize)
        , audio (ports == LV2Audio::stereo ? numStereoPorts : 0,
                 std::vector<float> (static_cast<std::size_t> (maxBlockSize)))
    {
        lv2_atom_forge_init (&forge, &map);

        instance = descriptor.instantiate (&descriptor, sampleRate, "", features.data());

        if (instance == nullptr)
            throw std::runtime_error ("no LV2 instance");

        for (std::uint32_t port = 0; port < audio.size(); ++port)
            descriptor.connect_port (instance, port, audio[port].data());

        const auto connect = [this] (Port port, void* data) {
            descriptor.connect_port (instance, static_cast<std::uint32_t> (audio.size()) + port, data);
        };

        connect (eventsIn, input.bytes());
        connect (eventsOut, output.bytes());
        connect (latency, &latencyValue);
        connect (freeWheeling, &freeWheelingValue);
        connect (enabled, &enabledValue);
        descriptor.activate (instance);
    }

    ~Implementation()
    {
        descriptor.deactivate (instance);
        descriptor.cleanup (instance);
    }

    Implementation (const Implementation&) = delete;
    Implementation& operator= (const Implementation&) = delete;

    const LV2_State_Interface& stateInterface() const
    {
        return *static_cast<const LV2_State_Interface*> (descriptor.extension_data (LV2_STATE__interface));
    }

    void write (const juce::MidiBuffer& midi, const std::vector<LV2Message>& messages)
    {
        lv2_atom_forge_set_buffer (&forge, input.bytes(), portBytes);
        LV2_Atom_Forge_Frame frame;
        lv2_atom_forge_sequence_head (&forge, &frame, 0);
        auto message = messages.begin();

        for (const auto event : midi)
        {
            for (; message != messages.end() && message->sample <= event.samplePosition; ++message)
                write (*message);

            lv2_atom_forge_frame_time (&forge, event.samplePosition);
            lv2_atom_forge_atom (&forge,
                                 static_cast<std::uint32_t> (event.numBytes),
                                 urids[LV2_MIDI__MidiEvent]);
            lv2_atom_forge_write (&forge, event.data, static_cast<std::uint32_t> (event.numBytes));
        }

        for (; message != messages.end(); ++message)
            write (*message);

        lv2_atom_forge_pop (&forge, &frame);
    }

    /** The types are those that the common hosts send. */
    void write (const LV2Message& message)
    {
        const auto& position = message.position;
        lv2_atom_forge_frame_time (&forge, message.sample);
        LV2_Atom_Forge_Frame frame;
        lv2_atom_forge_object (&forge, &frame, 0, urids[LV2_TIME__Position]);

        const auto add = [this] (const char* key, const std::optional<double>& value, auto forgeNumber) {
            if (value.has_value())
            {
                lv2_atom_forge_key (&forge, urids[key]);
                forgeNumber (*value);
            }
        };

        const auto asLong = [this] (double v) {
            lv2_atom_forge_long (&forge, static_cast<std::int64_t> (v));
        };
        const auto asInt = [this] (double v) { lv2_atom_forge_int (&forge, static_cast<std::int32_t> (v)); };
        const auto asFloat = [this] (double v) { lv2_atom_forge_float (&forge, static_cast<float> (v)); };
        const auto asDouble = [this] (double v) { lv2_atom_forge_double (&forge, v); };

        add (LV2_TIME__frame, position.frame, asLong);
        add (LV2_TIME__speed, position.speed, asFloat);
        add (LV2_TIME__barBeat, position.barBeat, asFloat);
        add (LV2_TIME__bar, position.bar, asLong);
        add (LV2_TIME__beat, position.beat, asDouble);
        add (LV2_TIME__beatUnit, position.beatUnit, asInt);
        add (LV2_TIME__beatsPerBar, position.beatsPerBar, asFloat);
        add (LV2_TIME__beatsPerMinute, position.beatsPerMinute, asFloat);
        lv2_atom_forge_pop (&forge, &frame);
    }

    juce::MidiBuffer read()
    {
        juce::MidiBuffer midi;

        LV2_ATOM_SEQUENCE_FOREACH (&output.sequence(), event)
        {
            if (event->body.type == urids[LV2_MIDI__MidiEvent])
                midi.addEvent (event + 1,
                               static_cast<int> (event->body.size),
                               static_cast<int> (event->time.frames));
        }

        return midi;
    }

    void write (int numSamples, const juce::MidiBuffer& midi, const std::vector<LV2Message>& messages)
    {
        if (numSamples > blockSize)
            throw std::invalid_argument ("a block longer than promised");

        write (midi, messages);

        // The size tells the plug-in how much it may write.
        output.sequence().atom = { portBytes - sizeof (LV2_Atom), urids[LV2_ATOM__Chunk] };
    }

    void run (int numSamples) { descriptor.run (instance, static_cast<std::uint32_t> (numSamples)); }

    UridMap urids;
    LV2_URID_Map map = urids.feature();
    Library library;
    const LV2_Descriptor& descriptor;

    const int blockSize;
    const std::array<LV2_Options_Option, 2> options { LV2_Options_Option {
                                                          LV2_OPTIONS_INSTANCE,
                                                          0,
                                                          urids[LV2_BUF_SIZE__maxBlockLength],
                                                          sizeof (int),
                                                          urids[LV2_ATOM__Int],
                                                          &blockSize },
                                                      LV2_Options_Option {} };
    const LV2_Feature mapFeature { LV2_URID__map, &map };
    const LV2_Feature optionsFeature { LV2_OPTIONS__options,
                                       const_cast<LV2_Options_Option*> (options.data()) };
    const LV2_Feature boundedFeature { LV2_BUF_SIZE__boundedBlockLength, nullptr };
    const std::array<const LV2_Feature*, 4> features {
        &mapFeature, &optionsFeature, &boundedFeature, nullptr
    };

    std::vector<std::vector<float>> audio; // by port
    EventPort input, output;
    LV2_Atom_Forge forge {};
    float latencyValue = -1.0f, freeWheelingValue = 0.0f, enabledValue = 1.0f;
    LV2_Handle instance = nullptr;
};

LV2Host::LV2Host (const std::string& library, double sampleRate, int maxBlockSize, LV2Audio ports)
    : implementation (std::make_unique<Implementation> (library, sampleRate, maxBlockSize, ports))
{}

LV2Host::~LV2Host() = default;

juce::MidiBuffer
LV2Host::run (int numSamples, const juce::MidiBuffer& midi, const std::vector<LV2Message>& messages)
{
    implementation->write (numSamples, midi, messages);
    implementation->run (numSamples);
    return implementation->read();
}

void LV2Host::setFreeWheeling (bool isFreeWheeling)
{
    implementation->freeWheelingValue = isFreeWheeling ? 1.0f : 0.0f;
}

int LV2Host::heapCallsOfRun (int numSamples, const std::vector<LV2Message>& messages)
{
    implementation->write (numSamples, {}, messages);

    const RealTimeGuard guard;
    implementation->run (numSamples);
    return guard.heapCalls();
}

const std::vector<float>& LV2Host::audioOutput (int channel) const
{
    static const std::vector<float> none;
    return implementation->audio.empty()
               ? none
               : implementation->audio[firstOutput + static_cast<std::size_t> (channel)];
}

float LV2Host::getLatency() const
{
    return implementation->latencyValue;
}

void LV2Host::setEnabled (bool shouldBeEnabled)
{
    implementation->enabledValue = shouldBeEnabled ? 1.0f : 0.0f;
}

juce::MemoryBlock LV2Host::save()
{
    std::vector<SavedState> saved;
    const auto store = [] (LV2_State_Handle handle,
                           std::uint32_t key,
                           const void* value,
                           std::size_t size,
                           std::uint32_t type,
                           std::uint32_t flags) -> LV2_State_Status {
        const auto* bytes = static_cast<const char*> (value);
        static_cast<std::vector<SavedState>*> (handle)->push_back (
            { key, type, flags, { bytes, bytes + size } });
        return LV2_STATE_SUCCESS;
    };

    implementation->stateInterface().save (implementation->instance,
                                           store,
                                           &saved,
                                           0,
                                           implementation->features.data());

    juce::MemoryBlock chunk;

    if (! saved.empty())
        chunk.fromBase64Encoding (juce::String::fromUTF8 (saved.front().value.data()));

    return chunk;
}

void LV2Host::restore (const juce::MemoryBlock& chunk)
{
    restore (chunk.toBase64Encoding().toStdString());
}

void LV2Host::restore (const std::string& text)
{
    // Asked for by the plug-in's own key, which is the only one that it saves under.
    auto state = std::pair { text, implementation->urids[LV2_ATOM__String] };
    const auto retrieve = [] (LV2_State_Handle handle,
                              std::uint32_t,
                              std::size_t* size,
                              std::uint32_t* type,
                              std::uint32_t* flags) -> const void* {
        const auto& [value, valueType] = *static_cast<decltype (state)*> (handle);
        *size = value.size() + 1;
        *type = valueType;
        *flags = LV2_STATE_IS_POD | LV2_STATE_IS_PORTABLE;
        return value.c_str();
    };

    implementation->stateInterface().restore (implementation->instance,
                                              retrieve,
                                              &state,
                                              0,
                                              implementation->features.data());
    save(); // what was loaded is taken in before it is saved
}
} // namespace Zn::Tests
