#pragma once

#include "Sequencer/PatternEngine.h"
#include "Support/MidiText.h"
#include "Support/RenderedSteps.h"

#include <memory>
#include <string>
#include <vector>

namespace Zn::Tests
{
/** An engine with a song to play against: a clock of an eighth of a quarter note for each sample, unless a test
    sets another, and the patterns that a test draws.
*/
class EngineRig
{
public:
    explicit EngineRig (Sequencer::RenderedSlot first = {})
    {
        engine.setSeed (1);
        frame.liveSlots = std::make_shared<Sequencer::LiveSlots>();
        frame.playHead = std::make_shared<Sequencer::PlayHead>();
        draw (0, std::move (first));
    }

    /** Publishes a frame in which one slot is another. */
    void draw (int slot, Sequencer::RenderedSlot pattern)
    {
        auto next = frame.patterns != nullptr ? std::make_shared<Sequencer::PatternData> (*frame.patterns)
                                              : std::make_shared<Sequencer::PatternData>();
        next->slots[static_cast<std::size_t> (slot)] = std::move (pattern);
        frame.patterns = std::move (next);
    }

    void ask (int slot) { live().pending = slot; }
    Sequencer::LiveSlots& live() { return *frame.liveSlots; }

    void jumpTo (double newPpq)
    {
        ppq = newPpq;
        jumped = true;
    }

    /** The messages of one call, by samples of that call. The clock goes on unless it is stopped. */
    juce::MidiBuffer play (int numSamples)
    {
        std::vector<double> positions (static_cast<std::size_t> (numSamples));
        const auto step = isPlaying ? ppqPerSample : 0.0;

        for (std::size_t i = 0; i < positions.size(); ++i)
            positions[i] = ppq + static_cast<double> (i) * step;

        ppq += numSamples * step;
        return playAt (positions);
    }

    /** The messages of one call at positions of the test's own; does not move the clock. */
    juce::MidiBuffer playAt (const std::vector<double>& positions)
    {
        juce::MidiBuffer rows;
        const Sequencer::ClockSlice clock { positions,
                                            isPlaying,
                                            std::exchange (jumped, false),
                                            std::exchange (wasPlaying, isPlaying) != isPlaying,
                                            ppqPerSample };
        const auto length = engine.run (clock, frame, rows);

        if (length != clock.size())
            throw std::logic_error ("the engine ran another length than it was told");

        return rows;
    }

    Sequencer::PatternEngine engine;
    Sequencer::PatternFrame frame;
    double ppqPerSample = 0.125; // quarter notes
    double ppq = 0.0;            // quarter notes at the next sample
    bool isPlaying = true;
    bool jumped = false;

private:
    bool wasPlaying = false;
};
} // namespace Zn::Tests
