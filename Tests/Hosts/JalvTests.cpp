#include "Hosts/JackSession.h"
#include "Support/NoteStreams.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numeric>

// The plug-in in a host that is not ours: each test finds jalv running a new instance on JACK, and is started by
// check_in_jalv.py, which names jalv's client in VORNEL_JACK_CLIENT.

namespace Zn::Tests
{
namespace
{
constexpr auto ownTempo = 100.0; // quarter notes a minute, of a new instance without a host's clock
constexpr auto quartersPerStep = 0.25;
constexpr auto periodsPerSecond = 48000 / 256;
constexpr auto periodsPerBar = 96000 / 256; // at 120 quarter notes a minute
constexpr auto fewPeriods = 10;             // less than a step

/** The pitches that the pattern of a new instance plays over a held chord of C, E and G. */
constexpr std::array pitches { 60, 64, 67, 72, 76, 72, 67, 64, 67, 72, 76, 79, 84, 76, 72, 67 };

int pitchOfStep (int step)
{
    return pitches[static_cast<std::size_t> (step) % pitches.size()];
}

/** The steps of a song, each an onset's place on the grid of sixteenths. */
struct Steps
{
    std::vector<int> numbers, pitches;
    double farthestOff = 0.0; // quarter notes from the grid
};

Steps stepsOf (const JackRecording& recording)
{
    Steps steps;

    for (const auto& onset : recording.onsets)
    {
        if (! onset.isRolling)
            continue;

        const auto step = std::round (onset.quarters / quartersPerStep);
        steps.numbers.push_back (static_cast<int> (step));
        steps.pitches.push_back (onset.pitch);
        steps.farthestOff = std::max (steps.farthestOff, std::abs (onset.quarters - step * quartersPerStep));
    }

    return steps;
}

std::vector<int> pitchesOf (std::vector<int> steps)
{
    std::transform (steps.begin(), steps.end(), steps.begin(), pitchOfStep);
    return steps;
}

void expectGrid (const Steps& steps, const std::vector<int>& numbers, double tolerance)
{
    EXPECT_EQ (steps.numbers, numbers);
    EXPECT_EQ (steps.pitches, pitchesOf (numbers));
    EXPECT_LE (steps.farthestOff, tolerance);
}

std::vector<int> from (int first, int afterLast)
{
    std::vector<int> steps (static_cast<std::size_t> (afterLast - first));
    std::iota (steps.begin(), steps.end(), first);
    return steps;
}

std::vector<int> joined (const std::vector<std::vector<int>>& parts)
{
    std::vector<int> whole;

    for (const auto& part : parts)
        whole.insert (whole.end(), part.begin(), part.end());

    return whole;
}

/** Starts the song in the first period, and presses the keys as soon as it rolls. */
void startWithKeys (Conductor& conductor, int period)
{
    if (period == 0)
        conductor.start();

    if (conductor.isRolling())
        conductor.pressKeys();
}

class Jalv : public testing::Test
{
protected:
    JackRecording play (const JackSong& song)
    {
        auto recording = session.play (song);
        EXPECT_EQ (unbalanced (recording.events), "");
        EXPECT_EQ (stillSounding (recording.events), "");
        return recording;
    }

    double quartersOf (double samples, double tempo) const
    {
        return JackTempoMap { .tempo = tempo }.quartersAt (samples, session.getSampleRate());
    }

    static std::string client()
    {
        const auto* name = std::getenv ("VORNEL_JACK_CLIENT");
        return name != nullptr ? name : throw std::runtime_error ("run check_in_jalv.py instead");
    }

