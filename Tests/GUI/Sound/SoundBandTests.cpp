#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Sound/Meter.h"
#include "GUI/Sound/Picture.h"
#include "GUI/Sound/WavetableList.h"
#include "GUI/Support/OpenEditor.h"
#include "GUI/Support/ScreenReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>

namespace Zn::GUI
{
namespace
{
using Point = juce::Point<float>;
using Holders = std::set<const Audio::ParamHolderBase*>;

auto& soundOf (Tests::OpenEditor& editor)
{
    return editor.getState().params.sound;
}

std::map<const Audio::ParamHolderBase*, float> valuesOf (Tests::OpenEditor& editor)
{
    std::map<const Audio::ParamHolderBase*, float> values;
    soundOf (editor).forEachParam (
        [&] (auto& holder) { values[&holder] = holder.getParameter().getValue(); });
    return values;
}

Holders changedBetween (const std::map<const Audio::ParamHolderBase*, float>& before,
                        const std::map<const Audio::ParamHolderBase*, float>& after)
{
    Holders changed;

    for (const auto& [holder, value] : before)
        if (after.at (holder) != value)
            changed.insert (holder);

    return changed;
}

/** A sound whose handles are not at the edges, and nothing to undo. */
void startWithRoom (Tests::OpenEditor& editor)
{
    auto& synth = soundOf (editor).synth;
    *synth.filter.cutoff = 2000.0f;
    *synth.adsr.attack = 0.1f;
    *synth.adsr.decay = 0.3f;
    *synth.adsr.sustain = 0.5f;
    *synth.adsr.release = 0.2f;
    *synth.delay.time = 0.4f;
    *synth.delay.feedback = 0.2f;
    synth.delay.timeSync->setValueNotifyingHost (synth.delay.timeSync->convertTo0to1 (4.0f));
    editor.processor.getUndo().begin();
    editor.processor.getUndo().markChanged();
    editor.processor.getUndo().end ("Start");
    editor.poll();
}

Point startOf (const Picture& picture, std::size_t handle)
{
    return picture.getHandles().empty() ? picture.getLocalBounds().toFloat().getCentre()
                                        : picture.getHandles()[handle];
}

/** Keeps the wavetables between the tests of a suite, which would be built anew for each. */
struct KeepsTables : testing::Test
{
    static void SetUpTestSuite() { tablesStay.emplace(); }
    static void TearDownTestSuite() { tablesStay.reset(); }

