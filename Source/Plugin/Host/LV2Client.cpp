// JUCE's LV2 client, with a transport that goes on between the host's messages: JUCE forgets the position at the
// start of every block and knows neither bars nor their beats. Its client is compiled here, into this file, so that
// an instance with a clock of its own can derive from JUCE's; whoever holds JUCE's instance, as the editor does,
// holds ours.

#define JUCE_CORE_INCLUDE_NATIVE_HEADERS 1 // JUCE's client needs both ahead of any other header
#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1

#include "Plugin/Host/HostedProcessor.h"
#include "Plugin/Transport/LV2Clock.h"

#include <juce_audio_plugin_client/juce_audio_plugin_client.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace Zn::Audio
{
namespace
{
/** The processor that this thread made last: JUCE's instance keeps its own to itself. */
thread_local juce::AudioProcessor* newestProcessor = nullptr;

/** The build asks what the bundle shall say of the plug-in. That is no use of it, so the processor that answers leaves
    the folders of whoever builds alone.
*/
thread_local bool isDescribing = false;

template <typename Create>
std::unique_ptr<juce::AudioProcessor> makeProcessor (Create&& create)
{
    auto processor = isDescribing ? makeHostedProcessor (Plugins::Vornel::StartUp::empty) : create();
    newestProcessor = processor.get();
    return processor;
}
} // namespace
} // namespace Zn::Audio

#define createPluginFilterOfType(type)                                                                       \
    ::Zn::Audio::makeProcessor ([] { return createPluginFilterOfType (type); })
#define lv2_descriptor juce_lv2_descriptor
#include <juce_audio_plugin_client/juce_audio_plugin_client_LV2.cpp>
#undef lv2_descriptor
#undef createPluginFilterOfType

namespace Zn::Audio
{
namespace
{
namespace Client = juce::lv2_client;

/** Finds the host's transport messages in a sequence of events. Thread: audio. */
class LV2PositionReader
{
public:
    explicit LV2PositionReader (LV2_URID_Map map) : parser (map) {}

    std::optional<LV2Position> read (const LV2_Atom_Event& event) const noexcept
    {
        if (event.body.type != object && event.body.type != blank)
            return {};

        const auto& message = reinterpret_cast<const LV2_Atom_Object&> (event.body);

        if (message.body.otype != position)
            return {};

        return LV2Position { .frame = get (message, frame),
                             .speed = get (message, speed),
                             .bar = get (message, bar),
                             .barBeat = get (message, barBeat),
                             .beat = get (message, beat),
                             .beatsPerBar = get (message, beatsPerBar),
                             .beatUnit = get (message, beatUnit),
                             .beatsPerMinute = get (message, beatsPerMinute) };
    }

    bool isSequence (const LV2_Atom_Sequence& events) const noexcept { return events.atom.type == sequence; }

private:
    std::optional<double> get (const LV2_Atom_Object& message, LV2_URID key) const noexcept
    {
        const LV2_Atom* atom = nullptr;
        LV2_Atom_Object_Query query[] = { { key, &atom }, LV2_ATOM_OBJECT_QUERY_END };
        lv2_atom_object_query (&message, query);

        if (atom != nullptr)
            if (const auto value = parser.parseNumericAtom<double> (atom))
                return *value;

        return {};
    }

    juce::lv2_shared::NumericAtomParser parser;
    const LV2_URID sequence = parser.map (LV2_ATOM__Sequence);
    const LV2_URID object = parser.map (LV2_ATOM__Object);
    const LV2_URID blank = parser.map (LV2_ATOM__Blank);
    const LV2_URID position = parser.map (LV2_TIME__Position);
    const LV2_URID frame = parser.map (LV2_TIME__frame);
    const LV2_URID speed = parser.map (LV2_TIME__speed);
    const LV2_URID bar = parser.map (LV2_TIME__bar);
    const LV2_URID barBeat = parser.map (LV2_TIME__barBeat);
    const LV2_URID beat = parser.map (LV2_TIME__beat);
    const LV2_URID beatsPerBar = parser.map (LV2_TIME__beatsPerBar);
    const LV2_URID beatUnit = parser.map (LV2_TIME__beatUnit);
    const LV2_URID beatsPerMinute = parser.map (LV2_TIME__beatsPerMinute);
};

/** JUCE's plug-in instance, whose processor asks the clock in here where the song is. */
class LV2Instance : public Client::LV2PluginInstance, private juce::AudioPlayHead
{
public:
    LV2Instance (double sampleRate, std::int64_t maxBlockSize, const char* bundlePath, LV2_URID_Map map)
        : LV2PluginInstance (sampleRate, maxBlockSize, bundlePath, map)
        , processor (*newestProcessor)
        , reader (map)
    {
        clock.prepare (sampleRate);
        processor.setPlayHead (this);
    }