    JackSession session { client() };
};

/** Finds jalv with the factory preset "Down the Stairs" chosen from the host's own list. */
class JalvPreset : public Jalv
{};

TEST_F (JalvPreset, PlaysThePatternThatTheHostHasLoaded)
{
    constexpr std::array stairs { 72, 67, 64, 60 };
    const auto pressKeys = [] (Conductor& conductor, int) { conductor.pressKeys(); };
    const auto onsets = play ({ .script = pressKeys, .numPeriods = 5 * periodsPerSecond }).onsets;
    ASSERT_GE (onsets.size(), 15u); // eighths

    // Its clock has run since it was loaded, so any step may have come first.
    auto step = std::find (stairs.begin(), stairs.end(), onsets.front().pitch) - stairs.begin();

    for (const auto& onset : onsets)
        EXPECT_EQ (onset.pitch, stairs[static_cast<std::size_t> (step++) % stairs.size()]);
}

TEST_F (Jalv, PlaysByItselfWithoutASong)
{
    const auto pressKeys = [] (Conductor& conductor, int) { conductor.pressKeys(); };
    const auto [onsets, events] = play ({ .script = pressKeys, .numPeriods = 20 * periodsPerSecond });

    ASSERT_GE (onsets.size(), 132u); // 20 s of sixteenths, the first of which may be cut

    std::vector<int> heard;
    auto farthestOff = 0.0;

    for (const auto& onset : onsets)
    {
        const auto steps = quartersOf (onset.sample - onsets.front().sample, ownTempo) / quartersPerStep;
        const auto onGrid = static_cast<double> (heard.size());
        farthestOff = std::max (farthestOff, std::abs (steps - onGrid));
        heard.push_back (onset.pitch);
    }

    EXPECT_LE (farthestOff * quartersPerStep, quartersOf (1.0, ownTempo));

    // Its clock has run since it was loaded, so any step may have come first.
    const auto startsAt = [&] (int step) {
        return pitchesOf (from (step, step + static_cast<int> (heard.size()))) == heard;
    };
    const auto steps = from (0, static_cast<int> (pitches.size()));
    EXPECT_TRUE (std::any_of (steps.begin(), steps.end(), startsAt)) << testing::PrintToString (heard);
}

TEST_F (Jalv, JumpsWithTheSong)
{
    const auto script = [rolled = 0] (Conductor& conductor, int period) mutable {
        startWithKeys (conductor, period);
        rolled += conductor.isRolling() ? 1 : 0;

        if (rolled == 2 * periodsPerBar - fewPeriods)
            conductor.locate (64.0);

        if (rolled == 3 * periodsPerBar - fewPeriods)
            conductor.locate (4.0);
    };

    const JackTempoMap map;
    const auto recording =
        play ({ .script = script, .numPeriods = 4 * periodsPerBar - fewPeriods, .tempoMap = map });

    expectGrid (stepsOf (recording),
                joined ({ from (0, 32), from (256, 272), from (16, 32) }),
                quartersOf (1.0, map.tempo));
}

TEST_F (Jalv, FollowsASongThroughChangesOfTempoFromTheBeatWhereItStarts)
{
    const auto script = [] (Conductor& conductor, int period) {
        startWithKeys (conductor, period);

        if (period % 20 == 10 && period > 30 * periodsPerSecond)
            conductor.changeTempo (60.5 + period % 97);
    };

    // Bar 5, beat 3. The song was slower up to here, so frames do not tell the beat.
    const JackTempoMap map { .frame = 1234567.0, .quarters = 4 * 4.0 + 2.0, .tempo = 137.5 };
    const auto recording = play ({ .script = script, .numPeriods = 60 * periodsPerSecond, .tempoMap = map });

    const auto steps = stepsOf (recording);
    EXPECT_GE (steps.numbers.size(), 400u);
    expectGrid (steps, from (72, 72 + static_cast<int> (steps.numbers.size())), quartersOf (1.0, 160.0));
}

TEST_F (Jalv, PlaysOnByItselfWhileTheSongIsStopped)
{
    constexpr auto periodOfStop = periodsPerBar, periodOfStart = 3 * periodsPerBar + fewPeriods;

    const auto script = [] (Conductor& conductor, int period) {
        if (period == 0 || period == periodOfStart)
            conductor.start();

        if (period == periodOfStop)
            conductor.stop();

        if (conductor.isRolling())
            conductor.pressKeys();
    };

    const JackTempoMap map;
    const auto sample = quartersOf (1.0, map.tempo);
    auto recording = play ({ .script = script, .numPeriods = 5 * periodsPerBar, .tempoMap = map });
    auto& onsets = recording.onsets;

    const auto isRolling = [] (const auto& onset) { return onset.isRolling; };
    const auto stop = std::find_if_not (onsets.begin(), onsets.end(), isRolling);
    const auto start = std::find_if (stop, onsets.end(), isRolling);

    ASSERT_GE (start - stop, 32) << "two bars";
    ASSERT_NE (start, onsets.end());

    for (auto onset = onsets.begin() + 1; onset < start; ++onset)
        EXPECT_NEAR (quartersOf (onset->sample - (onset - 1)->sample, map.tempo), quartersPerStep, sample)
            << "two clocks before sample " << onset->sample;

    // The step that the new start lands in may sound for its rest.
    onsets.erase (onsets.begin(), start + 1);
    expectGrid (stepsOf (recording), from (16, 16 + static_cast<int> (onsets.size())), sample);
    EXPECT_GE (onsets.size(), 20u);
}
} // namespace
} // namespace Zn::Tests
