#include "ArgumentValues.h"

#include "Errors.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

namespace Zn::Render
{
namespace
{
constexpr int slots = 8;
constexpr int sustainPedal = 64; // the one controller that the plug-in can learn
constexpr int largestBlock = 65536;
constexpr double lowestSampleRate = 8000.0, highestSampleRate = 384000.0;
constexpr double slowestBpm = 4.0, fastestBpm = 999.0; // slower is beyond what MIDI files can say
constexpr double longestTailSeconds = 3600.0;
constexpr double furthestQuarters = 1.0e6;

template <typename Number>
std::optional<Number> numberFrom (std::string_view text)
{
    Number number {};
    const auto [end, problem] = std::from_chars (text.data(), text.data() + text.size(), number);
    return problem == std::errc {} && end == text.data() + text.size() ? std::optional (number)
                                                                       : std::nullopt;
}

/** A whole text as a number in a range; the error names both. */
template <typename Number>
Number numberBetween (std::string_view text, Number lowest, Number highest, const std::string& range)
{
    const auto number = numberFrom<Number> (text);

    if (! number || ! (*number >= lowest && *number <= highest))
        throw ArgumentError ("needs " + range + ", not '" + std::string (text) + "'");

    return *number;
}

[[noreturn]] void failBlock (const std::string& text)
{
    throw ArgumentError ("needs 1 to 65536 samples or random:SEED:MAX, not '" + text + "'");
}

int blockFrom (std::string_view text, const std::string& whole)
{
    const auto number = numberFrom<int> (text);

    if (! number || *number < 1 || *number > largestBlock)
        failBlock (whole);

    return *number;
}

/** The second half is empty if there is no colon. */
std::pair<std::string_view, std::string_view> splitAtColon (std::string_view text)
{
    const auto colon = std::min (text.find (':'), text.size());
    return { text.substr (0, colon), text.substr (std::min (colon + 1, text.size())) };
}
/** The words of a text, with each '=' a word of its own. */
juce::StringArray wordsOf (const std::string& text)
{
    auto words =
        juce::StringArray::fromTokens (juce::String::fromUTF8 (text.c_str()).replace ("=", " = "), false);
    words.removeEmptyStrings();
    return words;
}

std::optional<int> numberUpTo127From (const juce::String& text)
{
    const auto number = numberFrom<int> (text.toStdString());
    return number && *number >= 0 && *number <= 127 ? number : std::nullopt;
}
} // namespace

juce::File fileFrom (const std::string& text)
{
    if (text.empty())
        throw ArgumentError ("needs the name of a file");

    return juce::File::getCurrentWorkingDirectory().getChildFile (juce::String::fromUTF8 (text.c_str()));
}

Options::Setting settingFrom (const std::string& text)
{
    const auto setting = juce::String::fromUTF8 (text.c_str());

    if (setting.indexOfChar ('=') < 1)
        throw ArgumentError ("needs ID=TEXT, not '" + text + "'");

    return { setting.upToFirstOccurrenceOf ("=", false, false),
             setting.fromFirstOccurrenceOf ("=", false, false) };
}

Options::Learned learnedFrom (const std::string& text)
{
    const auto words = wordsOf (text);
    const auto number = numberUpTo127From (words[1]);
    const auto isAssignment = number && words[2] == "=";

    if (isAssignment && words.size() == 5 && words[0] == "note" && words[3] == "slot")
        if (const auto slot = numberFrom<int> (words[4].toStdString()); slot && *slot >= 1 && *slot <= slots)
            return { .number = *number, .slot = *slot - 1, .parameter = {} };

    if (isAssignment && words.size() == 4 && words[0] == "cc")
    {
        if (*number != sustainPedal)
            throw ArgumentError ("can move parameters by controller 64 only, the sustain pedal");

        return { .number = *number, .slot = {}, .parameter = words[3] };
    }

    throw ArgumentError ("needs 'note 0..127 = slot 1..8' or 'cc 64 = ID', not '" + text + "'");
}

int wavBitsFrom (const std::string& text)
{
    for (const auto bits : { 16, 24, 32 })
        if (text == std::to_string (bits))
            return bits;

    throw ArgumentError ("needs 16, 24 or 32, not '" + text + "'");
}

BlockSizes blockSizesFrom (const std::string& text)
{
    constexpr std::string_view randomly = "random:";

    if (! text.starts_with (randomly))
        return BlockSizes::fixed (blockFrom (text, text));

    const auto [first, second] = splitAtColon (std::string_view (text).substr (randomly.size()));
    const auto seed = numberFrom<juce::int64> (first);

    if (! seed)
        failBlock (text);

    return BlockSizes::random (*seed, blockFrom (second, text));
}

std::optional<HostClock::Mode> clockFrom (const std::string& text)
{
    if (text == "host")
        return HostClock::Mode::playing;

    if (text == "stopped")
        return HostClock::Mode::stopped;

    if (text == "none")
        return {};

    throw ArgumentError ("needs host, stopped or none, not '" + text + "'");
}

Loop loopFrom (const std::string& text)
{
    const auto [first, second] = splitAtColon (text);
    const auto start = numberFrom<double> (first);
    const auto end = numberFrom<double> (second);

    if (! start || ! end || ! (*start >= 0.0 && *start < *end && *end <= furthestQuarters))
        throw ArgumentError ("needs A:B in quarter notes, from 0 on and A before B, not '" + text + "'");

    return { *start, *end };
}

juce::int64 seedFrom (const std::string& text)
{
    using Limits = std::numeric_limits<juce::int64>;
    return numberBetween (text, Limits::min(), Limits::max(), "a whole number");
}

int slotFrom (const std::string& text)
{
    return numberBetween (text, 0, slots - 1, "a slot from 0 to 7");
}

double bpmFrom (const std::string& text)
{
    return numberBetween (text, slowestBpm, fastestBpm, "a tempo from 4 to 999");
}

double sampleRateFrom (const std::string& text)
{
    return std::round (
        numberBetween (text, lowestSampleRate, highestSampleRate, "a rate from 8000 to 384000"));
}

double tailFrom (const std::string& text)
{
    return numberBetween (text, 0.0, longestTailSeconds, "seconds from 0 to 3600");
}
} // namespace Zn::Render
