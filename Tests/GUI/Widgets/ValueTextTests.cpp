#include "GUI/Support/ControlBench.h"
#include "GUI/Widgets/ControlTexts.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
juce::String plain (const juce::String& text)
{
    return text.replaceCharacter (0x2212, '-');
}

using Style = ValueStyle;
} // namespace

TEST (ValueText, WritesEachValueAsItsKindIsWritten)
{
    Tests::ControlBench bench;
    auto& params = bench.getParams();
    auto& synth = params.sound.synth;

    struct Row
    {
        Audio::ParamHolderBase& holder;
        Style style;
        const char *set, *shown, *precise, *full;
    };

    const Row rows[] = {
        { synth.filter.cutoff, Style::hertz, "840", "840 Hz", "840.0 Hz", "840.0 Hz" },
        { synth.filter.cutoff, Style::hertz, "2412", "2.4 kHz", "2.41 k", "2.41 kHz" },
        { synth.filter.resonance, Style::decimals, "2.1", "2.10", "2.100", "2.100" },
        { synth.adsr.attack, Style::seconds, "0.02", "20 ms", "20.0 ms", "20.0 ms" },
        { synth.adsr.attack, Style::seconds, "1", "1.00 s", "1.000 s", "1.000 s" },
        { synth.delay.feedback, Style::percent, "0.28", "28 %", "28.0 %", "28.0 %" },
        { synth.sub.subVolume, Style::decibels, "-7.2", "-7.2", "-7.20", "-7.20 dB" },
        { synth.sub.subVolume, Style::decibels, "-12", "-12", "-12.0", "-12.00 dB" },
        { params.octave, Style::signedNumber, "1", "+1", "+1", "+1" },
        { params.transpose, Style::semitones, "-7", "-7 st", "-7 st", "-7 st" },
        { params.swing, Style::signedPercent, "36", "+36 %", "+36 %", "+36 %" },
        { params.key, Style::ownText, "A", "A", "A", "A" },
    };

    for (const auto& row : rows)
    {
        const auto parameter = bench.of (row.holder);
        const ValueText text { row.style };
        parameter->setFromText (row.set);

        EXPECT_EQ (plain (text.current (*parameter)), row.shown);
        EXPECT_EQ (plain (text.current (*parameter, ValueDetail::precise)), row.precise) << row.shown;
        EXPECT_EQ (plain (text.current (*parameter, ValueDetail::full)), row.full) << row.shown;
    }
}

TEST (ValueText, ReadsUnitsAndWordsAndRefusesTheRest)
{
    Tests::ControlBench bench;
    auto& params = bench.getParams();
    auto& synth = params.sound.synth;

    struct Row
    {
        Audio::ParamHolderBase& holder;
        Style style;
        const char *typed, *shown; // none: refused
    };

    const Row rows[] = {
        { synth.filter.cutoff, Style::hertz, "2.4k", "2.4 kHz" },
        { synth.filter.cutoff, Style::hertz, "2400 Hz", "2.4 kHz" },
        { synth.filter.cutoff, Style::hertz, "2,4", "2.4 kHz" },
        { synth.filter.cutoff, Style::hertz, "840", "840 Hz" },
        { synth.filter.cutoff, Style::hertz, "20 dB", nullptr },
        { synth.adsr.attack, Style::seconds, "180 ms", "180 ms" },
        { synth.adsr.attack, Style::seconds, "180", "180 ms" },
        { synth.adsr.attack, Style::seconds, "0.18", "180 ms" },
        { synth.adsr.attack, Style::seconds, "nan", nullptr },
        { synth.delay.mix, Style::percent, "42 %", "42 %" },
        { synth.delay.mix, Style::percent, "42", "42 %" },
        { synth.delay.mix, Style::percent, "0.42", "42 %" },
        { synth.delay.mix, Style::percent, "1.2.3", nullptr },
        { synth.sub.subVolume, Style::decibels, "-6 dB", "-6.0" },
        { synth.sub.subVolume, Style::decibels, "-inf", "-\u221e" },
        { synth.sub.subVolume, Style::decibels, "loud", nullptr },
        { params.transpose, Style::semitones, "\u22127", "-7 st" },
        { params.retrigger, Style::ownText, "on", "On" },
        { params.retrigger, Style::ownText, "maybe", nullptr },
        { params.key, Style::ownText, "bb", "Bb" },
        { params.key, Style::ownText, "H", nullptr },
        { synth.delay.timeSync, Style::ownText, "1/8D", "1/8D" },
        { params.sound.unison, Style::ownText, "2", "2" },
        { params.sound.unison, Style::ownText, "", nullptr },
    };

    for (const auto& row : rows)
    {
        const auto parameter = bench.of (row.holder);
        const ValueText text { row.style };
        const auto read = text.read (juce::String::fromUTF8 (row.typed), *parameter);

        ASSERT_EQ (read.has_value(), row.shown != nullptr) << row.typed;

        if (read)
        {
            parameter->setFromText (*read);
            EXPECT_EQ (plain (text.current (*parameter)), juce::String::fromUTF8 (row.shown)) << row.typed;
        }
    }
}

TEST (ValueText, ReadsBackWhateverItShows)
{
    Tests::ControlBench bench;
    auto& synth = bench.getParams().sound.synth;

    const std::pair<const char*, Audio::ParamHolderBase&> controls[] = {
        { "Transpose", bench.getParams().transpose },
        { "Swing", bench.getParams().swing },
        { "Quantize", bench.getParams().quantize },
        { "Osc1Octave", synth.oscillators.oscillators[0].octave },
        { "Osc1Volume", synth.oscillators.oscillators[0].volume },
        { "FilterCutoff", synth.filter.cutoff },
        { "FilterResonance", synth.filter.resonance },
        { "EnvelopeRelease", synth.adsr.release },
        { "EnvelopeSustain", synth.adsr.sustain },
        { "DelayTimeSync", synth.delay.timeSync },
        { "DelayFeedback", synth.delay.feedback },
    };

    for (const auto& [element, holder] : controls)
        for (auto position = 0; position <= 20; ++position)
            for (const auto detail : { ValueDetail::shown, ValueDetail::precise, ValueDetail::full })
            {
                const auto parameter = bench.of (holder);
                const ValueText text { controlText (element).style };
                parameter->setNormalisedNotifying (float (position) / 20.0f);

                const auto shown = text.current (*parameter, detail);
                const auto read = text.read (shown, *parameter);
                ASSERT_TRUE (read) << element << " " << shown;

                parameter->setFromText (*read);
                EXPECT_EQ (text.current (*parameter, detail), shown) << element;
            }
}
} // namespace Zn::GUI
