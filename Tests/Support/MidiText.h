#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <string>
#include <string_view>

namespace Zn::Tests
{
/** MIDI events as text, so that a test states whole event lists and a failure shows a readable difference.

    Events stand between commas or in strings of their own, each with its sample behind an @:

        on 60 @0             note-on, velocity 100, channel 1
        on 60 v80 ch5 @10    the same with velocity and channel; "v0" is a note-on that means note-off
        off 60 @240          note-off, release velocity 0, channel 1
        cc 64 127 @3         controller, number and value
        hex F0 01 F7 @0      any other message, byte by byte

    Throws std::invalid_argument when the text is none of these.
*/
juce::MidiBuffer events (std::string_view text);

template <typename... Texts>
juce::MidiBuffer events (std::string_view first, Texts... others)
{
    auto all = std::string (first);
    ((all += ", ", all += others), ...);
    return events (std::string_view (all));
}

/** The same notation back, in buffer order and joined by ", ". What is usual is left out: velocity 100 of a
    note-on, velocity 0 of a note-off, channel 1. An empty buffer gives an empty text.
*/
std::string text (const juce::MidiBuffer& events);
} // namespace Zn::Tests
