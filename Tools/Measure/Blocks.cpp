#include "Markdown.h"
#include "Sections.h"
#include "Spectrum.h"

#include "Plugin/Vornel/Processor.h"
#include "Support/WalkPattern.h"

#include <algorithm>
#include <cmath>

namespace Zn::Measure
{
namespace
{
using Audio::Plugins::Vornel::Processor;

constexpr int seconds = 4;
constexpr int numSamples = seconds * 48000;

struct Song : juce::AudioPlayHead
{
    juce::Optional<PositionInfo> getPosition() const override
    {
        constexpr auto tempo = 120.0;
        PositionInfo position;
        position.setIsPlaying (true);
        position.setBpm (tempo);
        position.setTimeInSamples (sample);
        position.setPpqPosition (double (sample) * tempo / (60.0 * rate));
        return position;
    }

    juce::int64 sample = 0;
};

/** What is played: settings that differ from the defaults, and a key or wheel at some samples. */
struct Scene
{
    const char* title;
    std::vector<std::pair<const char*, const char*>> settings;
    bool bends = false;
};

void set (Processor& processor, const char* identifier, const char* text)
{
    for (auto* parameter : processor.getParameters())
        if (auto* hosted = dynamic_cast<juce::HostedAudioProcessorParameter*> (parameter);
            hosted != nullptr && hosted->getParameterID() == identifier)
            hosted->setValueNotifyingHost (hosted->getValueForText (text));
}

juce::MidiBuffer eventsOf (const Scene& scene)
{
    juce::MidiBuffer events;
    constexpr auto velocity = juce::uint8 (100);

    for (const auto note : { 48, 55, 64 })
    {
        events.addEvent (juce::MidiMessage::noteOn (1, note, velocity), 1000 + note);
        events.addEvent (juce::MidiMessage::noteOff (1, note), numSamples / 2 + note);
    }

    if (scene.bends)
        events.addEvent (juce::MidiMessage::pitchWheel (1, 10000), numSamples / 4 + 7);

    return events;
}

juce::AudioBuffer<float> render (const Scene& scene, int blockSize)
{
    Song song;
    Processor processor { Audio::Plugins::Vornel::StartUp::empty };
    Tests::drawWalk (processor.getState().patterns);
    processor.setSeed (1);
    processor.setPlayHead (&song);

    for (const auto& [identifier, text] : scene.settings)
        set (processor, identifier, text);

    processor.prepareToPlay (rate, blockSize);

    const auto events = eventsOf (scene);
    juce::AudioBuffer<float> sound (2, numSamples);
    juce::MidiBuffer midi;

    for (auto start = 0; start < numSamples; start += blockSize)
    {
        const auto length = std::min (blockSize, numSamples - start);
        juce::AudioBuffer<float> block (sound.getArrayOfWritePointers(), 2, start, length);
        midi.clear();
        midi.addEvents (events, start, length, -start);
        song.sample = start;
        processor.processBlock (block, midi);
    }

    processor.setPlayHead (nullptr);
    return sound;
}

/** The largest difference of any sample when the other is taken so many samples later. */
double
difference (const juce::AudioBuffer<float>& sound, const juce::AudioBuffer<float>& other, int samplesLater)
{
    juce::AudioBuffer<float> rest (2, numSamples - samplesLater);

    for (auto channel = 0; channel < 2; ++channel)
    {
        rest.copyFrom (channel, 0, other, channel, samplesLater, rest.getNumSamples());
        rest.addFrom (channel, 0, sound, channel, 0, rest.getNumSamples(), -1.0f);
    }

    return double (rest.getMagnitude (0, rest.getNumSamples()));
}

juce::String differenceOf (const juce::AudioBuffer<float>& sound, const juce::AudioBuffer<float>& other)
{
    const auto inPlace = difference (sound, other, 0), late = difference (sound, other, 1);
    return late < inPlace ? decibels (late) + ", 1 sample late" : decibels (inPlace);
}

juce::String rowOf (const Scene& scene)
{
    const auto sound = render (scene, 64);

    return row ({ scene.title,
                  decibels (double (sound.getMagnitude (0, numSamples)), 1),
                  differenceOf (sound, render (scene, 1)),
                  differenceOf (sound, render (scene, 64)),
                  differenceOf (sound, render (scene, 4096)) });
}

constexpr auto text = R"(
## Size of blocks

The whole plug-in with its fastest instructions, 4 s at 120 quarters a minute, three keys held for 2 s: the largest
difference of any sample, in dBFS, to the same with blocks of 64 samples. An oscillator's volume and the time of the
delay step from block to block when they are moved; here nothing is moved but keys and wheel. What may differ is the
sample at which a note of the pattern starts: in blocks of 1 it is the next.

)";
} // namespace

juce::String measureBlocks()
{
    auto section = text + tableHead ({ "What plays", "peak dBFS", "blocks of 1", "64 again", "4096" });

    for (const auto& scene : std::initializer_list<Scene> {
             { "keys alone", { { "Arp-Active", "Off" } } },
             { "keys alone, pitch bend", { { "Arp-Active", "Off" } }, true },
             { "pattern", {} },
             { "pattern, unison, short envelope",
               { { "Unison-Voice", "2" },
                 { "ADSR-Decay", "0.1" },
                 { "ADSR-Sustain", "0.3" },
                 { "ADSR-Release", "0.4" } } },
             { "pattern, swing", { { "Swing", "50%" } } },
             { "pattern, echo",
               { { "Delay-Mix", "0.4" }, { "Delay-Time-Sync", "1/8D" }, { "Delay-Feedback", "0.4" } } } })
        section << rowOf (scene);

    return section;
}
} // namespace Zn::Measure
