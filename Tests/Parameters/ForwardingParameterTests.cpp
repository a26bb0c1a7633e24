#include "Parameters/CreateForwarder.h"
#include "Parameters/HostParamList.h"
#include "Parameters/ParamKinds.h"
#include "Parameters/ParameterLogs.h"

#include <gtest/gtest.h>

#include <thread>

namespace Zn::Audio
{
namespace
{
using Tests::HostLog;
using Tests::Lines;
using Tests::PlainProcessor;

struct Tree : ParamList
{
    BoolParam enable { *this, "Enable", true };
    FloatParam cutoff { *this, "Cutoff", { 10.0f, 12000.0f }, 8000.0f };
    IntParam transpose { *this, "Transpose", { -12, 12 }, 0 };
    VolumeParam volume { *this, "Volume", 6.0f, -15.0f };
    FloatParam depth { *this, "Depth", { 0.0f, 1.0f }, 0.5f }; // not for the host
};

/** A processor with four of the tree's five parameters, in another order than the tree's. */
struct Plugin
{
    Plugin()
    {
        host.forward ("OSC-0-Volume", tree.volume);
        host.forward ("Transpose", tree.transpose);
        host.forward ("Filter-Cutoff", tree.cutoff);
        host.forward ("Filter-Enable", tree.enable);
        host.addTo (processor);
    }

    juce::HostedAudioProcessorParameter& at (int index)
    {
        return dynamic_cast<juce::HostedAudioProcessorParameter&> (*processor.getParameters()[index]);
    }

    PlainProcessor processor;
    ManagedParameters managed;
    Tree tree;
    HostParamList host { managed };
};

enum
{
    volume,
    transpose,
    cutoff,
    enable
};
} // namespace

TEST (ForwardingParameter, OutlivesTheTreeAndTheManagedList)
{
    PlainProcessor processor;

    {
        ManagedParameters managed;
        Tree tree;
        HostParamList host { managed };
        host.forward ("Filter-Cutoff", tree.cutoff);
        host.addTo (processor);
    }

    processor.getParameters()[0]->setValueNotifyingHost (1.0f);
    EXPECT_EQ (processor.getParameters()[0]->getCurrentValueAsText(), "12000.00");
}

TEST (ForwardingParameter, TellsEachSideOnceOfTheOthersChange)
{
    Plugin plugin;
    HostLog host (plugin.at (cutoff)), editor (plugin.tree.cutoff.getParameter());

    plugin.tree.cutoff.getParameter().setValueNotifyingHost (0.25f);
    EXPECT_EQ (host.lines, Lines { "0.250000" });
    EXPECT_EQ (editor.lines, Lines { "0.250000" });

    plugin.at (cutoff).setValueNotifyingHost (0.75f);
    EXPECT_EQ (host.lines, (Lines { "0.250000", "0.750000" }));
    EXPECT_EQ (editor.lines, (Lines { "0.250000", "0.750000" }));

    plugin.at (cutoff).setValueNotifyingHost (0.75f);
    EXPECT_EQ (editor.lines.size(), 2u) << "nothing changed";
}

TEST (ForwardingParameter, HandsAHostBackExactlyWhatItSet)
{
    Plugin plugin;

    for (auto i = 0; i <= 10000; ++i)
        for (const auto index : { volume, cutoff })
        {
            const auto value = static_cast<float> (i) / 10000.0f;
            plugin.at (index).setValue (value);
            ASSERT_EQ (plugin.at (index).getValue(), value);
        }
}

TEST (ForwardingParameter, StoresSwitchesAndStepsAsEverySideReadsThem)
{
    Plugin plugin;

    const std::pair<float, bool> rows[] { { 0.0f, false }, { 0.5f, false }, { 0.51f, true }, { 1.0f, true } };

    for (const auto& [value, isOn] : rows)
    {
        plugin.at (enable).setValue (value);
        EXPECT_EQ (plugin.tree.enable.get(), isOn) << value;
        EXPECT_EQ (plugin.at (enable).getValue(), isOn ? 1.0f : 0.0f) << value;
        EXPECT_EQ (plugin.at (enable).getText (value, 30), isOn ? "On" : "Off") << value;
    }

    plugin.at (transpose).setValue (0.51f);
    EXPECT_EQ (plugin.tree.transpose.get(), 0);
    EXPECT_EQ (plugin.at (transpose).getValue(), 0.5f);
}

TEST (ForwardingParameter, BothSidesAgreeAfterTwoThreadsHaveChangedThem)
{
    Plugin plugin;
    auto& host = plugin.at (volume);
    auto& target = plugin.tree.volume.getParameter();

    const auto setMany = [] (juce::AudioProcessorParameter& parameter, float last) {
        for (auto i = 1; i <= 2000; ++i)
            parameter.setValueNotifyingHost (last * static_cast<float> (i) / 2000.0f);
    };

    {
        std::jthread fromHost ([&] { setMany (host, 0.9f); });
        std::jthread fromEditor ([&] { setMany (target, 0.3f); });
    }

    const auto heard = target.getValue();
    EXPECT_TRUE (std::abs (heard - 0.9f) < 1e-5f || std::abs (heard - 0.3f) < 1e-5f) << heard;
    EXPECT_NEAR (host.getValue(), heard, 1e-5f);
}

TEST (Gesture, ReachesTheHostOnceHoweverOftenItIsBegun)
{
    Plugin plugin;
    HostLog host (plugin.at (cutoff)), editor (plugin.tree.cutoff.getParameter());
    const auto knob = Parameters::createForwarder (plugin.tree.cutoff);

    knob->beginGesture();
    knob->beginGesture();
    EXPECT_TRUE (knob->isGestureActive());
    knob->setNormalisedNotifying (0.5f);
    knob->endGesture();
    knob->endGesture();

    EXPECT_FALSE (knob->isGestureActive());
    EXPECT_EQ (host.lines, (Lines { "begin", "0.500000", "end" }));
    EXPECT_EQ (editor.lines, Lines { "0.500000" }) << "the target has no place in the host to speak of";
}

TEST (Gesture, OnATargetThatTheHostListsItselfIsPassedOn)
{
    PlainProcessor processor;
    ManagedParameters managed;
    Tree tree;
    processor.addParameter (tree.cutoff.handOver().release());

    HostParamList host { managed };
    host.forward ("Cutoff-Again", tree.cutoff);
    host.addTo (processor);
    EXPECT_EQ (managed.size(), 0u);

    HostLog log (*processor.getParameters()[1]);
    tree.cutoff->beginChangeGesture();
    tree.cutoff->endChangeGesture();
    EXPECT_EQ (log.lines, (Lines { "begin", "end" }));
}
} // namespace Zn::Audio
