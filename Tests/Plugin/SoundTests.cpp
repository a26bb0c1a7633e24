#include "Plugin/ProcessorFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <vector>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr double rate = 48000.0;
constexpr int blockSize = 256;

/** A plug-in whose keys are heard directly, block by block. */
class Sound : public testing::Test
{
protected:
    Sound()
    {
        f.set ("Arp-Active", "Off");
        f.processor.prepareToPlay (rate, blockSize);
    }

    /** The audio of so many blocks, with events at samples of the first. */
    juce::AudioBuffer<float> render (int numBlocks, const juce::MidiBuffer& midi = {})
    {
        juce::AudioBuffer<float> all (2, numBlocks * blockSize), block (2, blockSize);
        auto input = midi;

        for (auto i = 0; i < numBlocks; ++i)
        {
            f.processor.processBlock (block, input);
            input.clear();

            for (auto c = 0; c < 2; ++c)
                all.copyFrom (c, i * blockSize, block, c, 0, blockSize);
        }

        return all;
    }

    /** Lets the host bypass so many blocks, and expects silence. */
    void bypass (int numBlocks, const juce::MidiBuffer& midi = {})
    {
        juce::AudioBuffer<float> block (2, blockSize);
        auto input = midi;

        for (auto i = 0; i < numBlocks; ++i)
        {
            f.processor.processBlockBypassed (block, input);
            input.clear();
            EXPECT_EQ (loudest (block), 0.0f);
        }
    }

    void setLongEcho()
    {
        f.set ("Delay-Mode", "Free");
        f.set ("Delay-Time-Free", "0.5");
        f.set ("Delay-Feedback", "0.4");
        f.set ("Delay-Mix", "0.5");
    }

    static float loudest (const juce::AudioBuffer<float>& audio)
    {
        return audio.getMagnitude (0, audio.getNumSamples());
    }

    ProcessorFixture f;
    State& state = f.state;
};

TEST_F (Sound, IsHeardAtTheSampleOfTheKeyAndEndsWithIt)
{
    const auto start = render (40, events ("on 60 @100"));
    EXPECT_EQ (start.getMagnitude (0, 100), 0.0f);
    EXPECT_GT (start.getMagnitude (101, 20), 0.0f);
    EXPECT_GT (loudest (start), 0.01f);

    render (10, events ("off 60 @0"));
    EXPECT_EQ (loudest (render (1)), 0.0f);
}

TEST_F (Sound, ReleasesWhatSoundsWhenTheSynthIsSwitchedOff)
{
    f.set ("ADSR-Release", "1");
    state.numMeterListeners = 1;
    render (40, events ("on 60 @0"));
    EXPECT_GT (state.meter.load(), 0.001f);

    f.set ("Enable-Synth", "Off");
    EXPECT_GT (loudest (render (1)), 0.001f) << "the release is heard out";

    render (static_cast<int> (rate) / blockSize + 1);
    EXPECT_EQ (loudest (render (1)), 0.0f);
    EXPECT_EQ (state.meter.load(), 0.0f);

    EXPECT_EQ (loudest (render (4, events ("on 72 @0"))), 0.0f);
    f.set ("Enable-Synth", "On");
    EXPECT_EQ (loudest (render (4)), 0.0f) << "a key pressed before it was switched on stays silent";
}

TEST_F (Sound, EchoesAfterTheNoteAndForgetsTheEchoWithTheSynth)
{
    setLongEcho();
    render (10, events ("on 60 @0, off 60 @2000"));
    EXPECT_EQ (loudest (render (60)), 0.0f);
    EXPECT_GT (loudest (render (60)), 0.001f) << "half a second later";

    f.set ("Enable-Synth", "Off");
    EXPECT_EQ (loudest (render (1)), 0.0f) << "stops at once";
    f.set ("Enable-Synth", "On");
    EXPECT_EQ (loudest (render (200)), 0.0f) << "and does not come back";
}

TEST_F (Sound, IsForgottenInABypassAndWhenTheHostReleasesTheProcessor)
{
    const std::pair<const char*, std::function<void()>> breaks[] {
        { "bypass", [this] { bypass (4); } },
        { "release", [this] { f.processor.releaseResources(); } },
        { "preparation", [this] { f.processor.prepareToPlay (rate, blockSize); } },
    };

    for (const auto& [name, breakOff] : breaks)
    {
        setLongEcho();
        state.numMeterListeners = 1;
        render (40, events ("on 60 @0"));
        EXPECT_GT (state.meter.load(), 0.001f);

        breakOff();
        EXPECT_EQ (state.meter.load(), 0.0f) << name;
        EXPECT_EQ (loudest (render (200)), 0.0f) << name << ": neither the note nor its echo comes back";
        EXPECT_EQ (loudest (render (4, events ("off 60 @0"))), 0.0f) << name;
        EXPECT_GT (loudest (render (40, events ("on 60 @0, off 60 @9000"))), 0.01f) << name;
        f.processor.prepareToPlay (rate, blockSize);
    }
}