    static inline std::optional<Singleton::UserToken> tablesStay;
};

struct SoundPictures : KeepsTables
{};

struct SoundBandTest : KeepsTables
{};

bool showsReadout (Tests::OpenEditor& editor)
{
    auto& overlay = dynamic_cast<OverlayLayer&> (editor.page.getContext().overlay);
    return std::ranges::any_of (overlay.getChildren(), [] (const auto* child) {
        return child->isVisible() && dynamic_cast<const ReadoutCard*> (child) != nullptr;
    });
}

float opacityOf (Tests::OpenEditor& editor, const juce::String& element)
{
    return editor.find (element).getAlpha();
}
} // namespace

TEST_F (SoundPictures, MoveTheirOwnParametersInOneStepOfUndo)
{
    struct Row
    {
        const char* picture;
        std::size_t handle;
        Point movement;
        std::function<Holders (Audio::WavetableSynth::Params&)> moved;
    };

    const Row rows[] {
        { "Osc2Wave", 0, { 0, 40 }, [] (auto& s) { return Holders { &s.oscillators.oscillators[1].type }; } },
        { "FilterCurve",
          0,
          { -20, -5 },
          [] (auto& s) {
              return Holders { &s.filter.cutoff, &s.filter.resonance };
          } },
        { "EnvelopeCurve", 0, { 6, 5 }, [] (auto& s) { return Holders { &s.adsr.attack }; } },
        { "EnvelopeCurve",
          1,
          { 6, 5 },
          [] (auto& s) {
              return Holders { &s.adsr.decay, &s.adsr.sustain };
          } },
        { "EnvelopeCurve", 2, { 6, 5 }, [] (auto& s) { return Holders { &s.adsr.sustain }; } },
        { "EnvelopeCurve", 3, { -6, 5 }, [] (auto& s) { return Holders { &s.adsr.release }; } },
        { "DelayCurve",
          0,
          { 60, -9 },
          [] (auto& s) {
              return Holders { &s.delay.timeSync, &s.delay.feedback };
          } },
    };

    Tests::OpenEditor editor;
    startWithRoom (editor);

    for (const auto& row : rows)
    {
        auto& picture = editor.find<Picture> (row.picture);
        const auto before = valuesOf (editor);
        const auto start = startOf (picture, row.handle);

        Tests::Hand::drag (picture, { start, start + row.movement / 2.0f, start + row.movement });
        EXPECT_EQ (changedBetween (before, valuesOf (editor)), row.moved (soundOf (editor).synth))
            << row.picture << " " << row.handle;

        editor.page.getContext().edits.undo();
        EXPECT_EQ (changedBetween (before, valuesOf (editor)), Holders {})
            << row.picture << " " << row.handle;
    }
}

TEST_F (SoundPictures, KeepTheirHandlesUnderThePointer)
{
    Tests::OpenEditor editor;
    startWithRoom (editor);

    for (const auto& [name, handle] : { std::pair { "FilterCurve", 0u },
                                        std::pair { "EnvelopeCurve", 0u },
                                        std::pair { "EnvelopeCurve", 1u } })
    {
        auto& picture = editor.find<Picture> (name);
        const auto start = startOf (picture, handle), end = start + Point { 4, 3 };
        Tests::Hand::drag (picture, { start, end });

        EXPECT_NEAR (startOf (picture, handle).x, end.x, 1.0f) << name << " " << handle;

        const auto keepsHeight = juce::String (name) == "EnvelopeCurve" && handle == 0u;
        EXPECT_NEAR (startOf (picture, handle).y, keepsHeight ? start.y : end.y, 1.0f)
            << name << " " << handle;
    }
}

TEST_F (SoundPictures, PutEverythingBackOnEscape)
{
    Tests::OpenEditor editor;
    startWithRoom (editor);
    auto& curve = editor.find<Picture> ("EnvelopeCurve");
    const auto before = valuesOf (editor);
    const auto start = startOf (curve, 1), end = start + Point { 9, 9 };

    curve.mouseDown (Tests::Hand::mouseEvent (curve, start, start, Tests::Hand::leftButton));
    curve.mouseDrag (Tests::Hand::mouseEvent (curve, end, start, Tests::Hand::leftButton, 1, true));
    ASSERT_EQ (changedBetween (before, valuesOf (editor)).size(), 2u);

    Tests::Hand::press (curve, "escape");
    curve.mouseDrag (Tests::Hand::mouseEvent (curve, start, start, Tests::Hand::leftButton, 1, true));
    EXPECT_EQ (changedBetween (before, valuesOf (editor)), Holders {});
}

TEST_F (SoundPictures, DragAFreeDelayWithoutSteps)
{
    Tests::OpenEditor editor;
    startWithRoom (editor);
    auto& delay = soundOf (editor).synth.delay;
    *delay.mode = 1;
    editor.poll();

    auto& taps = editor.find<Picture> ("DelayCurve");
    Tests::Hand::drag (taps, { { 30, 30 }, { 30.0f + float (taps.getWidth()) / 10.0f, 30 } });
    EXPECT_GT (delay.time.get(), 0.55f);
    EXPECT_LT (delay.time.get(), 0.7f);
    EXPECT_FALSE (editor.find ("DelayTimeSync").isVisible());
    EXPECT_TRUE (editor.find ("DelayTime").isVisible());
}

TEST_F (SoundBandTest, CopiesAndSwapsOscillatorsByTheirTitles)
{
    Tests::OpenEditor editor;
    auto& oscillators = soundOf (editor).synth.oscillators.oscillators;
    auto& first = oscillators[0];
    auto& third = oscillators[2];
    *first.tune = 7;
    first.type->setValueNotifyingHost (first.type->convertTo0to1 (5.0f));
    *third.tune = -3;

    auto& card = editor.find ("Osc1");
    auto& title =
        *card.getComponentAt (card.getLocalPoint (&editor.find ("Osc1Enable"),
                                                  editor.find ("Osc1Enable").getLocalBounds().getCentre()));

    const auto drop = [&] (juce::ModifierKeys modifiers) {
        const auto target = title.getLocalPoint (&editor.find ("Osc3"), Point { 20, 90 });
        Tests::Hand::drag (title, { { 3, 3 }, { 9, 3 }, target }, modifiers);
    };

    drop (Tests::Hand::leftButton.withFlags (juce::ModifierKeys::altModifier));
    EXPECT_EQ (first.tune.get(), -3);
    EXPECT_EQ (third.tune.get(), 7);
    EXPECT_EQ (third.type->getIndex(), 5);

    drop (Tests::Hand::leftButton);
    EXPECT_EQ (third.tune.get(), -3);
    EXPECT_TRUE (first.enable.get()) << "a drag flips nothing";

    editor.page.getContext().edits.undo();
    EXPECT_EQ (third.tune.get(), 7);

    const Point over = title.getLocalPoint (&editor.find ("Osc3"), Point { 20, 90 });
    const auto event = Tests::Hand::mouseEvent (title, over, {}, Tests::Hand::leftButton, 1, true);
    title.mouseDown (event);
    title.mouseDrag (event);
    EXPECT_EQ (title.getMouseCursor(), juce::MouseCursor::CopyingCursor);
    title.mouseDrag (Tests::Hand::mouseEvent (title, {}, {}, Tests::Hand::leftButton, 1, true));
    EXPECT_NE (title.getMouseCursor(), juce::MouseCursor::CopyingCursor) << "its own card";
    EXPECT_TRUE (Tests::Hand::press (title, "escape"));
    title.mouseUp (event);
    EXPECT_EQ (third.tune.get(), 7);
    EXPECT_TRUE (first.enable.get());
}

TEST_F (SoundBandTest, IsFaintWhileTheSynthIsOffButCanBeEdited)
{
    Tests::OpenEditor editor;
    auto& sound = soundOf (editor);
    const auto faint = AssetScheme::Base::get().constantOf ("DisabledOpacity");

    *sound.synth.oscillators.oscillators[3].enable = false;
    editor.poll();
    EXPECT_EQ (opacityOf (editor, "Osc4Enable"), 1.0f);
    EXPECT_NEAR (opacityOf (editor, "Osc4Volume"), faint, 0.01f);
    EXPECT_EQ (opacityOf (editor, "Osc1Volume"), 1.0f);

    Tests::Hand::click (editor.find ("SynthEnable"));
    editor.poll();
    EXPECT_FALSE (sound.synthEnable.get());

    for (const auto* element : { "Osc1Enable", "FilterCurve", "Master", "Meter" })
        EXPECT_NEAR (opacityOf (editor, element), faint, 0.01f) << element;

    const auto before = sound.synth.adsr.decay.get();
    Tests::Hand::drag (editor.find ("EnvelopeDecay"), { { 10, 30 }, { 10, 60 } });
    EXPECT_NE (sound.synth.adsr.decay.get(), before);
}

TEST_F (SoundBandTest, KeepsItsLineWhenItIsFolded)
{
    Tests::OpenEditor editor;
    auto& master = editor.find ("Master");
    EXPECT_GT (master.getHeight(), master.getWidth());
    EXPECT_FALSE (editor.find ("MasterFoldedValue").isVisible());

    Tests::Hand::click (editor.find ("SoundFold"));
    EXPECT_GT (master.getWidth(), master.getHeight());
    EXPECT_TRUE (editor.find ("SoundHeader").getBounds().contains (master.getBounds()));
    EXPECT_TRUE (editor.find ("MasterFoldedValue").isVisible());
    EXPECT_FALSE (editor.find ("Osc1").isVisible());
    EXPECT_FALSE (editor.find ("MasterModule").isVisible());

    Tests::Hand::click (editor.find ("SoundFold"));
    EXPECT_TRUE (editor.find ("Osc1").isVisible());
}

TEST_F (SoundBandTest, TellsTheVoicesOfAnOscillatorAndLeadsToThem)
{
    Tests::OpenEditor editor;
    auto& chip = editor.find ("Osc2Unison");
    EXPECT_FALSE (chip.isVisible());

    *soundOf (editor).unison = 2;
    editor.poll();
    EXPECT_TRUE (chip.isVisible());
}

TEST_F (SoundBandTest, HearsEachTableThatIsMarkedAndKeepsItOrBringsBackWhatWas)
{
    Tests::OpenEditor editor;
    startWithRoom (editor);
    auto& context = editor.page.getContext();
    const auto& type = *soundOf (editor).synth.oscillators.oscillators[0].type;
    const auto before = type.getIndex();

    for (const auto* last : { "escape", "return" })
    {
        Tests::Hand::click (editor.find ("Osc1Type"));
        auto& search = editor.find ("WavetableSearch");

        for (auto step = 1; step <= 2; ++step)
        {
            Tests::Hand::press (search, "cursor down");
            EXPECT_EQ (type.getIndex(), before + step) << last;
        }

        Tests::Hand::press (search, last);
        EXPECT_EQ (context.overlay.getPopup(), nullptr) << last;
    }

    EXPECT_EQ (type.getIndex(), before + 2) << "kept by Enter";
    context.edits.undo();
    EXPECT_EQ (type.getIndex(), before) << "one step for the whole visit";
}

TEST_F (SoundBandTest, FindsTablesByWords)
{
    Tests::OpenEditor editor;
    const auto& type = *soundOf (editor).synth.oscillators.oscillators[0].type;
    const auto before = type.getIndex();
    Tests::Hand::click (editor.find ("Osc1Type"));
    auto& list = editor.find<WavetableList> ("WavetableList");
    auto& search = editor.find<juce::TextEditor> ("WavetableSearch");
    EXPECT_EQ (list.getNumRows(), type.choices.size());

    search.setText ("organ");
    editor.poll();
    EXPECT_GT (list.getNumRows(), 0);
    EXPECT_LT (list.getNumRows(), type.choices.size());
    EXPECT_EQ (type.getIndex(), before) << "nobody has asked to hear any";

    Tests::Hand::press (search, "return");
    EXPECT_TRUE (type.getCurrentChoiceName().containsIgnoreCase ("organ"));
}

TEST_F (SoundBandTest, SetsATableWhereItsLineIsDropped)
{
    Tests::OpenEditor editor;
    startWithRoom (editor);
    auto& context = editor.page.getContext();
    auto& oscillators = soundOf (editor).synth.oscillators.oscillators;
    const auto before = oscillators[0].type->getIndex();
    Tests::Hand::click (editor.find ("Osc1Type"));

    auto& line = *editor.find<WavetableList> ("WavetableList").getComponentForRowNumber (before + 1);
    const auto onto = line.getLocalPoint (&editor.find ("Osc3"), Point { 10, 40 });
    const auto over = Tests::Hand::mouseEvent (line, onto, {}, Tests::Hand::leftButton, 1, true);

    line.mouseDown (over);
    line.mouseDrag (over);
    EXPECT_TRUE (showsReadout (editor));
    EXPECT_TRUE (Tests::Hand::press (line, "escape"));
    EXPECT_FALSE (showsReadout (editor));
    EXPECT_NE (context.overlay.getPopup(), nullptr) << "Esc ends the drag alone";
    line.mouseUp (over);
    EXPECT_EQ (oscillators[2].type->getIndex(), before);

    Tests::Hand::press (editor.find ("WavetableSearch"), "cursor down");
    Tests::Hand::press (editor.find ("WavetableSearch"), "cursor down");
    Tests::Hand::drag (line, { {}, onto });
    EXPECT_EQ (oscillators[0].type->getIndex(), before + 2);
    EXPECT_EQ (oscillators[2].type->getIndex(), before + 1);
    context.edits.undo();
    EXPECT_EQ (oscillators[0].type->getIndex(), before + 2) << "another step";
    EXPECT_EQ (oscillators[2].type->getIndex(), before);

    line.mouseDown (over);
    line.mouseDrag (over);
    context.overlay.closePopup();
    editor.poll();
    EXPECT_FALSE (showsReadout (editor)) << "it goes with the list";
}

TEST_F (SoundBandTest, HasTheLevelWorkedOutOnlyWhileTheMeterCanBeSeen)
{
    Audio::Plugins::Vornel::Processor processor (Audio::Plugins::Vornel::StartUp::empty);
    const auto& listeners = processor.getState().numMeterListeners;

    {
        GUI::Page page (processor);
        page.setSize (1100, 760);
        page.getContext().polls.callListeners();
        EXPECT_EQ (listeners.load(), 1);

        page.getContext().canvas.setFold (AssetScheme::Fold::folded);
        page.getContext().polls.callListeners();
        EXPECT_EQ (listeners.load(), 0);

        page.getContext().canvas.setFold (AssetScheme::Fold::open);
        page.getContext().polls.callListeners();
        EXPECT_EQ (listeners.load(), 1);
    }

    EXPECT_EQ (listeners.load(), 0);
}

TEST_F (SoundBandTest, HoldsThePeakOfTheMeterWhichStaysRedUntilItIsClicked)
{
    MeterBallistics meter;
    const MeterBallistics::Settings settings;

    meter.advance (-6.0f, 0.1f, settings);
    meter.advance (-40.0f, 0.5f, settings);
    EXPECT_FLOAT_EQ (meter.level, -18.0f);
    EXPECT_FLOAT_EQ (meter.peak, -6.0f);

    meter.advance (-100.0f, 1.0f, settings);
    EXPECT_LT (meter.peak, -6.0f) << "held for its time";
    EXPECT_FALSE (meter.clipped);

    Tests::OpenEditor editor;
    auto& shown = editor.find<Meter> ("Meter");
    const auto isCleared = [&] (const auto& clear) {
        for (const auto gain : { 1.2f, 0.0f })
        {
            editor.getState().meter.store (gain);
            editor.poll();
        }

        EXPECT_TRUE (shown.getShown().clipped);
        EXPECT_TRUE (shown.getWantsKeyboardFocus());
        clear();
        return ! shown.getShown().clipped && ! shown.getWantsKeyboardFocus();
    };

    EXPECT_TRUE (isCleared ([&] { Tests::Hand::click (shown); }));
    EXPECT_TRUE (isCleared ([&] { Tests::Hand::press (shown, "return"); }));
    EXPECT_TRUE (isCleared (
        [&] { Tests::accessibilityOf (shown)->getActions().invoke (juce::AccessibilityActionType::press); }));
}
} // namespace Zn::GUI
