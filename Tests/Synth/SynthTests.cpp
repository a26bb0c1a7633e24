#include "Synth/WavetableSynth/Synth.h"

#include "Support/KernelTable.h"
#include "Support/LiteralVoice.h"
#include "Support/MidiText.h"
#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Zn::Audio::WavetableSynth
{
namespace
{
using Tests::events;

constexpr double rate = 48000.0;

/** One table in the literal voice's form and in ours. */
struct TwinTable
{
    TwinTable (int numChannels, int numFrames, std::vector<float> harmonics)
        : plain (static_cast<size_t> (numChannels), std::vector<float> (static_cast<size_t> (numFrames)))
    {
        for (size_t c = 0; c < plain.size(); ++c)
            for (size_t i = 0; i < plain[c].size(); ++i)
                for (size_t h = 0; h < harmonics.size(); ++h)
                    plain[c][i] += harmonics[h]
                                   * static_cast<float> (std::sin (6.283185307179586 * double (h + 1)
                                                                       * double (i) / double (numFrames - 1)
                                                                   + 0.3 * double (c)));

        interleaved.emplace (plain);
    }

    Tests::LiteralTable plain;
    std::optional<Tests::KernelTable> interleaved;
};

struct Rig
{
    explicit Rig (const Kernels::VoiceKernels& kernels = Kernels::bestKernels()) : synth (kernels)
    {
        synth.prepare (rate);

        for (auto& oscillator : settings.oscillators)
        {
            oscillator.table = table.interleaved->view();
            oscillator.volume = 0.2f;
        }

        settings.sub.table = sine.interleaved->view();
        setEnvelope (0.005f, 1.0f, 1.0f, 0.01f);
    }

    void setEnvelope (float attack, float decay, float sustain, float release)
    {
        settings.envelope = Kernels::makeEnvelopeRates (attack, decay, sustain, release, rate);
    }

    juce::AudioBuffer<float> render (int numSamples, const juce::MidiBuffer& midi = {})
    {
        juce::AudioBuffer<float> audio (2, numSamples);
        synth.setSettings (settings);
        synth.render (audio, midi);
        return audio;
    }

    TwinTable table { 2, 2048, { 0.5f, 0.25f, 0.1f, 0.05f } };
    TwinTable sine { 1, 4096, { 1.0f } };
    VoiceSettings settings;
    Synth synth;
};

float loudestDifference (const juce::AudioBuffer<float>& a, const juce::AudioBuffer<float>& b)
{
    auto loudest = 0.0f;

    for (auto c = 0; c < 2; ++c)
        for (auto i = 0; i < a.getNumSamples(); ++i)
            loudest = std::max (loudest, std::abs (a.getSample (c, i) - b.getSample (c, i)));

    return loudest;
}

/** A message for each of so many keys, at samples of the first 64. */
juce::MidiBuffer everyKey (int status, int lowest, int count)
{
    juce::MidiBuffer result;

    for (auto i = 0; i < count; ++i)
        result.addEvent (juce::MidiMessage (status, lowest + i, 100), i % 64);

    return result;
}

/** Sets our voices and the literal one to the same. */
void choose (Rig& rig, Zn::Tests::VoiceSettings& literal, juce::Random& random)
{
    const auto flip = [&random] { return random.nextInt (4) > 0; };

    for (size_t i = 0; i < literal.oscillators.size(); ++i)
    {
        auto& ours = rig.settings.oscillators[i];
        ours.enabled = flip();
        ours.octave = random.nextInt (7) - 3;
        ours.tune = random.nextInt (49) - 24;
        ours.unison = 1 + random.nextInt (2);
        ours.spread = random.nextFloat();
        ours.volume = flip() ? random.nextFloat() : 0.0f;
        literal.oscillators[i] = { ours.enabled, &rig.table.plain, ours.octave, ours.tune,
                                   ours.volume,  ours.unison,      ours.spread };
    }

    auto& sub = rig.settings.sub;
    sub.octave = random.nextInt (7) - 3;
    sub.volume = random.nextFloat();
    literal.subTable = &rig.sine.plain;
    literal.subOctave = sub.octave;
    literal.subVolume = sub.volume;

    auto& filter = rig.settings.filter;
    filter.enabled = flip();
    filter.cutoffHz = 10.0f + 11000.0f * random.nextFloat();
    filter.resonance = 0.1f + 2.9f * random.nextFloat();
    filter.keyTracking = random.nextFloat();
    literal.filterEnabled = filter.enabled;
    literal.cutoff = filter.cutoffHz;
    literal.resonance = filter.resonance;
    literal.keyTracking = filter.keyTracking;

    literal.attack = 0.005f + 0.02f * random.nextFloat();
    literal.decay = 0.005f + 0.05f * random.nextFloat();
    literal.sustain = random.nextFloat();
    literal.release = 0.005f + 0.02f * random.nextFloat();
    rig.setEnvelope (literal.attack, literal.decay, literal.sustain, literal.release);
}

/** A note on ours and on the literal voice, while everything changes. */
void compareANote (const Kernels::VoiceKernels& kernels, juce::Random& random)
{
    Rig rig (kernels);
    Zn::Tests::VoiceSettings literal;
    Zn::Tests::LiteralVoice reference (rate, 4096);

    const auto expectSame = [&] (int numSamples, const juce::MidiBuffer& midi, const char* what) {
        juce::AudioBuffer<float> expected (2, numSamples);
        reference.render (literal, expected);
        EXPECT_LT (loudestDifference (rig.render (numSamples, midi), expected), 1.0e-5f) << what;
    };

    const auto note = 24 + random.nextInt (72);
    const auto velocity = 1 + random.nextInt (127);
    juce::MidiBuffer on, bend, off;
    on.addEvent (juce::MidiMessage::noteOn (1, note, juce::uint8 (velocity)), 0);
    bend.addEvent (juce::MidiMessage::pitchWheel (1, 4096), 0);
    off.addEvent (juce::MidiMessage::noteOff (1, note), 0);

    choose (rig, literal, random);
    reference.noteStarted (literal, note, juce::MPEValue::from7BitInt (velocity).as14BitInt());
    expectSame (1500, on, "start");

    for (auto block = 0; block < 6; ++block)
    {
        choose (rig, literal, random);
        expectSame (1 + random.nextInt (1500), {}, "change");
    }

    reference.bend (note, -1.0);
    expectSame (1000, bend, "bend");

    reference.noteStopped (literal);
    expectSame (4096, off, "end");
    EXPECT_EQ (rig.synth.isAnyVoiceActive(), reference.isActive());
}
} // namespace

TEST (Synth, SoundsLikeTheLiteralVoiceWhileAllSettingsChange)
{
    for (const auto set : Zn::Tests::allSets)
    {
        juce::Random random (3);

        for (auto seed = 0; seed < 40; ++seed)
        {
            SCOPED_TRACE ("set " + std::to_string (int (set)) + ", seed " + std::to_string (seed));
            compareANote (Kernels::kernelsFor (set), random);
        }
    }
}

TEST (Synth, NeitherBendsWhatIsReleasedNorForgetsItsWheel)
{
    const auto play = [] (const char* song) {
        Rig rig;
        rig.setEnvelope (0.005f, 1.0f, 1.0f, 0.5f);
        return rig.render (4096, events (song));
    };

    const auto straight = play ("on 60 @0, off 60 @500");
    EXPECT_LT (loudestDifference (play ("on 60 @0, off 60 @500, hex E0 7F 7F @600"), straight), 1.0e-6f);
    EXPECT_GT (loudestDifference (play ("on 60 @0, hex E0 7F 7F @499, off 60 @500"), straight), 0.01f);
}

TEST (Synth, StartsAStolenVoiceAfresh)
{
    Rig full;
    full.setEnvelope (0.5f, 1.0f, 1.0f, 1.0f);
    full.render (4096, everyKey (0x90, 30, Synth::numVoices));

    // Takes a voice from the middle; its key no longer ends anything, and all others do.
    full.render (100, events ("on 100 @0"));
    full.setEnvelope (0.5f, 1.0f, 1.0f, 0.0f);
    full.render (100, everyKey (0x80, 30, Synth::numVoices));
    EXPECT_TRUE (full.synth.isAnyVoiceActive());

    Rig alone;
    alone.setEnvelope (0.5f, 1.0f, 1.0f, 0.0f);
    alone.render (200, events ("on 100 @0"));
    EXPECT_LT (loudestDifference (full.render (2000), alone.render (2000)), 1.0e-5f);
}

TEST (Synth, SurvivesMoreNotesThanItHasVoices)
{
    Rig rig;
    const auto all = everyKey (0x90, 0, 128);
    rig.render (512);
    rig.synth.setSettings (rig.settings);
    juce::AudioBuffer<float> audio (2, 512);

    {
        const Zn::Tests::ExpectRealTimeSafe watched ("a block with 128 new notes");
        rig.synth.render (audio, all);
    }

    EXPECT_TRUE (std::isfinite (audio.getMagnitude (0, 512)));

    rig.render (512, everyKey (0x80, 0, 128));
    EXPECT_EQ (rig.render (2048).getMagnitude (1024, 1024), 0.0f);
    EXPECT_FALSE (rig.synth.isAnyVoiceActive());
}

TEST (Synth, StaysFiniteAtEveryRateAndExtreme)
{
    for (const auto sampleRate : { 8000.0, 44100.0, 384000.0 })
        for (const auto note : { 0, 60, 127 })
        {
            Rig rig;
            rig.synth.prepare (sampleRate);
            rig.settings.envelope = Kernels::makeEnvelopeRates (0.005f, 1.0f, 1.0f, 0.01f, sampleRate);
            rig.settings.filter = { true, 12000.0f, 3.0f, 1.0f };
            rig.settings.sub.octave = 3;

            for (auto& oscillator : rig.settings.oscillators)
            {
                oscillator.octave = 3;
                oscillator.tune = 24;
                oscillator.volume = 2.0f;
            }

            juce::MidiBuffer midi;
            midi.addEvent (juce::MidiMessage::pitchWheel (1, 16383), 0);
            midi.addEvent (juce::MidiMessage::noteOn (1, note, juce::uint8 (127)), 0);

            const auto loudest = rig.render (8192, midi).getMagnitude (0, 8192);
            EXPECT_TRUE (std::isfinite (loudest)) << sampleRate << " " << note;
            EXPECT_LT (loudest, 100.0f) << sampleRate << " " << note;
        }
}
} // namespace Zn::Audio::WavetableSynth
