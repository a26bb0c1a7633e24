#include "Sequencer/PatternEngine.h"

namespace Zn::Sequencer
{
namespace
{
constexpr int assumedBlockSize = 512; // until the host tells

const RenderedSlot& slotOf (const PatternFrame& frame, int slot) noexcept
{
    return frame.patterns != nullptr ? frame.patterns->slots[static_cast<std::size_t> (slot)] : fallback;
}
} // namespace

PatternEngine::PatternEngine()
{
    prepare (assumedBlockSize);
}

void PatternEngine::prepare (int blockSize)
{
    for (auto& player : players)
        player.prepare (blockSize);
}

void PatternEngine::setSeed (std::int64_t seed) noexcept
{
    for (auto& player : players)
        player.setSeed (seed);
}

int PatternEngine::run (const ClockSlice& clock,
                        const PatternFrame& frame,
                        juce::MidiBuffer& rows,
                        int sampleOffset) noexcept
{
    if (clock.ppq.empty())
        return 0;

    auto& live = frame.liveSlots != nullptr ? *frame.liveSlots : unsharedSlots;
    heard = std::clamp (live.heard.load(), 0, numSlots - 1);

    const auto change = slotSwitch.update (clock, live);
    const BlockSlice whole { 0, clock.size() };

    arrive (clock);

    if (change)
    {
        runHeard (clock.part (whole.upTo (change->sample)), frame, rows, sampleOffset);
        heard = change->slot;
        playerOf (heard).anchorAt (change->anchor);
    }

    const auto rest = whole.from (change ? change->sample : 0);
    runHeard (clock.part (rest), frame, rows, sampleOffset + rest.start);
    return whole.length;
}

void PatternEngine::arrive (const ClockSlice& clock) noexcept
{
    if (clock.jumped)
        for (auto& player : players)
            player.resetAnchor();

    if (const auto restarted = std::exchange (pendingRestart, {}); restarted == heard)
        playerOf (heard).anchorAt (clock.ppq.front());
}

void PatternEngine::runHeard (const ClockSlice& clock,
                              const PatternFrame& frame,
                              juce::MidiBuffer& rows,
                              int offset) noexcept
{
    if (clock.ppq.empty())
        return;

    // The others first: their notes end before the new slot's begin.
    for (auto slot = 0; slot < numSlots; ++slot)
        if (slot != heard && playerOf (slot).isActive())
            playerOf (slot).run (clock, fallback, rows, offset);

    playerOf (heard).run (clock, slotOf (frame, heard), rows, offset);
}
} // namespace Zn::Sequencer
