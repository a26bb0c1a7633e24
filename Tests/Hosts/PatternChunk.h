#pragma once

#include <juce_core/juce_core.h>

namespace Zn::Test
{
/** Steps of the test pattern: sixteenths of one bar in 4/4. */
constexpr auto numTestSteps = 16;

/** A state in which the first pattern walks up the held keys, a row for each sixteenth of a bar, so that a note
    tells by its pitch where in the bar it stands. As the plug-in saves it: a header, then JSON.
*/
inline juce::MemoryBlock chunkWithStairs()
{
    constexpr auto lowestHeldKey = 64; // the row of a pattern that plays it
    juce::StringArray steps;

    for (auto step = 0; step < numTestSteps; ++step)
        steps.add (juce::String (R"({"enabled":true,"Event":{"channel":1,"noteNum":%ROW,"velocity":0.8},)"
                                 R"("Time":{"start":%START,"length":0.03125}})")
                       .replace ("%ROW", juce::String (lowestHeldKey + step))
                       .replace ("%START", juce::String (step / static_cast<double> (numTestSteps))));

    const auto text = juce::String (R"({"version":"0.8.0","product":"Vornel","name":"Stairs","dirty":false,)"
                                    R"("Patterns":{"Patterns":[{"Multiply":false,)"
                                    R"("Time":{"Bars":[{"num":4,"denum":4}]},)"
                                    R"("Pattern":{"grid":16,"length":1.0,"Steps":[)")
                      + steps.joinIntoString (",") + "]}}]}}";

    juce::MemoryOutputStream chunk;
    chunk.write ("VC2!", 4);
    chunk.writeInt (static_cast<int> (text.getNumBytesAsUTF8() + 1));
    chunk.write (text.toRawUTF8(), text.getNumBytesAsUTF8() + 1);
    return chunk.getMemoryBlock();
}
} // namespace Zn::Test
