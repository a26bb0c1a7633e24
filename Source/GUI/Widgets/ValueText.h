#pragma once

#include "Parameters/Parameter.h"

#include <juce_core/juce_core.h>

#include <optional>

namespace Zn::GUI
{
/** How a value is written. What a parameter holds is in brackets. */
enum class ValueStyle
{
    ownText,       // as the parameter says
    decimals,      // 2.10
    signedNumber,  // +1
    semitones,     // +2 st
    percent,       // 42 % (of 1)
    wholePercent,  // 100 % (percent)
    signedPercent, // +36 % (percent)
    decibels,      // -7.2 (a gain; its text is in decibels)
    hertz,         // 840 Hz, 2.4 kHz
    seconds,       // 20 ms, 1.00 s
    tempo          // 124
};

/** How much of a value is written. */
enum class ValueDetail
{
    shown,   // at rest
    precise, // while it is dragged: a digit more
    full     // in menus, tooltips and for screen readers: a digit more, and always the unit
};

/** Writes values as the editor shows them, and turns what somebody has typed into the text that their parameter reads.
    Decimal points, and the minus sign of typesetting. Thread: message.
*/
class ValueText
{
public:
    explicit ValueText (ValueStyle styleToUse) noexcept : style (styleToUse) {}

    juce::String current (const Parameters::Parameter& parameter,
                          ValueDetail detail = ValueDetail::shown) const;

    /** Of a normalised value. */
    juce::String at (const Parameters::Parameter& parameter,
                     float normalised,
                     ValueDetail detail = ValueDetail::shown) const;

    /** The text to set the parameter from; none if what was typed is no value of it. Takes units and words, a decimal
        comma, and every text that the functions above give.
    */
    std::optional<juce::String> read (const juce::String& typed,
                                      const Parameters::Parameter& parameter) const;

private:
    juce::String write (double plain, ValueDetail detail) const;

    ValueStyle style;
};

/** The minus sign that is as wide as a plus. */
juce::String withTrueMinus (const juce::String& text);

/** A key, such as "Bb3"; `middleC` is the octave that note 60 stands in. */
juce::String pitchName (int pitch, int middleC);
} // namespace Zn::GUI
