#include "Synth/WavetableSynth/TableNames.h"

#include "Parameters/ParameterText.h"

namespace Zn::Audio::WavetableSynth
{
namespace
{
const juce::String separator { " - " };
}

juce::String displayNameOf (const juce::String& fileName)
{
    const auto name = juce::File::createFileWithoutCheckingPath (fileName)
                          .getFileNameWithoutExtension()
                          .replaceCharacter ('_', ' ')
                          .trim();
    const auto withCategory = name.contains (separator) ? name : "User" + separator + name;

    // A parameter's text has an end, and a name that does not fit would not be found again.
    return categoryOf (withCategory) + separator
           + shortNameOf (withCategory).substring (0, Parameters::maxTextLength).trim();
}

juce::String shortNameOf (const juce::String& displayName)
{
    return displayName.fromFirstOccurrenceOf (separator, false, false);
}

juce::String categoryOf (const juce::String& displayName)
{
    return displayName.upToFirstOccurrenceOf (separator, false, false);
}

const juce::StringArray& factoryTableNames()
{
    static const juce::StringArray names {
        // clang-format off
        "Basics - ARP", "Basics - Detuned_ARP", "Basics - Saw", "Basics - SQR", "Basics - First",
        "Basics - Retro", "Basics - Sine", "Basics - SAW_2", "Basics - Square", "Basics - HollinA",
        "Basics - HollinB", "Basics - HollinE", "Basics - Fair_Square", "Basics - TRI",

        "Buzzy - Buzz", "Buzzy - Fattie_Pattie", "Buzzy - Triaj", "Buzzy - Flat", "Buzzy - Checks_Out",
        "Buzzy - Spiky",

        "Classics - Octaves", "Classics - Another_Saw", "Classics - Its_a_Prophet", "Classics - Bass_Boy",
        "Classics - Super_Mooj", "Classics - Res_His", "Classics - Sined_Harm", "Classics - OP_Vibes",
        "Classics - Sined_up", "Classics - Rich",

        "Hammond - Hammond_5", "Hammond - Hammond_6", "Hammond - Hammond_7", "Hammond - Hammond_8",
        "Hammond - Hammond_9", "Hammond - Hammond_10", "Hammond - Hammond_11", "Hammond - Hammond_12",
        "Hammond - Hammond_13", "Hammond - Hammond_14", "Hammond - Hammond_15", "Hammond - Hammond_16",
        "Hammond - Hammond_17",

        "Middy - Nasal", "Middy - Intimate", "Middy - Ducky", "Middy - Slingy", "Middy - Cuts_Through",
        "Middy - Knife", "Middy - Knit_and_Grit", "Middy - Vibration", "Middy - Oboe", "Middy - Mellow",

        "Organ - Church", "Organ - Harmonium", "Organ - Oregano", "Organ - Orchestral", "Organ - Healthy",
        "Organ - Cheap_Organ", "Organ - Basics_Organ_2", "Organ - Basics_Organ",

        "Smooth - Thin_and_Clean", "Smooth - Soothing", "Smooth - Medow", "Smooth - Floot",

        "Special - Noisy", "Special - Sharp", "Special - Neat", "Special - Skinny", "Special - Malfunction",
        // clang-format on
    };

    return names;
}
} // namespace Zn::Audio::WavetableSynth
