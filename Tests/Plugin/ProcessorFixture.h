#pragma once

#include "Plugin/Vornel/Processor.h"

#include "Support/MidiText.h"
#include "Support/TestHost.h"
#include "Support/WalkPattern.h"

#include <gtest/gtest.h>

#include <vector>

namespace Zn::Audio::Plugins::Vornel
{
using Tests::events;
using Tests::TestHost;

inline constexpr int quarter = 24000; // samples at 48 kHz and 120 beats a minute
inline constexpr int bar = 4 * quarter;

/** A processor whose parameters and patterns a test sets by name and by drawing. It begins with the plain sound, and with
    a walk up and down the held chord in the first slot.
*/
struct ProcessorFixture
{
    explicit ProcessorFixture (Role role = Role::instrument) : processor (StartUp::empty, role)
    {
        Tests::drawWalk (state.patterns);
        processor.setSeed (1);
    }

    void set (const juce::String& identifier, const juce::String& text)
    {
        for (auto* parameter : processor.getParameters())
            if (auto* hosted = dynamic_cast<juce::HostedAudioProcessorParameter*> (parameter);
                hosted != nullptr && hosted->getParameterID() == identifier)
                return hosted->setValueNotifyingHost (hosted->getValueForText (text));

        ADD_FAILURE() << "no parameter " << identifier;
    }

    /** So many even steps over one bar in one slot, on the row of the lowest held key plus `row`. The gate is a
        proportion of a step.
    */
    void drawSteps (size_t slot, int numSteps, int row, double gate = 0.5)
    {
        const Sequencer::PatternController::Edit edit (state.patterns);
        auto& drawn = state.patterns.getSlots()[slot];
        drawn.reset();

        for (auto i = 0; i < numSteps; ++i)
        {
            Sequencer::TimedNote step;
            step.time = { double (i) / numSteps, gate / numSteps };
            step.event.noteNum = lowestHeld + row;
            step.enabled = true;
            drawn.pattern.steps.push_back (step);
        }
    }

    /** One note on every quarter. */
    void drawQuarters (size_t slot, int row, double gate = 0.5) { drawSteps (slot, 4, row, gate); }

    static constexpr int lowestHeld = 64; // the row of the lowest held key

    Processor processor;
    State& state = processor.getState();
};

/** What the host received from a sample on. */
inline std::vector<Tests::Received> receivedFrom (const Tests::TestHost& host, std::int64_t sample)
{
    auto received = host.getReceived();
    std::erase_if (received, [sample] (const auto& message) { return message.sample < sample; });
    return received;
}

/** The samples at which a note was started. */
inline std::vector<int> startsOf (const TestHost& host, int note)
{
    std::vector<int> samples;

    for (const auto& message : host.getReceived())
        if (message.isNoteOn() && message.note() == note)
            samples.push_back (static_cast<int> (message.sample));

    return samples;
}
} // namespace Zn::Audio::Plugins::Vornel
