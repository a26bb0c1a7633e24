#include "GUI/Support/ControlBench.h"
#include "GUI/Widgets/Choice.h"
#include "GUI/Widgets/Knob.h"
#include "GUI/Widgets/RangeSlider.h"
#include "GUI/Widgets/Segments.h"
#include "GUI/Widgets/Stepper.h"
#include "GUI/Widgets/Toggle.h"
#include "Parameters/AtomicBool.h"
#include "Parameters/Connector.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
namespace Hand = Tests::Hand;

struct Controls : testing::Test
{
    Tests::ControlBench bench;
    Audio::WavetableSynth::Params& synth = bench.getParams().sound.synth;
    std::shared_ptr<Parameters::Parameter> mix = bench.of (synth.delay.mix);
};

const juce::ModifierKeys shiftedButton { juce::ModifierKeys::leftButtonModifier
                                         | juce::ModifierKeys::shiftModifier };
const juce::ModifierKeys commandButton { juce::ModifierKeys::leftButtonModifier
                                         | juce::ModifierKeys::commandModifier };
} // namespace

TEST_F (Controls, DragOverTheWholeRangeIsOneGestureAndOneStep)
{
    const auto knob = bench.make<Knob> ("DelayMix", mix);
    const auto whole = 220.0f; // pixels: 200 thousandths of the width

    Hand::drag (*knob, { { 10, 300 }, { 10, 250 }, { 10, 300 - whole / 2 } });
    EXPECT_NEAR (mix->getNormalised(), 0.5f, 0.001f);
    EXPECT_EQ (bench.steps, 1);
    EXPECT_FALSE (mix->isGestureActive());

    Hand::drag (*knob, { { 10, 300 }, { 10, 300 - whole / 2 } }, shiftedButton);
    EXPECT_NEAR (mix->getNormalised(), 0.55f, 0.001f) << "a tenth with Shift";

    Hand::drag (*knob, { { 10, 300 }, { 10, 260 }, { 10, 300 } });
    EXPECT_EQ (bench.steps, 2) << "nothing has changed in the end";
}

TEST_F (Controls, EscapeInADragPutsBackWhatWasThere)
{
    const auto knob = bench.make<Knob> ("DelayMix", mix);
    knob->mouseDown (Hand::mouseEvent (*knob, { 10, 100 }, { 10, 100 }, Hand::leftButton));
    knob->mouseDrag (Hand::mouseEvent (*knob, { 10, 50 }, { 10, 100 }, Hand::leftButton, 1, true));
    ASSERT_GT (mix->getNormalised(), 0.1f);

    EXPECT_TRUE (Hand::press (*knob, "escape"));
    EXPECT_EQ (mix->getNormalised(), 0.0f);
    EXPECT_FALSE (mix->isGestureActive());
    EXPECT_EQ (bench.steps, 0);
}

TEST_F (Controls, KeysAloneSetAnyValue)
{
    const auto knob = bench.make<Knob> ("DelayMix", mix);
    const auto tune = bench.of (synth.oscillators.oscillators[0].tune);
    const auto stepped = bench.make<Knob> ("Osc1Tune", tune);

    const std::pair<const char*, const char*> rows[] = {
        { "cursor up", "1 %" },
        { "cursor right", "2 %" },
        { "page up", "12 %" },
        { "cursor left", "11 %" },
        { "end", "100 %" },
        { "page down", "90 %" },
        { "shift + cursor down", "90 %" },
        { "delete", "0 %" },
        { "home", "0 %" },
    };

    for (const auto& [key, shown] : rows)
    {
        EXPECT_TRUE (Hand::press (*knob, key)) << key;
        EXPECT_EQ (knob->getShownText(), shown) << key;
    }

    Hand::press (*stepped, "cursor up");
    Hand::press (*stepped, "page up");
    EXPECT_EQ (tune->getInt(), 11);

    EXPECT_TRUE (Hand::press (*knob, "return"));
    EXPECT_EQ (bench.overlay.offered, "0.0 %");
    EXPECT_FALSE (bench.overlay.accept ("much"));
    EXPECT_TRUE (bench.overlay.accept ("42"));
    EXPECT_EQ (knob->getShownText(), "42 %");

    stepped->typeValue();
    bench.overlay.next(); // Tab
    EXPECT_EQ (bench.overlay.enteredOver, "DelayMix");

    EXPECT_FALSE (Hand::press (*knob, "spacebar")) << "belongs to the host";
    EXPECT_FALSE (Hand::press (*knob, "ctrl + cursor up"));
}

