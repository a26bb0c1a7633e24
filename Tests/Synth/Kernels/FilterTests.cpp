#include "Support/KernelTable.h"
#include "Synth/Kernels/StateVariableFilter.h"
#include "Synth/Kernels/VoiceKernels.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Zn::Audio::Kernels
{
namespace
{
using ::testing::FloatNear;
using ::testing::Pointwise;
using Tests::allSets;

constexpr FilterType allTypes[] = { FilterType::lowPass, FilterType::bandPass, FilterType::highPass };

std::vector<float>
impulse (const FilterCoefficients& coefficients, FilterType type, int numStages, int length)
{
    std::vector<FilterState> stages (static_cast<size_t> (numStages));
    std::vector<float> samples (static_cast<size_t> (length));
    samples.front() = 1.0f;
    filterChannel (samples, coefficients, type, stages);
    return samples;
}

TEST (Filter, AnswersAnImpulseAsItsTypeAndStagesSay)
{
    const auto c = makeFilterCoefficients (1000.0, 1.0, 48000.0);
    EXPECT_NEAR (c.g, 0.065543464f, 1.0e-8f);
    EXPECT_NEAR (c.h, 0.934719726f, 1.0e-7f);

    EXPECT_THAT (
        impulse (c, FilterType::lowPass, 1, 5),
        Pointwise (FloatNear (1.0e-6f), { 0.00401551f, 0.01550551f, 0.02935410f, 0.04103434f, 0.05062431f }));
    EXPECT_THAT (impulse (c, FilterType::bandPass, 1, 3),
                 Pointwise (FloatNear (1.0e-6f), { 0.06126477f, 0.11403876f, 0.09724991f }));
    EXPECT_THAT (impulse (c, FilterType::highPass, 1, 3),
                 Pointwise (FloatNear (1.0e-6f), { 0.93471973f, -0.12954426f, -0.12660401f }));
    EXPECT_THAT (impulse (c, FilterType::lowPass, 2, 4),
                 Pointwise (FloatNear (1.0e-7f), { 0.00001612f, 0.00012452f, 0.00047616f, 0.00123985f }));
    EXPECT_THAT (impulse (makeFilterCoefficients (8440.0, 3.0, 48000.0), FilterType::lowPass, 1, 4),
                 Pointwise (FloatNear (1.0e-6f), { 0.23965676f, 0.66676722f, 0.58364751f, -0.03742809f }));
}

/** Voices with sound, settings and memory at random, as many as a call may bring. */
struct Choir
{
    Choir (int numVoices, int numFrames, juce::Random& random)
    {
        const auto number = [&] { return random.nextFloat() * 0.6f - 0.3f; };

        for (auto i = 0; i < numVoices; ++i)
        {
            auto& frames = sounds.emplace_back (static_cast<size_t> (numFrames));
            auto& state = states.emplace_back();

            for (auto& frame : frames)
                frame = { number(), number() };

            for (auto& [s1, s2] : state.stages)
                s1 = { number(), number() }, s2 = { number(), number() };

            coefficients.push_back (makeFilterCoefficients (10.0 * std::pow (1200.0, random.nextDouble()),
                                                            0.1 + 2.9 * random.nextDouble(),
                                                            48000.0));
        }
    }

    void filter (InstructionSet set, FilterType type, int numStages)
    {
        std::vector<FilteredVoice> voices;

        for (size_t i = 0; i < sounds.size(); ++i)
            voices.push_back ({ sounds[i], coefficients[i], &states[i] });

        kernelsFor (set).filterVoices (voices, type, numStages);
    }

    void filterPlainly (FilterType type, int numStages)
    {
        for (size_t i = 0; i < sounds.size(); ++i)
            for (auto side : { &Stereo::left, &Stereo::right })
                for (auto stage = 0; stage < numStages; ++stage)
                {
                    auto& [s1, s2] = states[i].stages[static_cast<size_t> (stage)];
                    FilterState state { s1.*side, s2.*side };

                    for (auto& frame : sounds[i])
                        filterChannel (std::span (&(frame.*side), 1),
                                       coefficients[i],
                                       type,
                                       std::span (&state, 1));

                    s1.*side = state.s1;
                    s2.*side = state.s2;
                }
    }

    /** Sounds and memories of all voices, one after the other. */
    std::vector<float> numbers() const
    {
        std::vector<float> result;
        const auto add = [&result] (const Stereo& pair) {
            result.insert (result.end(), { pair.left, pair.right });
        };

        for (const auto& sound : sounds)
            std::for_each (sound.begin(), sound.end(), add);

        for (const auto& state : states)
            for (const auto& stage : state.stages)
                add (stage.s1), add (stage.s2);

        return result;
    }

    void expectNear (const Choir& other, float tolerance) const
    {
        const auto mine = numbers(), theirs = other.numbers();

        for (size_t i = 0; i < mine.size(); ++i)
            ASSERT_NEAR (mine[i], theirs[i], tolerance) << "number " << i;
    }

    std::vector<std::vector<Stereo>> sounds;
    std::vector<StereoFilterState> states;
    std::vector<FilterCoefficients> coefficients;
};

TEST (Filter, OfVoicesSideBySideIsTheirFilterOneByOne)
{
    constexpr auto tolerance =
        2.0e-6f; // of sounds and memories at full scale, with resonances of up to 10 dB

    juce::Random random (1);

    for (auto set : allSets)
        for (auto numVoices = 1; numVoices < 20; ++numVoices)
            for (auto type : allTypes)
                for (auto numStages : { 1, 2 })
                {
                    Choir side (numVoices, random.nextInt (67), random);
                    auto single = side;
                    single.filterPlainly (type, numStages);
                    side.filter (set, type, numStages);
                    SCOPED_TRACE (testing::Message()
                                  << "set " << int (set) << ", " << numVoices << " voices, type "
                                  << int (type) << ", stages " << numStages);
                    side.expectNear (single, tolerance);
                }
}

TEST (Filter, StaysBoundedWhateverItIsAskedFor)
{
    const auto infinity = std::numeric_limits<double>::infinity();
    const auto nothing = std::nan ("");

    for (auto sampleRate : { 8000.0, 48000.0, 384000.0 })
        for (auto cutoff :
             { nothing, -infinity, -5.0, 0.0, 10.0, 0.5 * sampleRate, sampleRate, 1.0e9, infinity })
            for (auto q : { nothing, -1.0, 0.0, 0.1, 3.0, infinity })
                for (auto type : allTypes)
                {
                    const auto c = makeFilterCoefficients (cutoff, q, sampleRate);
                    ASSERT_TRUE (c.g > 0.0f && c.h > 0.0f && c.r2 > 0.0f) << cutoff << " Hz, Q " << q;

                    for (auto sample : impulse (c, type, 2, 2000))
                        ASSERT_LT (std::abs (sample), 200.0f)
                            << cutoff << " Hz, Q " << q << " at " << sampleRate;
                }
}

TEST (Filter, ForgetsASoundInsteadOfCarryingItAsTinyNumbers)
{
    const juce::ScopedNoDenormals noDenormals;

    for (auto set : allSets)
    {
        juce::Random random (5);
        Choir choir (3, 64, random);
        choir.filter (set, FilterType::lowPass, 2);

        for (auto block = 0; block < 3000; ++block)
        {
            for (auto& sound : choir.sounds)
                sound.assign (64, {});

            choir.filter (set, FilterType::lowPass, 2);
        }

        for (const auto& state : choir.states)
            for (auto value : { state.stages[0].s2.left, state.stages[1].s2.left, state.stages[1].s1.right })
                EXPECT_TRUE (value == 0.0f || std::isnormal (value));
    }
}
} // namespace
} // namespace Zn::Audio::Kernels
