#include "Plugin/RandomState.h"

#include "Support/Documents.h"

#include <cmath>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using Resource = Sequencer::MidiPlayer::Resource;

Sequencer::TimedNote randomStep (juce::Random& random)
{
    Sequencer::TimedNote step;
    step.enabled = random.nextBool();
    step.time = { random.nextDouble(), random.nextDouble() };
    step.event.noteNum = random.nextInt (128);
    step.event.velocity = random.nextFloat();
    step.event.channel = 1 + random.nextInt (16);

    if (random.nextBool())
    {
        step.event.chance = random.nextFloat();
        step.event.spreadLow = -random.nextFloat();
        step.event.spreadHigh = random.nextFloat();
    }

    return step;
}

void randomise (Sequencer::PatternSlot& slot, juce::Random& random)
{
    slot.multiply = random.nextBool();
    slot.pattern.grid = 1 + random.nextInt (68);
    slot.pattern.gate = random.nextDouble();
    slot.pattern.steps.clear();

    for (auto i = random.nextInt (12); --i >= 0;)
        slot.pattern.steps.push_back (randomStep (random));

    std::vector<Sequencer::Bar> bars;

    for (auto i = 1 + random.nextInt (3); --i >= 0;)
        bars.push_back ({ 1 + random.nextInt (42), 1 << random.nextInt (9) });

    slot.time.setBars ({ bars });
}

Resource randomResource (juce::Random& random)
{
    const Resource resources[] { {},
                                 { Resource::Type::binary, "own.mid", "TVRoZA==" },
                                 { Resource::Type::sharedBinary, "Chords_C_mid", "" },
                                 { Resource::Type::externalFile, "song", "songs/\xC3\xA4 song.mid" } };
    return resources[random.nextInt (4)];
}

/** Which slots play and loop can be set by a document only. */
void randomisePlayback (State& state, juce::Random& random)
{
    nlohmann::json slots;

    for (auto i = 0; i < Sequencer::numSlots; ++i)
        slots.push_back ({ { "playing", random.nextBool() }, { "looping", random.nextBool() } });

    Tests::load (state,
                 { { "version", "0.8.0" }, { "Slots", { { "Slots", slots } } } },
                 ReflectorContext::forHostChunk());
}
} // namespace

void randomise (const ParamList& params, juce::Random& random)
{
    params.forEachParam ([&random] (const ParamHolderBase& holder) {
        auto& parameter = holder.getParameter();
        const auto value = random.nextFloat();
        parameter.setValueNotifyingHost (parameter.isBoolean() ? std::round (value) : value);
    });
}

void randomise (State& state, juce::Random& random)
{
    randomisePlayback (state, random);
    randomise (state.params, random);

    state.setName ("Preset " + juce::String (random.nextInt()));
    state.synthPreset.setName ("Sound " + juce::String (random.nextInt()));
    state.bpm.setDouble (1.0 + 998.0 * random.nextDouble());
    state.keyMode = random.nextBool();
    state.liveSlots->enable = random.nextBool();
    state.liveSlots->index = random.nextInt (Sequencer::numSlots);
    state.octaveRange.low = random.nextInt (11);
    state.octaveRange.high = 1 + random.nextInt (11);
    state.snap = random.nextBool();
    state.screen.setSize ({ random.nextInt (4000), random.nextInt (3000) });
    state.player.set ({ randomResource (random), random.nextBool(), random.nextBool() });
    state.followChanges();
    state.learnMap.clearAll();

    for (auto i = random.nextInt (4); --i >= 0;)
        state.learnMap.bind ({ Midi::Learn::Target::forSlot (random.nextInt (8)), random.nextInt (128) });

    const Sequencer::PatternController::Edit edit (state.patterns);

    for (auto& slot : state.patterns.getSlots())
        randomise (slot, random);
}
} // namespace Zn::Audio::Plugins::Vornel
