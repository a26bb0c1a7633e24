#include "Plugin/Transport/LV2Clock.h"

#include "Plugin/Transport/InternalPlayHead.h"

#include <algorithm>
#include <cmath>

namespace Zn::Audio
{
namespace
{
constexpr auto secondsPerMinute = 60.0;
constexpr auto fastestSpeed = 100.0; // winding, at most
constexpr auto highestMeter = 256.0; // both numbers of a time signature
constexpr auto farthest = 1.0e15;    // samples or quarter notes; what lies beyond is nonsense

// Bars and beats come in single precision.
constexpr auto beatTolerance = 1.0e-3;

// Many hosts count the beats of a bar in whole ticks; this is the longest in use, in quarter notes.
constexpr auto longestTick = 1.0 / 960.0;

bool isBetween (double low, std::optional<double> value, double high) noexcept
{
    return value.has_value() && low <= *value && *value <= high; // false for NaN
}

std::optional<double> ifUsable (std::optional<double> value) noexcept
{
    return isBetween (-farthest, value, farthest) ? value : std::nullopt;
}

bool isWhole (double beats) noexcept
{
    return std::abs (beats - std::round (beats)) < beatTolerance;
}

bool areWithin (double distance, std::optional<double> a, std::optional<double> b) noexcept
{
    return a && b && std::abs (*a - *b) <= distance;
}

struct MusicalPosition
{
    std::optional<double> ppq, barStartPpq; // quarter notes
    bool isExact = true;                    // to the sample
};

/** Where a message puts the song, if the bar in it starts at `barStart`. The running count of beats is best, as
    the time signature may have changed on the way to the bar without our knowing. But some hosts round it to whole
    beats, and not all agree on its unit: where it contradicts the beat within the bar, or the beat is no quarter note,
    bar and beat tell the place.
*/
MusicalPosition
musicalPositionOf (const LV2Position& message, double ppqPerBeat, std::optional<double> barStart) noexcept
{
    const auto beat = ifUsable (message.beat);
    const auto barBeat = ifUsable (message.barBeat);
    const auto isBeatExact = beat && (! barBeat || (ppqPerBeat == 1.0 && isWhole (*beat - *barBeat)));

    if (isBeatExact)
        return { .ppq = *beat, .barStartPpq = barBeat ? std::optional { *beat - *barBeat } : std::nullopt };

    if (! barStart || ! barBeat)
        return { .ppq = beat, .barStartPpq = {} };

    return { .ppq = *barStart + *barBeat * ppqPerBeat, .barStartPpq = barStart, .isExact = false };
}

/** What ticks leave out moves no song that goes on as expected, with a new tempo say: a step that has just
    started would start again. Ticks are rounded down, so at a start the later of two positions is right.
*/
std::optional<double>
unrounded (const MusicalPosition& told, std::optional<double> expectedPpq, bool wasMoving) noexcept
{
    if (told.isExact || ! areWithin (longestTick, told.ppq, expectedPpq))
        return told.ppq;

    return wasMoving ? *expectedPpq : std::max (*expectedPpq, *told.ppq);
}
} // namespace

void LV2Clock::prepare (double newSampleRate) noexcept
{
    *this = {};
    sampleRate = newSampleRate > 0.0 ? newSampleRate : sampleRate;
}

void LV2Clock::receive (const LV2Position& message, int offset) noexcept
{
    samplesSince += offset;
    const auto oldFrame = getFrame();
    const auto oldPpq = getPpq();
    const auto oldMeter = meter;
    const auto wasMoving = isMoving();
    samplesSince = -offset;

    hasMessage = true;
    takeOverRates (message);

    const auto newFrame = ifUsable (message.frame);
    const auto goesOn = areWithin (1.0, newFrame, oldFrame);
    const auto rate = getPpqPerSample();

    if (goesOn && wasMoving && oldPpq && meter != oldMeter)
        noteMeterChange (message, oldMeter, *oldPpq);

    const auto bar = ifUsable (message.bar);
    const auto told = musicalPositionOf (message,
                                         meter.ppqPerBeat(),
                                         bar ? std::optional { startOfBar (*bar) } : std::nullopt);

    if (told.ppq)
        barStartPpq = told.barStartPpq;

    const auto newPpq = goesOn ? unrounded (told, oldPpq, wasMoving) : told.ppq;

    anchorFrame = newFrame ? newFrame : oldFrame;
    anchorPpq = newPpq ? newPpq : oldPpq;

    // One of the two alone moves the other along.
    if (newFrame && ! newPpq && rate > 0.0)
        anchorPpq = oldPpq && oldFrame ? *oldPpq + (*newFrame - *oldFrame) * rate : *newFrame * rate;

    if (newPpq && ! newFrame && rate > 0.0)
        anchorFrame = oldPpq && oldFrame ? *oldFrame + (*newPpq - *oldPpq) / rate : *newPpq / rate;
}

void LV2Clock::takeOverRates (const LV2Position& message) noexcept
{
    if (isBetween (-fastestSpeed, message.speed, fastestSpeed))
        speed = *message.speed;

    if (message.beatsPerMinute && InternalPlayHead::isUsableTempo (*message.beatsPerMinute))
        tempo = message.beatsPerMinute;

    if (isBetween (1.0, message.beatUnit, highestMeter))
        meter.beatUnit = juce::roundToInt (*message.beatUnit);

    if (isBetween (1.0, message.beatsPerBar, highestMeter))
    {
        meter.beatsPerBar = *message.beatsPerBar;
        hasTimeSignature = true;
    }
}

/** The song has come to another time signature, at `ppq`, without leaving its course. */
void LV2Clock::noteMeterChange (const LV2Position& message, const LV2Meter& meterBefore, double ppq) noexcept
{
    const auto bar = ifUsable (message.bar);
    const auto barBeat = ifUsable (message.barBeat);

    if (! bar || ! barBeat)
        return;

    auto start = ppq - *barBeat * meter.ppqPerBeat();

    // It begins where a bar of the old one ends, which ticks may miss.
    if (barStartPpq)
    {
        const auto numBars = std::round ((start - *barStartPpq) / meterBefore.ppqPerBar());
        const auto endOfBar = *barStartPpq + numBars * meterBefore.ppqPerBar();
        start = areWithin (longestTick, start, endOfBar) ? endOfBar : start;
    }

    meterChange = { .meter = meter, .bar = *bar, .ppq = start };
}

/** As far as is known, all bars before have the same length. */
double LV2Clock::startOfBar (double bar) const noexcept
{
    if (meterChange.meter == meter && bar >= meterChange.bar)
        return meterChange.ppq + (bar - meterChange.bar) * meter.ppqPerBar();

    return bar * meter.ppqPerBar();
}

void LV2Clock::advance (int numSamples) noexcept
{
    samplesSince += numSamples;
}

/** The tempo that is heard: a song at another speed has another tempo. */
std::optional<double> LV2Clock::getTempo() const noexcept
{
    return tempo && isMoving() ? std::optional { *tempo * speed } : tempo;
}

double LV2Clock::getPpqPerSample() const noexcept
{
    return tempo ? *tempo / (sampleRate * secondsPerMinute) : 0.0;
}

std::optional<double> LV2Clock::getFrame() const noexcept
{
    if (! anchorFrame || ! isMoving())
        return anchorFrame;

    return *anchorFrame + static_cast<double> (samplesSince) * speed;
}

/** Without a tempo the quarter notes are known only where a message put them. */
std::optional<double> LV2Clock::getPpq() const noexcept
{
    if (! anchorPpq || ! isMoving() || samplesSince == 0)
        return anchorPpq;

    if (! tempo)
        return std::nullopt;

    return *anchorPpq + static_cast<double> (samplesSince) * speed * getPpqPerSample();
}

double LV2Clock::barStartBefore (double ppq) const noexcept
{
    return *barStartPpq + std::floor ((ppq - *barStartPpq) / meter.ppqPerBar()) * meter.ppqPerBar();
}

juce::Optional<juce::AudioPlayHead::PositionInfo> LV2Clock::getPosition() const noexcept
{
    if (! hasMessage)
        return {};

    juce::AudioPlayHead::PositionInfo position;
    position.setIsPlaying (isMoving());

    if (const auto heardTempo = getTempo())
        position.setBpm (*heardTempo);

    if (const auto ppq = getPpq())
    {
        position.setPpqPosition (*ppq);

        if (barStartPpq)
            position.setPpqPositionOfLastBarStart (barStartBefore (*ppq));
    }

    if (const auto frame = getFrame())
    {
        position.setTimeInSamples (std::llround (*frame));
        position.setTimeInSeconds (*frame / sampleRate);
    }

    if (hasTimeSignature)
        position.setTimeSignature (
            juce::AudioPlayHead::TimeSignature { juce::roundToInt (meter.beatsPerBar), meter.beatUnit });

    return position;
}
} // namespace Zn::Audio