TEST_F (Controls, QuickTurnsOfTheWheelJoinUnlessTheUserTurnsThatOff)
{
    const auto knob = bench.make<Knob> ("DelayMix", mix);

    for (auto turn = 0; turn < 3; ++turn)
        Hand::turnWheel (*knob, 0.2f);

    bench.edits.finish();
    EXPECT_EQ (knob->getShownText(), "3 %");
    EXPECT_EQ (bench.steps, 1);

    Hand::turnWheel (*knob, 0.2f, juce::ModifierKeys::shiftModifier);
    EXPECT_NEAR (mix->getNormalised(), 0.031f, 1e-5f);

    auto values = bench.settings.get();
    values.wheelTurnsKnobs = false;
    bench.settings.set (values);
    Hand::turnWheel (*knob, 0.2f);
    EXPECT_NEAR (mix->getNormalised(), 0.031f, 1e-5f);
}

TEST_F (Controls, DoubleClickAndCommandClickGoBackToTheDefault)
{
    const auto cutoff = bench.of (synth.filter.cutoff);
    const auto knob = bench.make<Knob> ("FilterCutoff", cutoff);

    cutoff->setFromText ("100");
    Hand::doubleClick (*knob, knob->getLocalBounds().toFloat().getCentre());
    EXPECT_EQ (knob->getShownText(), "8.0 kHz");

    cutoff->setFromText ("100");
    Hand::click (*knob, commandButton);
    EXPECT_EQ (knob->getShownText(), "8.0 kHz");

    Hand::doubleClick (*knob, knob->getLocalBounds().getBottomLeft().translated (9, -2).toFloat());
    EXPECT_EQ (bench.overlay.offered, "8.00 kHz") << "the value opens the text entry";
}

TEST_F (Controls, TwoQuickClicksAreTwo)
{
    const auto voices = bench.of (synth.sub.subOctave); // by default -2
    const auto stepper = bench.make<Stepper> ("Octave", voices);
    Hand::doubleClick (
        *stepper,
        stepper->getLocalBounds().toFloat().getCentre().withX (static_cast<float> (stepper->getWidth() - 3)));
    EXPECT_EQ (voices->getInt(), 0);
    EXPECT_EQ (bench.steps, 2);

    const auto segments = bench.make<Segments> ("DelayMode", bench.of (synth.delay.mode));

    for (const auto* segment : { "DelayModeFree", "DelayModeSync" })
        Hand::click (Hand::find<juce::Component> (*segments, segment));

    EXPECT_EQ (bench.steps, 4);

    const auto enable = bench.of (synth.filter.enable);
    const auto toggle = bench.make<Toggle> ("FilterEnable", enable, Toggle::Options {});
    enable->setBool (false);
    Hand::doubleClick (*toggle, toggle->getLocalBounds().toFloat().getCentre());
    EXPECT_FALSE (enable->getBool());
}

TEST_F (Controls, TogglesPaintOverOthersOfTheirKindInOneStep)
{
    auto& oscillators = synth.oscillators.oscillators;
    std::vector<std::unique_ptr<Toggle>> toggles;
    const Toggle::Options look { .look = Toggle::Look::power, .accent = "Sound" };

    for (auto index = 0; index < 3; ++index)
        toggles.push_back (bench.make<Toggle> ("Osc" + std::to_string (index + 1) + "Enable",
                                               bench.of (oscillators[std::size_t (index)].enable),
                                               look));

    const auto middleOf = [&] (std::size_t index) {
        return toggles[0]
            ->getLocalPoint (toggles[index].get(), toggles[index]->getLocalBounds().getCentre())
            .toFloat();
    };

    auto& first = *toggles[0];
    first.mouseDown (Hand::mouseEvent (first, middleOf (0), middleOf (0), Hand::leftButton));
    first.mouseDrag (Hand::mouseEvent (first, middleOf (1), middleOf (0), Hand::leftButton, 1, true));
    EXPECT_FALSE (toggles[1]->isOn());
    EXPECT_TRUE (Hand::press (first, "escape"));

    for (const auto& toggle : toggles)
        EXPECT_TRUE (toggle->isOn());

    EXPECT_EQ (bench.steps, 0);
    Hand::drag (first, { middleOf (0), middleOf (1), middleOf (2), middleOf (1) });

    for (const auto& toggle : toggles)
        EXPECT_FALSE (toggle->isOn());

    EXPECT_EQ (bench.steps, 1);
}

TEST_F (Controls, ChoicesAndSegmentsGoToTheOneBeforeAndAfter)
{
    const auto quantize = bench.of (bench.getParams().quantize);
    const auto choice = bench.make<Choice> ("Quantize", quantize);
    const auto mode = bench.of (synth.delay.mode);
    const auto segments = bench.make<Segments> ("DelayMode", mode);

    Hand::press (*choice, "cursor down");
    EXPECT_EQ (choice->getShownText(), "1/8");
    Hand::turnWheel (*choice, 0.2f);
    EXPECT_EQ (choice->getShownText(), "1/4");
    Hand::press (*choice, "return");
    EXPECT_EQ (bench.overlay.choices.subItems.size(), 6u);

    Hand::press (*segments, "cursor right");
    EXPECT_EQ (segments->getShownText(), "Free");
    auto& sync = Hand::find<juce::Component> (*segments, "DelayModeSync");
    Hand::click (sync);
    EXPECT_EQ (segments->getShownText(), "Sync");
    sync.mouseEnter (Hand::mouseEvent (sync, {}, {}, {}));
    Hand::turnWheel (sync, -0.2f);
    EXPECT_EQ (segments->getShownText(), "Sync") << "too early to be meant";
}

