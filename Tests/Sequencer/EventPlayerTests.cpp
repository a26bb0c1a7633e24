#include "Sequencer/EventPlayer.h"

#include "Sequencer/CrossingSample.h"
#include "Support/MidiText.h"
#include "Support/RenderedSteps.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Zn::Tests
{
namespace
{
using Sequencer::Arrival;

/** The rules of the player written down one after the other, over a table of numbers, without any thought of
    speed.
*/
class LiteralPlayer
{
public:
    LiteralPlayer()
    {
        for (auto& channel : cells)
            channel.fill (off);
    }

    void run (const Notes& list, const std::vector<double>& runPositions, Arrival arrival)
    {
        rows.clear();
        positions = runPositions;
        first = positions.front();
        last = std::max (first, positions.back());

        if (first < (arrival == Arrival::jumped ? end : lastPosition) || arrival == Arrival::wrapped)
            endEach ([] (int, int row) { return row < 127; });

        Notes notes;

        for (const auto& note : list)
            if (! (first >= note.time.end() || note.time.start >= last))
                notes.push_back (note);

        endEach ([&] (int channel, int row) { return comesLater (notes, channel, row); });

        for (const auto& note : notes)
            walk (note, arrival);

        endEach ([this] (int channel, int row) { return cellAt (channel, row) == unclaimed; });

        for (auto& channel : cells)
            std::replace (channel.begin(), channel.end(), claimed, unclaimed);

        lastPosition = first;
        end = positions.back();
    }

    juce::MidiBuffer rows;
    juce::Random random { 1 };
    double period = 0.0;

private:
    static constexpr int claimed = 0, off = 1, unclaimed = 2;

    /** Ends, at the run's beginning, each cell that sounds and is over. */
    template <typename Condition>
    void endEach (Condition&& isOver)
    {
        for (auto channel = 0; channel < 16; ++channel)
            for (auto row = 0; row < 128; ++row)
                if (cellAt (channel, row) != off && isOver (channel, row))
                    endCell (channel, row, 0);
    }

    /** A note of this cell is in the list, but none that lasts at the run's beginning. */
    bool comesLater (const Notes& notes, int channel, int row) const
    {
        auto comes = false;

        for (const auto& note : notes)
            if (note.event.channel == channel && note.event.noteNum == row)
            {
                if (note.time.start <= first)
                    return false;

                comes = true;
            }

        return comes;
    }

    void walk (const Sequencer::TimedNote& note, Arrival arrival)
    {
        const auto start = note.time.start;
        const auto startsBetweenRuns =
            (arrival == Arrival::continues && end <= start && start < first)
            || (arrival == Arrival::jumped && first - period < start && start < first);
        const auto isNearlyOver =
            arrival == Arrival::jumped && start < first && note.time.end() < first + period;
        auto& cell = cellAt (note.event.channel, note.event.noteNum);

        if (isNearlyOver && ! startsBetweenRuns && cell == off)
            return;

        if (first <= note.time.start && last > note.time.start)
            play (note, note.time.start);
        else if (startsBetweenRuns || cell == off)
            play (note, first);
        else
            cell = claimed;

        if (last > note.time.end() && cell != off)
            endCell (note.event.channel, note.event.noteNum, note.time.end());
    }

    void play (const Sequencer::TimedNote& note, double position)
    {
        const auto& event = note.event;
        auto& cell = cellAt (event.channel, event.noteNum);

        if (cell != off)
            endCell (event.channel, event.noteNum, position);

        cell = claimed;

        if (std::min (random.nextFloat(), 0.9999999f) > event.chance)
            return;

        const auto r = random.nextFloat();
        const auto spread = event.spreadLow == event.spreadHigh
                                ? 0.0f
                                : (event.spreadHigh - event.spreadLow) * r + event.spreadLow;
        const auto velocity = event.velocity + spread;
        const auto byte = velocity < 0.01f ? 1 : juce::roundToInt (std::min (velocity, 1.0f) * 127.0f);
        add (0x90 + event.channel, event.noteNum, byte, crossing (position));
    }

    void endCell (int channel, int row, int sample)
    {
        add (0x80 + channel, row, 0, sample);
        cellAt (channel, row) = off;
    }

    void endCell (int channel, int row, double position) { endCell (channel, row, crossing (position)); }
    int& cellAt (int channel, int row)
    {
        return cells[static_cast<std::size_t> (channel)][static_cast<std::size_t> (row)];
    }

    int crossing (double position) const { return Sequencer::crossingSample (positions, position); }

    void add (int status, int row, int velocity, int sample)
    {
        rows.addEvent (juce::MidiMessage (status, row, velocity), sample);
    }

    std::array<std::array<int, 128>, 16> cells {};
    std::vector<double> positions;
    double first = 0.0, last = 0.0;
    double lastPosition = 0.0, end = std::numeric_limits<double>::quiet_NaN();
};

/** A crowd of notes over a few rows and channels, the highest and the lowest among them. */
Notes crowd (juce::Random& random)
{
    const int rows[] = { 0, 63, 64, 126, 127 }, channels[] = { 0, 1, 15 };
    Notes notes;

    for (auto i = random.nextInt (20); i >= 0; --i)
    {
        auto step = note (rows[random.nextInt (5)], 0.25 * random.nextInt (16), 0.25 * random.nextInt (12));
        step.time.start += random.nextBool() ? 0.07 : 0.0;
        step.event.channel = channels[random.nextInt (3)];
        const float chances[] = { 0.0f, 1.0f, random.nextFloat() };
        step.event.chance = chances[random.nextInt (3)];
        step.event.velocity = random.nextFloat();
        step.event.spreadLow = -0.5f * random.nextFloat();
        step.event.spreadHigh = random.nextBool() ? step.event.spreadLow : random.nextFloat();
        notes.push_back (step);
    }

    return loop (4.0, notes).events.notes;
}

/** Mostly goes on from where the last run ended; now and then elsewhere, standing, or falling back inside. */
std::vector<double> nextPositions (juce::Random& random, double& position)
{
    const auto step = random.nextInt (10) == 0 ? 0.0 : 0.125;

    if (random.nextInt (6) == 0)
        position = 0.125 * random.nextInt (32);

    std::vector<double> positions;

    for (auto i = random.nextInt (12); i >= 0; --i)
    {
        positions.push_back (position);
        position += random.nextInt (40) == 0 ? -1.0 : step;
    }

    return positions;
}
} // namespace

TEST (EventPlayer, FollowsTheRulesAsTheyAreWrittenDown)
{
    for (auto seed = 0; seed < 300; ++seed)
    {
        juce::Random random (seed);
        Sequencer::EventPlayer player;
        LiteralPlayer literal;
        Sequencer::RenderedEvents events;
        Sequencer::FiredMarks marks;
        auto position = 0.0;
        player.setSeed (1);

        for (auto run = 0; run < 60; ++run)
        {
            if (random.nextInt (8) == 0)
                events.notes = crowd (random);

            const Arrival arrivals[] = { Arrival::jumped, Arrival::wrapped, Arrival::continues };
            const auto arrival = arrivals[std::min (2, random.nextInt (8))];
            const auto positions = nextPositions (random, position);
            juce::MidiBuffer rows;

            literal.period = random.nextBool() ? 0.125 : 0.0;
            player.setSamplePeriod (literal.period);
            player.run (events, positions, arrival, { rows, marks, 0 });
            literal.run (events.notes, positions, arrival);

            ASSERT_EQ (text (rows), text (literal.rows)) << "seed " << seed << ", run " << run;
        }
    }
}
} // namespace Zn::Tests
