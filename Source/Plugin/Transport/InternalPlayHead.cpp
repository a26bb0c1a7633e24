#include "Plugin/Transport/InternalPlayHead.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zn::Audio
{
namespace
{
/** Rounds a position to 2^-30 of a quarter note, far below a sample. A step on the grid then starts at its own
    sample, and not one early because a sum came out a hair too large. Adding a number whose last binary digit
    has that weight does it.
*/
double rounded (double ppq) noexcept
{
    constexpr auto shift = 1.5 * (1 << (52 - 30));
    return (ppq + shift) - shift;
}

constexpr auto defaultTempo = 100.0;
constexpr auto slowestTempo = 1.0;
constexpr auto fastestTempo = 10000.0; // far beyond music, near enough that no step is shorter than a sample
constexpr auto secondsPerMinute = 60.0;

constexpr auto defaultSampleRate = 44100.0;
constexpr auto defaultBlockSize = 512;

// Hosts that count samples in floating point wander by a few; a musician's jump is longer than this.
constexpr std::int64_t jitterSamples = 30;

// Hosts that count in ticks round a position by as much as one, in quarter notes. What comes out of single
// precision or of long sums is far less.
constexpr auto longestTick = 1.0 / 960.0;
constexpr auto shortestRounding = 1.0e-6;

// Of the host's; what is shorter is no music. Quarter notes.
constexpr auto shortestLoop = 0.1;

// Beyond these a double no longer tells neighbouring samples apart.
constexpr auto farthestPpq = 1.0e12;
constexpr std::int64_t farthestSample = std::int64_t { 1 } << 52;

bool isUsablePpq (double ppq) noexcept
{
    return std::abs (ppq) <= farthestPpq; // false for NaN
}

bool isUsableSample (std::int64_t sample) noexcept
{
    return -farthestSample <= sample && sample <= farthestSample;
}

std::int64_t nearestSample (double sample) noexcept
{
    constexpr auto limit = static_cast<double> (farthestSample);
    return std::llround (std::clamp (sample, -limit, limit));
}

/** The position that a host rounded. Where it may be any from one tick earlier to one later, a song that goes on
    evenly is at the expected one, or as near to it as that allows.
*/
double unrounded (double hostPpq, double expectedPpq) noexcept
{
    const auto difference = std::abs (hostPpq - expectedPpq);

    if (difference < shortestRounding || difference > 2.0 * longestTick)
        return hostPpq;

    return std::clamp (expectedPpq, hostPpq - longestTick, hostPpq + longestTick);
}

using PositionInfo = juce::AudioPlayHead::PositionInfo;

juce::AudioPlayHead::LoopPoints loopOf (const PositionInfo& position) noexcept
{
    const auto points = position.getLoopPoints();

    if (! position.getIsLooping() || ! points.hasValue() || ! isUsablePpq (points->ppqStart)
        || ! isUsablePpq (points->ppqEnd))
        return {};

    return *points;
}
} // namespace

InternalPlayHead::InternalPlayHead()
{
    prepare (defaultSampleRate, defaultBlockSize);
}

void InternalPlayHead::prepare (double newSampleRate, int blockSize)
{
    for (auto* table : { &ppqBySample, &songPpq })
        table->reserve (static_cast<std::size_t> (std::max (blockSize, 0)));

    sampleRate = newSampleRate;
    updateRate();
}

bool InternalPlayHead::isUsableTempo (double bpm) noexcept
{
    return slowestTempo <= bpm && bpm <= fastestTempo; // false for NaN
}

double InternalPlayHead::getTempo() const noexcept
{
    return info.getBpm().orFallback (defaultTempo);
}

std::int64_t InternalPlayHead::getTimeInSamples() const noexcept
{
    return info.getTimeInSamples().orFallback (0);
}

void InternalPlayHead::setTempo (double newBpm) noexcept
{
    if (! isUsableTempo (newBpm))
        return;

    info.setBpm (newBpm);
    updateRate();
}

void InternalPlayHead::setInternalState (bool shouldPlay, double ppq) noexcept
{
    info.setIsPlaying (shouldPlay);
    info.setIsLooping (false);
    loop = {};

    if (isUsablePpq (ppq))
        info.setPpqPosition (ppq);
}

void InternalPlayHead::updateRate() noexcept
{
    const auto isUsable = std::isfinite (sampleRate) && sampleRate > 0.0;
    ppqPerSample = isUsable ? getTempo() / (sampleRate * secondsPerMinute) : 0.0;
}

void InternalPlayHead::update (juce::AudioPlayHead* host, int numSamples) noexcept
{
    const auto n = std::max (numSamples, 0);

    if (host == nullptr)
        info.setTimeInSamples (expectedSample);
    else if (const auto position = host->getPosition())
        follow (*position);

    const auto playing = isPlaying();
    const auto time = getTimeInSamples();

    const auto isForced = std::exchange (jumpForced, false);

    stateChanged = wasPlaying != playing;
    jumped = isForced || isAwayFrom (expectedSample);
    songJumped = isForced || (jumped && ! hasFallenBack());
    wasPlaying = playing;
    startPpq = endPpq = info.getPpqPosition().orFallback (0.0);
    expectedSample = playing ? time + n : time;

    ppqBySample.resize (static_cast<std::size_t> (n));
    songPpq.resize (static_cast<std::size_t> (n));
    loopsInside = false;

    if (playing)
        fillPlaying (n);
    else
    {
        std::ranges::fill (ppqBySample, startPpq);
        std::ranges::fill (songPpq, startPpq);
    }
}

/** Takes over the host's position, and works out what it does not tell from where the last block ended. */
void InternalPlayHead::follow (const PositionInfo& host) noexcept
{
    const auto expectedPpq = info.getPpqPosition().orFallback (0.0);
    const auto lastTempo = info.getBpm();
    const auto tempo = host.getBpm();
    const auto time = host.getTimeInSamples();
    const auto ppq = host.getPpqPosition();
    const auto hasTime = time.hasValue() && isUsableSample (*time);
    const auto hasPpq = ppq.hasValue() && isUsablePpq (*ppq);

    info = host;
    info.setBpm (tempo.hasValue() && isUsableTempo (*tempo) ? tempo : lastTempo);
    updateRate();
    loop = loopOf (host);

    if (! hasTime)
    {
        const auto moved = hasPpq && ppqPerSample > 0.0 ? (*ppq - expectedPpq) / ppqPerSample : 0.0;
        info.setTimeInSamples (nearestSample (static_cast<double> (expectedSample) + moved));
    }

    if (! hasPpq)
    {
        const auto moved = hasTime ? static_cast<double> (*time - expectedSample) * ppqPerSample : 0.0;
        info.setPpqPosition (std::clamp (expectedPpq + moved, -farthestPpq, farthestPpq));
    }

    if (! hasPpq || ! wasPlaying || ! isPlaying() || tempo != lastTempo)
        return;

    // Followed to the letter, ticks make a step that starts at a block's edge start twice, or never.
    if (time == expectedSample)
        info.setPpqPosition (unrounded (*ppq, expectedPpq));
    else if (loopsInside && std::abs (getTimeInSamples() - (expectedSample - loopLength)) <= 1)
        info.setPpqPosition (unrounded (*ppq, songEnd));
}

/** Whether the host only tells of the loop that the song has followed inside the last block. Where the tempo differs
    between the loop's ends, it has gone on from there by another way than we.
*/
bool InternalPlayHead::hasFallenBack() const noexcept
{
    if (! loopsInside)
        return false;

    const auto ppq = info.getPpqPosition().orFallback (0.0);
    const auto rates = std::max (ppqPerSample, lastRate);
    const auto aside = std::abs (ppqPerSample - lastRate) * static_cast<double> (samplesSinceLoop);
    const auto isAtSongEnd = std::abs (ppq - songEnd) < rates * jitterSamples + aside;

    return isAtSongEnd || ! isAwayFrom (expectedSample - loopLength);
}

bool InternalPlayHead::isAwayFrom (std::int64_t expected) const noexcept
{
    const auto time = getTimeInSamples();

    if (! isPlaying())
        return time != expected;

    return time < expected - jitterSamples || time >= expected + jitterSamples;
}

void InternalPlayHead::fillPlaying (int numSamples) noexcept
{
    for (auto i = 0; i < numSamples; ++i)
        ppqBySample[static_cast<std::size_t> (i)] = rounded (startPpq + i * ppqPerSample);

    fillSong();

    if (loop.ppqEnd > loop.ppqStart)
        for (auto& ppq : ppqBySample)
            ppq = wrapIntoLoop (ppq);

    endPpq = wrapIntoLoop (startPpq + numSamples * ppqPerSample);
    info.setTimeInSamples (expectedSample);
    info.setPpqPosition (endPpq);
}

/** A song that starts at the loop's end, or beyond, goes on from there. */
void InternalPlayHead::fillSong() noexcept
{
    std::ranges::copy (ppqBySample, songPpq.begin());

    const auto length = loop.ppqEnd - loop.ppqStart;
    const auto isInside = startPpq >= loop.ppqStart && startPpq < loop.ppqEnd;

    if (songPpq.empty() || ! isInside || songPpq.back() < loop.ppqEnd || length < shortestLoop)
        return;

    const auto inLoop = [&] (double ppq) { return loop.ppqStart + std::fmod (ppq - loop.ppqStart, length); };

    for (auto& ppq : songPpq)
        if (ppq >= loop.ppqEnd)
            ppq = rounded (inLoop (ppq));

    const auto end = startPpq + static_cast<double> (songPpq.size()) * ppqPerSample;
    loopsInside = true;
    songEnd = inLoop (end);
    loopLength = nearestSample ((end - songEnd) / ppqPerSample);
    samplesSinceLoop = nearestSample ((songEnd - loop.ppqStart) / ppqPerSample);
    lastRate = ppqPerSample;
}

/** Only the loop's own range is wrapped, which moves its very end: a position the host puts beyond it stays.
*/
double InternalPlayHead::wrapIntoLoop (double ppq) const noexcept
{
    const auto isInside = loop.ppqEnd > loop.ppqStart && ppq >= loop.ppqStart && ppq <= loop.ppqEnd;

    return isInside ? std::fmod (ppq - loop.ppqStart, loop.ppqEnd - loop.ppqStart) + loop.ppqStart : ppq;
}
} // namespace Zn::Audio