    ~LV2Instance() override { processor.setPlayHead (nullptr); }

    void connectPort (std::uint32_t port, void* data)
    {
        if (static_cast<int> (port) == ports.getPortIndexFor (Client::PortKind::seqInput))
            events = static_cast<const LV2_Atom_Sequence*> (data);

        connect (port, data);
    }

    /** The host will not tell which keys are lifted meanwhile. */
    void stop() { processor.releaseResources(); }

    /** Thread: audio. */
    void runBlock (std::uint32_t numSamples)
    {
        readTransport (static_cast<int> (numSamples));
        run (numSamples);
        clock.advance (static_cast<int> (numSamples));
    }

private:
    static int sampleInBlock (const LV2_Atom_Event& event, int numSamples) noexcept
    {
        return static_cast<int> (
            std::clamp (event.time.frames, std::int64_t { 0 }, std::int64_t { numSamples }));
    }

    void readTransport (int numSamples) noexcept
    {
        if (events == nullptr || ! reader.isSequence (*events))
            return;

        for (const auto* event :
             juce::lv2_shared::SequenceIterator { juce::lv2_shared::SequenceWithSize { events } })
            if (const auto message = reader.read (*event))
                clock.receive (*message, sampleInBlock (*event, numSamples));
    }

    juce::Optional<PositionInfo> getPosition() const override { return clock.getPosition(); }

    juce::AudioProcessor& processor; // the base class owns it
    const Client::PortIndices ports { processor.getTotalNumInputChannels(),
                                      processor.getTotalNumOutputChannels() };
    const LV2PositionReader reader;
    const LV2_Atom_Sequence* events = nullptr;
    LV2Clock clock;
};

std::optional<std::int64_t> maxBlockLengthOf (const LV2_Feature* const* features, LV2_URID_Map map)
{
    const auto* options =
        Client::findMatchingFeatureData<const LV2_Options_Option*> (features, LV2_OPTIONS__options);

    if (options == nullptr)
        return {};

    const juce::lv2_shared::NumericAtomParser parser { map };
    const auto* option = Client::findMatchingOption (options, parser.map (LV2_BUF_SIZE__maxBlockLength));
    const auto length = parser.parseNumericOption<std::int64_t> (option);
    return length.hasValue() ? std::optional { *length } : std::nullopt;
}

/** No instance for a host that does not tell what JUCE's instance must know. */
LV2_Handle instantiate (const LV2_Descriptor*,
                        double sampleRate,
                        const char* bundlePath,
                        const LV2_Feature* const* features)
{
    const auto* map = Client::findMatchingFeatureData<const LV2_URID_Map*> (features, LV2_URID__map);
    const auto maxBlockLength = map != nullptr ? maxBlockLengthOf (features, *map) : std::nullopt;

    if (! maxBlockLength || ! Client::hasFeature (features, LV2_BUF_SIZE__boundedBlockLength))
        return nullptr;

    auto instance = std::make_unique<LV2Instance> (sampleRate, *maxBlockLength, bundlePath, *map);
    return static_cast<Client::LV2PluginInstance*> (instance.release()); // JUCE's descriptor deletes it
}

LV2Instance& instanceOf (LV2_Handle handle) noexcept
{
    return static_cast<LV2Instance&> (*static_cast<Client::LV2PluginInstance*> (handle));
}

/** Writes the bundle's descriptions beside the library. 0 if it could. */
int describe (const char* libraryPath)
{
    const juce::ScopedValueSetter<bool> describing (isDescribing, true);
    return Client::RecallFeature().doRecall (libraryPath);
}

const void* extensionData (const char* uri)
{
    static constexpr struct
    {
        int (*doRecall) (const char* libraryPath);
    } description { describe };

    if (std::string_view (uri) == JUCE_TURTLE_RECALL_URI)
        return &description;

    return Client::juce_lv2_descriptor (0)->extension_data (uri);
}

LV2_Descriptor makeDescriptor()
{
    auto descriptor = *Client::juce_lv2_descriptor (0);
    descriptor.instantiate = instantiate;
    descriptor.extension_data = extensionData;
    descriptor.connect_port = [] (LV2_Handle handle, std::uint32_t port, void* data) {
        instanceOf (handle).connectPort (port, data);
    };
    descriptor.deactivate = [] (LV2_Handle handle) { instanceOf (handle).stop(); };
    descriptor.run = [] (LV2_Handle handle, std::uint32_t numSamples) {
        instanceOf (handle).runBlock (numSamples);
    };
    return descriptor;
}
} // namespace
} // namespace Zn::Audio

LV2_SYMBOL_EXPORT const LV2_Descriptor* lv2_descriptor (std::uint32_t index)
{
    static const auto descriptor = Zn::Audio::makeDescriptor();
    return index == 0 ? &descriptor : nullptr;
}
