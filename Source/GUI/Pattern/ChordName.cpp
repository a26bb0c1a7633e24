#include "GUI/Pattern/ChordName.h"

#include "GUI/Widgets/ValueText.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <array>
#include <span>

namespace Zn::GUI
{
namespace
{
constexpr auto octave = 12;

/** Twelve bits, one for each semitone above a root. */
using PitchClasses = unsigned;

constexpr PitchClasses classes (std::initializer_list<int> semitones) noexcept
{
    PitchClasses result = 0;

    for (auto semitone : semitones)
        result |= 1u << static_cast<unsigned> (semitone);

    return result;
}

constexpr PitchClasses seenFrom (PitchClasses all, int root) noexcept
{
    const auto shift = static_cast<unsigned> (root);
    return ((all >> shift) | (all << (octave - shift))) & 0xfffu;
}

static_assert (seenFrom (classes ({ 0, 4, 9 }), 9) == classes ({ 0, 3, 7 }));

struct Quality
{
    const char* suffix;
    PitchClasses tones;
};

/** The plainest ones first: of two names for the same keys the earlier one is taken. */
constexpr std::array fullChords {
    Quality { "", classes ({ 0, 4, 7 }) },
    Quality { "m", classes ({ 0, 3, 7 }) },
    Quality { "5", classes ({ 0, 7 }) },
    Quality { "dim", classes ({ 0, 3, 6 }) },
    Quality { "aug", classes ({ 0, 4, 8 }) },
    Quality { "sus4", classes ({ 0, 5, 7 }) },
    Quality { "sus2", classes ({ 0, 2, 7 }) },
    Quality { "7", classes ({ 0, 4, 7, 10 }) },
    Quality { "maj7", classes ({ 0, 4, 7, 11 }) },
    Quality { "m7", classes ({ 0, 3, 7, 10 }) },
    Quality { "m(maj7)", classes ({ 0, 3, 7, 11 }) },
    Quality { "m7b5", classes ({ 0, 3, 6, 10 }) },
    Quality { "dim7", classes ({ 0, 3, 6, 9 }) },
    Quality { "6", classes ({ 0, 4, 7, 9 }) },
    Quality { "m6", classes ({ 0, 3, 7, 9 }) },
    Quality { "7sus4", classes ({ 0, 5, 7, 10 }) },
    Quality { "7#5", classes ({ 0, 4, 8, 10 }) },
    Quality { "7b5", classes ({ 0, 4, 6, 10 }) },
    Quality { "maj7#5", classes ({ 0, 4, 8, 11 }) },
    Quality { "add9", classes ({ 0, 2, 4, 7 }) },
    Quality { "m(add9)", classes ({ 0, 2, 3, 7 }) },
    Quality { "add11", classes ({ 0, 4, 5, 7 }) },
    Quality { "m(add11)", classes ({ 0, 3, 5, 7 }) },
    Quality { "9", classes ({ 0, 2, 4, 7, 10 }) },
    Quality { "maj9", classes ({ 0, 2, 4, 7, 11 }) },
    Quality { "m9", classes ({ 0, 2, 3, 7, 10 }) },
    Quality { "m(maj9)", classes ({ 0, 2, 3, 7, 11 }) },
    Quality { "6/9", classes ({ 0, 2, 4, 7, 9 }) },
    Quality { "m6/9", classes ({ 0, 2, 3, 7, 9 }) },
    Quality { "9sus4", classes ({ 0, 2, 5, 7, 10 }) },
    Quality { "7b9", classes ({ 0, 1, 4, 7, 10 }) },
    Quality { "7#9", classes ({ 0, 3, 4, 7, 10 }) },
    Quality { "7#11", classes ({ 0, 4, 6, 7, 10 }) },
    Quality { "maj7#11", classes ({ 0, 4, 6, 7, 11 }) },
    Quality { "m11", classes ({ 0, 3, 5, 7, 10 }) },
    Quality { "m11", classes ({ 0, 2, 3, 5, 7, 10 }) },
    Quality { "11", classes ({ 0, 2, 4, 5, 7, 10 }) },
    Quality { "maj11", classes ({ 0, 2, 4, 5, 7, 11 }) },
    Quality { "13", classes ({ 0, 4, 7, 9, 10 }) },
    Quality { "13", classes ({ 0, 2, 4, 7, 9, 10 }) },
    Quality { "13", classes ({ 0, 2, 4, 5, 7, 9, 10 }) },
    Quality { "maj13", classes ({ 0, 2, 4, 7, 9, 11 }) },
    Quality { "m13", classes ({ 0, 2, 3, 7, 9, 10 }) },
    Quality { "m13", classes ({ 0, 2, 3, 5, 7, 9, 10 }) },
};

/** As they are played by two hands: the fifth is left out, so only the lowest key can be their root. */
constexpr std::array openChords {
    Quality { "7", classes ({ 0, 4, 10 }) },      Quality { "maj7", classes ({ 0, 4, 11 }) },
    Quality { "m7", classes ({ 0, 3, 10 }) },     Quality { "m(maj7)", classes ({ 0, 3, 11 }) },
    Quality { "9", classes ({ 0, 2, 4, 10 }) },   Quality { "maj9", classes ({ 0, 2, 4, 11 }) },
    Quality { "m9", classes ({ 0, 2, 3, 10 }) },  Quality { "add9", classes ({ 0, 2, 4 }) },
    Quality { "7b9", classes ({ 0, 1, 4, 10 }) }, Quality { "7#9", classes ({ 0, 3, 4, 10 }) },
    Quality { "13", classes ({ 0, 4, 9, 10 }) },  Quality { "13", classes ({ 0, 2, 4, 9, 10 }) },
};

juce::String nameOfClass (int pitchClass)
{
    return juce::MidiMessage::getMidiNoteName (pitchClass, false, false, 0);
}

const char* suffixIn (const auto& chords, PitchClasses tones) noexcept
{
    for (const auto& chord : chords)
        if (chord.tones == tones)
            return chord.suffix;

    return nullptr;
}

/** The first of some full chords that fits on any root. */
juce::String onAnyRoot (PitchClasses all, std::span<const Quality> chords)
{
    for (const auto& chord : chords)
        for (auto root = 0; root < octave; ++root)
            if (chord.tones == seenFrom (all, root))
                return nameOfClass (root) + chord.suffix;

    return {};
}

juce::String nameOf (PitchClasses all, int bass)
{
    const auto fromBass = seenFrom (all, bass);

    if (const auto* suffix = suffixIn (fullChords, fromBass))
        return nameOfClass (bass) + suffix;

    constexpr auto numPlain = std::size_t { 19 }; // triads and sevenths
    const auto plain = std::span (fullChords).first (numPlain);
    const auto overBass = "/" + nameOfClass (bass);

    if (const auto inverted = onAnyRoot (all, plain); inverted.isNotEmpty())
        return inverted + overBass;

    if (const auto* suffix = suffixIn (openChords, fromBass))
        return nameOfClass (bass) + suffix;

    const auto withoutBass = all & ~(1u << static_cast<unsigned> (bass));

    if (const auto upper = onAnyRoot (withoutBass, plain); upper.isNotEmpty())
        return upper + overBass;

    const auto inverted = onAnyRoot (all, fullChords);
    return inverted.isNotEmpty() ? inverted + overBass : juce::String();
}
} // namespace

juce::String chordName (const Midi::NoteList& keys, int middleC)
{
    if (keys.isEmpty())
        return {};

    const auto ascending = keys.sorted();

    if (keys.size() == 1)
        return pitchName (ascending[0], middleC);

    PitchClasses all = 0;

    for (auto key : ascending)
        all |= 1u << static_cast<unsigned> (key % octave);

    const auto name = nameOf (all, ascending[0] % octave);
    return name.isNotEmpty() ? name : juce::String (keys.size()) + " keys";
}
} // namespace Zn::GUI
