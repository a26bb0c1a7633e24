#include "Hosts/Song.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace Zn::Tests
{
namespace
{
constexpr auto numParameters = 40;
constexpr auto longestName = 128;

/** The parameters as VST3 hosts list them, without the bypass and the MIDI controllers that JUCE adds. */
std::map<std::string, juce::AudioProcessorParameter*> parametersOf (juce::AudioPluginInstance& plugin)
{
    std::map<std::string, juce::AudioProcessorParameter*> parameters;

    for (auto* parameter : plugin.getParameters())
    {
        const auto name = parameter->getName (longestName);

        if (parameter == plugin.getBypassParameter() || name.startsWith ("MIDI CC"))
            continue;

        EXPECT_TRUE (parameters.emplace (name.toStdString(), parameter).second) << name << " is there twice";
    }

    return parameters;
}

/** The labels of the parameters that the bundle describes. */
std::set<std::string> namesInBundle()
{
    const auto text = juce::File (VORNEL_LV2_LIBRARY).getSiblingFile ("dsp.ttl").loadFileAsString();
    std::set<std::string> names;

    for (auto rest = text.fromFirstOccurrenceOf ("a lv2:Parameter", false, false); rest.isNotEmpty();
         rest = rest.fromFirstOccurrenceOf ("a lv2:Parameter", false, false))
        names.insert (rest.fromFirstOccurrenceOf ("rdfs:label \"", false, false)
                          .upToFirstOccurrenceOf ("\"", false, false)
                          .toStdString());

    return names;
}

/** The number that a VST3 plug-in's class has in projects of JUCE's hosts: of the two codes it is made with. */
int classNumber (juce::uint32 manufacturer, juce::uint32 plugin)
{
    juce::uint32 number = 0;

    for (auto part : { 0xABCDEF01u, 0x9182FAEBu, manufacturer, plugin })
        number = number * 31 + part;

    return static_cast<int> (number);
}

TEST (HostedPlugins, AreKnownByWhatProjectsHaveOfThem)
{
    constexpr juce::uint32 brvk = 0x4272766B, vrnl = 0x56726E6C, vrnM = 0x56726E4D;

    const auto check = [] (const char* bundle, const auto& name, const auto& category, int number) {
        VST3Host host { bundle, sampleRate, blockSize };
        const auto description = host.getPlugin().getPluginDescription();

        EXPECT_EQ (description.name, name);
        EXPECT_EQ (description.manufacturerName, "Brenvik");
        EXPECT_EQ (description.category, category);
        EXPECT_EQ (description.uniqueId, number) << name;
    };

    check (VORNEL_VST3_BUNDLE, "Vornel", "Instrument|Synth", classNumber (brvk, vrnl));
    check (VORNEL_MIDI_VST3_BUNDLE, "Vornel MIDI", "Fx|Tools", classNumber (brvk, vrnM));
}

TEST (HostedParameters, HaveTheSameNamesInEveryFormat)
{
    VST3Host vst3 { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    std::set<std::string> names;

    for (const auto& [name, parameter] : parametersOf (vst3.getPlugin()))
        names.insert (name);

    EXPECT_EQ (names.size(), numParameters);
    EXPECT_EQ (names, namesInBundle());
    EXPECT_EQ (names.count ("Filter Cutoff"), 1u);
}

TEST (HostedParameters, ReadBackEveryTextThatTheyShow)
{
    constexpr auto positions = 20;
    VST3Host host { VORNEL_VST3_BUNDLE, sampleRate, blockSize };

    for (const auto& [name, parameter] : parametersOf (host.getPlugin()))
        for (auto i = 0; i <= positions; ++i)
        {
            const auto text = parameter->getText (float (i) / positions, longestName);
            EXPECT_NE (text, "") << name;
            EXPECT_EQ (parameter->getText (parameter->getValueForText (text), longestName), text) << name;
        }
}

TEST (HostedParameters, TellTheirUnitsWhereTheTextDoesNot)
{
    VST3Host host { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    std::map<std::string, std::string> units;

    for (const auto& [name, parameter] : parametersOf (host.getPlugin()))
        if (const auto unit = parameter->getLabel(); unit.isNotEmpty())
            units.emplace (name, unit.toStdString());

    const std::map<std::string, std::string> expected {
        { "ADSR Attack", "s" },     { "ADSR Decay", "s" },     { "ADSR Release", "s" },
        { "Delay Time Free", "s" }, { "Filter Cutoff", "Hz" }, { "OSC 0 Tune", "st" },
        { "OSC 1 Tune", "st" },     { "OSC 2 Tune", "st" },    { "OSC 3 Tune", "st" },
        { "Octave", "oct" },        { "Sub Octave", "oct" },   { "Transpose", "st" },
    };
    EXPECT_EQ (units, expected);
}

TEST (HostedParameters, LatencyIsNoneAndTheTailFollowsTheSound)
{
    VST3Host vst3 { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    LV2Host lv2 { VORNEL_LV2_LIBRARY, sampleRate, blockSize };
    const auto parameters = parametersOf (vst3.getPlugin());
    const auto set = [&] (const std::string& name, const juce::String& text) {
        parameters.at (name)->setValueNotifyingHost (parameters.at (name)->getValueForText (text));
    };

    lv2.run (blockSize, {}, {});
    EXPECT_EQ (lv2.getLatency(), 0.0f);
    EXPECT_EQ (vst3.getPlugin().getLatencySamples(), 0);

    set ("ADSR Release", "0.50");
    set ("Delay Mix", "0.00");
    vst3.run (blockSize, {});
    EXPECT_NEAR (vst3.getPlugin().getTailLengthSeconds(), 0.5, 0.01);

    set ("Delay Mix", "0.50");
    set ("Delay Mode", "Free");
    set ("Delay Time Free", "0.25");
    set ("Delay Feedback", "0.00");
    vst3.run (blockSize, {});
    EXPECT_NEAR (vst3.getPlugin().getTailLengthSeconds(), 0.75, 0.01);

    set ("Delay Feedback", "0.40");
    vst3.run (blockSize, {});
    EXPECT_NEAR (vst3.getPlugin().getTailLengthSeconds(), 0.5 + 10 * 0.25, 0.01);
}
} // namespace
} // namespace Zn::Tests