TEST_F (Controls, ShowWhateverElseHasSetTheirValue)
{
    struct Shown : ValueControl
    {
        using ValueControl::shownPosition;
        using ValueControl::shownText;
        using ValueControl::ValueControl;

        void paintControl (juce::Graphics&) override {}
    };

    const std::pair<const char*, std::shared_ptr<Parameters::Parameter>> rows[] = {
        { "DelayMix", std::make_shared<Parameters::Connector> (mix) },
        { "FilterCutoff", bench.of (synth.filter.cutoff) },
        { "Osc1Volume", bench.of (synth.oscillators.oscillators[0].volume) },
        { "Osc1Tune", bench.of (synth.oscillators.oscillators[0].tune) },
        { "DelayMode", bench.of (synth.delay.mode) },
        { "FilterEnable", bench.of (synth.filter.enable) },
        { "KeyMode", std::make_shared<Parameters::AtomicBool> (bench.getState().keyMode, "Key mode") },
    };

    for (const auto& [element, value] : rows)
    {
        const auto control = bench.make<Shown> (element, value);

        for (const auto normalised : { 1.0f, 0.0f, 0.4f, 0.41f })
        {
            value->setRawNormalised (normalised);
            bench.polls.callListeners();
            EXPECT_EQ (control->shownText(), control->getShownText()) << element << " " << normalised;
            EXPECT_EQ (control->shownPosition(), value->getNormalised()) << element << " " << normalised;
        }
    }
}

TEST_F (Controls, TheEndsOfARangeStayApart)
{
    auto& state = bench.processor.getState();
    const auto low = std::make_shared<Parameters::Connector> (
        std::shared_ptr<Parameters::Parameter> (std::shared_ptr<void>(), &state.lowestOctave));
    const auto high = std::make_shared<Parameters::Connector> (
        std::shared_ptr<Parameters::Parameter> (std::shared_ptr<void>(), &state.highestOctave));
    const auto range = bench.make<RangeSlider> ("OctaveRange", low, high);
    const auto right = range->getWidth() - 1;
    auto& lowEnd = Hand::find<ValueControl> (*range, "OctaveRangeLow");
    auto& highEnd = Hand::find<ValueControl> (*range, "OctaveRangeHigh");

    EXPECT_EQ (range->getShownText(), "All");
    EXPECT_EQ (range->getComponentAt (right - 9, 5), &highEnd) << "the nearer one";
    EXPECT_EQ (range->getComponentAt (9, 5), &lowEnd);
    Hand::drag (highEnd, { { float (right), 5 }, { float (right) / 2, 5 }, { -99, 5 } });
    EXPECT_EQ (high->getInt(), 1);
    EXPECT_EQ (bench.steps, 1);
    EXPECT_EQ (bench.overlay.readout, "") << "gone with the drag";

    const std::tuple<const char*, int, int> rows[] = { { "cursor right", 0, 2 },
                                                       { "end", 0, 11 },
                                                       { "page down", 0, 1 },
                                                       { "delete", 0, 11 } };

    for (const auto& [key, lowest, highest] : rows)
    {
        Hand::press (highEnd, key);
        EXPECT_EQ (low->getInt(), lowest) << key;
        EXPECT_EQ (high->getInt(), highest) << key;
    }

    EXPECT_TRUE (lowEnd.setFromTyped ("c1"));
    EXPECT_FALSE (lowEnd.setFromTyped ("b1")) << "no lowest pitch of an octave";
    EXPECT_TRUE (highEnd.setFromTyped ("b0")) << "but not below the lowest";
    EXPECT_EQ (range->getShownText().retainCharacters ("BC1"), "C1B1");
}

TEST_F (Controls, WhileLearningAPressArmsWhatTheHostKnows)
{
    const auto knob = bench.make<Knob> ("DelayMix", mix);
    bench.learning.setActive (true);
    Hand::click (*knob);

    EXPECT_TRUE (bench.learning.isArmed (Learning::Target::forParam ("Delay-Mix")));
}

TEST_F (Controls, WhatIsDisabledDoesNothing)
{
    const auto knob = bench.make<Knob> ("DelayMix", mix);
    auto isOn = true;
    knob->setEnabledWhen ([&] { return isOn; });
    isOn = false;
    bench.polls.callListeners();

    Hand::drag (*knob, { { 10, 100 }, { 10, 0 } });
    Hand::turnWheel (*knob, 0.2f);
    EXPECT_FALSE (Hand::press (*knob, "cursor up"));
    EXPECT_EQ (mix->getNormalised(), 0.0f);
}
} // namespace Zn::GUI
