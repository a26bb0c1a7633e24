#include "Support/MidiText.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Zn::Tests;

TEST (MidiText, ReadsBackWhatItWrites)
{
    for (const auto* notation : { "",
                                  "on 60 @0, off 60 @240",
                                  "on 60 v80 ch5 @10, on 0 v0 @10, off 127 v25 ch16 @11",
                                  "cc 64 127 @3, cc 123 0 ch2 @4",
                                  "hex F0 01 F7 @0, hex C0 05 @1, hex F2 0A 7F @2" })
        EXPECT_EQ (text (events (notation)), notation);
}

TEST (MidiText, WritesTheBytesOfAMessage)
{
    juce::MidiBuffer buffer;
    buffer.addEvent (juce::MidiMessage (0x92, 60, 100), 7);
    buffer.addEvent (juce::MidiMessage (0x80, 61, 0), 8);
    buffer.addEvent (juce::MidiMessage (0xB0, 64, 127), 9);

    EXPECT_EQ (text (buffer), "on 60 ch3 @7, off 61 @8, cc 64 127 @9");
    EXPECT_EQ (text (events ("off 61 @8, cc 64 127 @9", "on 60 ch3 @7")), text (buffer));
}

TEST (MidiText, RefusesWhatIsNoEvent)
{
    for (const auto* notation :
         { "on 60", "on @0", "on loud @0", "on 60 loud @0", "note 60 @0", "cc 1 @0", "cc 1 v2 @0" })
        EXPECT_THROW (events (notation), std::invalid_argument) << notation;
}