TEST_F (Sound, IsInTuneWithAWheelThatMovedWhileNothingWasHeard)
{
    const auto play = [this] {
        f.processor.prepareToPlay (rate, blockSize);
        return render (40, events ("on 60 @0, off 60 @5000"));
    };

    const auto up = events ("hex E0 7F 7F @0"), centre = events ("hex E0 00 40 @0");

    const std::pair<const char*, std::function<void()>> cases[] {
        { "nothing", [] {} },
        { "bypassed", [&] { bypass (1, centre); } },
        { "switched off",
          [&] {
              f.set ("Enable-Synth", "Off");
              render (1, centre);
              f.set ("Enable-Synth", "On");
          } },
        { "controllers reset", [&] { render (1, events ("cc 121 0 @0")); } },
    };

    const auto difference = [] (const auto& first, const auto& second) {
        auto largest = 0.0f;

        for (auto i = 0; i < first.getNumSamples(); ++i)
            largest = std::max (largest, std::abs (first.getSample (0, i) - second.getSample (0, i)));

        return largest;
    };

    const auto centred = play();
    render (1, up);
    const auto bent = play();
    EXPECT_GT (difference (bent, centred), 0.01f);

    for (const auto& [name, moveBack] : cases)
    {
        render (1, up);
        moveBack();
        const auto& expected = name == std::string_view ("nothing") ? bent : centred;
        EXPECT_EQ (difference (play(), expected), 0.0f) << name;
    }
}

TEST_F (Sound, MixesDryAndWetAtEqualPowerAndScalesByTheMaster)
{
    const auto level = [this] (const char* mix, const char* master) {
        f.set ("Delay-Mix", mix);
        f.set ("Synth-Volume", master);
        f.processor.prepareToPlay (rate, blockSize);
        return double (render (1, events ("on 60 @0, off 60 @200")).getRMSLevel (0, 0, blockSize));
    };

    const auto dry = level ("0", "0 dB");
    EXPECT_NEAR (level ("0.5", "0 dB") / dry, std::sqrt (0.5), 1.0e-4) << "before the first echo";
    EXPECT_NEAR (level ("1", "0 dB") / dry, 0.0, 1.0e-6);
    EXPECT_NEAR (level ("0", "-6 dB") / dry, std::pow (10.0, -6.0 / 20.0), 1.0e-4);
    EXPECT_NEAR (level ("0", "-100 dB") / dry, 0.0, 1.0e-6);
}

TEST_F (Sound, GlidesToANewVolumeWithoutAClick)
{
    render (200, events ("on 36 @0"));
    const auto before = render (1);
    f.set ("Synth-Volume", "-100 dB");
    const auto after = render (1);

    const auto last = before.getSample (0, blockSize - 1);
    const auto step = std::abs (after.getSample (0, 0) - last);
    const auto usual = std::abs (last - before.getSample (0, blockSize - 2));
    EXPECT_LT (step, usual * 2.0f + 0.001f);
}

TEST_F (Sound, MeasuresTheLeftChannelWhileSomebodyLooks)
{
    render (40, events ("on 60 @0"));
    EXPECT_EQ (state.meter.load(), 0.0f) << "nobody looks";

    state.numMeterListeners = 1;
    const auto block = render (1);
    EXPECT_FLOAT_EQ (state.meter.load(), block.getRMSLevel (0, 0, blockSize));
}

TEST_F (Sound, PushesTheGlobalUnisonToEveryOscillator)
{
    f.set ("Unison-Voice", "2");
    f.set ("Unison-Amount", "0.25");
    render (1);

    for (const auto& oscillator : state.params.sound.synth.oscillators.oscillators)
    {
        EXPECT_EQ (oscillator.unison.unison.get(), 2);
        EXPECT_FLOAT_EQ (oscillator.unison.unisonSpread.get(), 0.25f);
        EXPECT_FLOAT_EQ (oscillator.unison.unisonDepth.get(), 0.25f);
    }
}

namespace
{
/** The pitch of a tone of one wave, by its first and its last rise through zero. */
double hertzOf (const juce::AudioBuffer<float>& audio, double sampleRate)
{
    std::vector<double> rises; // samples

    for (auto i = 1; i < audio.getNumSamples(); ++i)
        if (const auto before = audio.getSample (0, i - 1), after = audio.getSample (0, i);
            before < 0.0f && after >= 0.0f)
            rises.push_back (i - double { after } / (double { after } - double { before }));

    return rises.size() < 2 ? 0.0 : double (rises.size() - 1) * sampleRate / (rises.back() - rises.front());
}

int firstSoundIn (const juce::AudioBuffer<float>& audio)
{
    const auto* samples = audio.getReadPointer (0);
    return static_cast<int> (std::find_if (samples,
                                           samples + audio.getNumSamples(),
                                           [] (float s) { return std::abs (s) > 1.0e-4f; })
                             - samples);
}
} // namespace

/** Hosts change the rate in the middle of a sound, and not all of them release the processor before. */
TEST_F (Sound, IsInTuneAndItsEchoInTimeAtWhateverRateItIsPreparedFor)
{
    for (const auto* oscillator :
         { "OSC-0-Enable", "OSC-1-Enable", "OSC-2-Enable", "OSC-3-Enable", "Filter-Enable" })
        f.set (oscillator, "Off");

    f.set ("Sub-Volume", "0 dB");
    f.set ("Sub-Octave", "0");
    f.set ("Delay-Mode", "Free");
    f.set ("Delay-Time-Free", "0.5");

    for (const auto sampleRate : { 44100.0, 192000.0, 8000.0, 48000.0, 11025.0, 96000.0 })
    {
        f.processor.prepareToPlay (sampleRate, blockSize); // the note of the rate before still sounds
        const auto blocksPerSecond = static_cast<int> (sampleRate / blockSize);

        f.set ("Delay-Mix", "1");
        EXPECT_EQ (loudest (render (blocksPerSecond)), 0.0f)
            << "neither note nor echo survive, at " << sampleRate;
        const auto echo = render (blocksPerSecond, events ("on 69 @0, off 69 @100"));
        EXPECT_NEAR (firstSoundIn (echo) / sampleRate, 0.5, 0.0005) << sampleRate;

        f.set ("Delay-Mix", "0");
        f.processor.prepareToPlay (sampleRate, 2 * blockSize);
        render (blocksPerSecond / 8, events ("on 69 @0"));
        const auto cents = 1200.0 * std::log2 (hertzOf (render (blocksPerSecond / 2), sampleRate) / 440.0);
        EXPECT_NEAR (cents, 0.0, 1.0) << sampleRate;
    }
}

TEST_F (Sound, FadesWithoutNumbersTooSmallToBeNormal)
{
    f.set ("Delay-Mode", "Free");
    f.set ("Delay-Time-Free", "0.1");
    f.set ("Delay-Feedback", "0.4");
    f.set ("Delay-Mix", "0.5");
    f.set ("ADSR-Release", "2");
    f.processor.prepareToPlay (8000.0, blockSize);
    auto midi = events ("on 36 @0, on 60 @0, off 36 @200, off 60 @200");

    for (auto second = 0; second < 40; ++second)
    {
        const auto sound = render (8000 / blockSize, midi);
        midi.clear();

        for (const auto sample :
             std::span (sound.getReadPointer (0), static_cast<size_t> (sound.getNumSamples())))
            ASSERT_TRUE (sample == 0.0f || std::isnormal (sample)) << "after " << second << " seconds";
    }
}

TEST_F (Sound, StaysFiniteAndFallsSilentAtEveryRate)
{
    for (const auto sampleRate : { 8000.0, 44100.0, 384000.0 })
    {
        f.set ("Delay-Mix", "1");
        f.set ("Delay-Analog", "0");
        f.set ("Filter-Reso", "3");
        f.processor.prepareToPlay (sampleRate, blockSize);

        juce::MidiBuffer all;

        for (auto note = 0; note < 128; ++note)
            all.addEvent (juce::MidiMessage::noteOn (1, note, juce::uint8 (127)), note);

        EXPECT_TRUE (std::isfinite (loudest (render (30, all)))) << sampleRate;

        all.clear();

        for (auto note = 0; note < 128; ++note)
            all.addEvent (juce::MidiMessage::noteOff (1, note), 0);

        render (static_cast<int> (20.0 * sampleRate) / blockSize, all);
        EXPECT_LT (loudest (render (1)), 1.0e-6f) << sampleRate;
    }
}
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
