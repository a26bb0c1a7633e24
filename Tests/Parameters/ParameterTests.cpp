#include "Parameters/AtomicBool.h"
#include "Parameters/AudioChoiceForwarder.h"
#include "Parameters/BoolRef.h"
#include "Parameters/CreateForwarder.h"
#include "Parameters/IntLike.h"
#include "Parameters/ParamKinds.h"
#include "Parameters/ParameterLogs.h"

#include <gmock/gmock.h>

namespace Zn::Parameters
{
namespace
{
using Tests::Lines;
using Tests::linesOf;

struct Tree : Audio::ParamList
{
    Audio::BoolParam enable { *this, "Enable", true };
    Audio::FloatParam resonance { *this, "Resonance", { 0.1f, 3.0f }, 1.0f };
    Audio::IntParam octave { *this, "Octave", { -3, 3 }, 0 };
    Audio::ChoiceParam quantize { *this, "Quantize", { "4/4", "2/4", "1/4", "1/8", "1/16", "1/32" }, 2 };
};

Lines stepsOf (const Parameter& parameter)
{
    Lines texts;

    for (auto step = 0; step <= parameter.getNumSteps(); ++step)
        texts.push_back (parameter.getTextForStep (step).toStdString());

    return texts;
}

const auto notANumber = std::numeric_limits<float>::quiet_NaN();
} // namespace

TEST (Forwarder, NamesEveryStepOfItsTarget)
{
    Tree tree;

    EXPECT_EQ (stepsOf (*createForwarder (tree.quantize)),
               (Lines { "4/4", "2/4", "1/4", "1/8", "1/16", "1/32" }));
    const AudioChoiceForwarder choice { *tree.quantize };
    EXPECT_EQ (choice.getChoiceText (-1) + choice.getChoiceText (6), "");
    EXPECT_EQ (stepsOf (*createForwarder (tree.octave)), (Lines { "-3", "-2", "-1", "0", "1", "2", "3" }));
    EXPECT_EQ (stepsOf (*createForwarder (tree.enable)), (Lines { "Off", "On" }));

    const auto dial = createForwarder (tree.resonance);
    EXPECT_FALSE (dial->hasSteps());
    EXPECT_EQ (dial->getTextForStep (1), "");
}

TEST (Forwarder, ListsTheHighestValueFirstInItsMenu)
{
    Tree tree;
    const auto quantize = createForwarder (tree.quantize);
    const auto octave = createForwarder (tree.octave);

    EXPECT_EQ (linesOf (quantize->getMenuChoices()), (Lines { "1/32", "1/16", "1/8", "*1/4", "2/4", "4/4" }));
    EXPECT_EQ (linesOf (octave->getMenuChoices()), (Lines { "3", "2", "1", "*0", "-1", "-2", "-3" }));
    EXPECT_EQ (linesOf (createForwarder (tree.enable)->getMenuChoices()), (Lines { "Off", "*On" }));

    quantize->getMenuChoices().subItems.front().choose();
    EXPECT_EQ (tree.quantize.get(), 5);

    octave->getMenuChoices().subItems.back().choose();
    EXPECT_EQ (tree.octave.get(), -3);
}

TEST (Forwarder, SetsWholeNumbersAsEachKindUnderstandsThem)
{
    Tree tree;

    const std::tuple<int, int, int, bool> rows[] { { 2, 2, 2, true },
                                                   { -9, -3, 0, false },
                                                   { 99, 3, 5, true },
                                                   { 0, 0, 0, false } };

    for (const auto& [asked, octave, choice, isOn] : rows)
    {
        for (auto& [name, holder] : tree.getParams())
            createForwarder (*holder)->setInt (asked);

        EXPECT_EQ (tree.octave.get(), octave) << asked;
        EXPECT_EQ (tree.quantize.get(), choice) << asked;
        EXPECT_EQ (tree.enable.get(), isOn) << asked;
    }
}

TEST (Forwarder, LimitsWhatItIsGivenAndDropsWhatIsNoNumber)
{
    Tree tree;
    const auto dial = createForwarder (tree.resonance);

    dial->setDouble (99.0);
    EXPECT_FLOAT_EQ (dial->getFloat(), 3.0f);

    dial->setDouble (1.4);
    dial->setDouble (double (notANumber));
    dial->setNormalisedNotifying (notANumber);
    dial->setRawNormalised (notANumber);
    EXPECT_FLOAT_EQ (dial->getFloat(), 1.4f);
    EXPECT_EQ (dial->getInt(), 1);
    EXPECT_TRUE (dial->isHostVisible());
}

TEST (Switch, IsOffInTheMiddle)
{
    Tree tree;
    auto flag = true;
    std::atomic<bool> shared { true };

    BoolRef plain { flag, "Plain" };
    AtomicBool atomic { shared, "Atomic" };
    const auto forwarder = createForwarder (tree.enable);

    for (auto* parameter : std::initializer_list<Parameter*> { &plain, &atomic, forwarder.get() })
    {
        parameter->setNormalisedNotifying (0.5f);
        EXPECT_FALSE (parameter->getBool()) << parameter->getName();
        EXPECT_EQ (parameter->getTextForNormalised (0.5f), "Off") << parameter->getName();
        EXPECT_EQ (linesOf (parameter->getMenuChoices()), (Lines { "*Off", "On" })) << parameter->getName();

        parameter->setBool (true);
        parameter->setNormalisedNotifying (notANumber);
        EXPECT_EQ (parameter->getCurrentText(), "On") << parameter->getName();
    }

    EXPECT_TRUE (flag && shared && tree.enable.get());
}

TEST (IntRef, ShowsEveryStepAndKeepsWhatItWasBoundTo)
{
    auto value = 42;
    IntRef<int> number { value, "Number", 1, 32, 4 };

    EXPECT_EQ (number.getCurrentText(), "42") << "outside the range, but nobody has set it";
    EXPECT_EQ (number.getNormalised(), 1.0f);

    for (auto step = 0; step <= number.getNumSteps(); ++step)
    {
        EXPECT_EQ (number.getTextForStep (step), juce::String (step + 1));
        number.setNormalisedNotifying (static_cast<float> (step) / static_cast<float> (number.getNumSteps()));
        EXPECT_EQ (value, step + 1);
    }

    const std::pair<const char*, int> rows[] { { "7", 7 }, { "1e400", 1 }, { "nan", 1 },
                                               { "", 1 },  { "99", 32 },   { "6.6", 7 } };

    for (const auto& [text, expected] : rows)
    {
        number.setFromText (text);
        EXPECT_EQ (value, expected) << text;
    }

    EXPECT_EQ (number.getChoiceTexts().front(), "1");
    EXPECT_EQ (number.getChoiceTexts().back(), "31") << "the highest value closes the range";
    number.getMenuChoices().subItems[2].choose();
    EXPECT_EQ (value, 3);
    EXPECT_FALSE (number.isGestureActive());
}
} // namespace Zn::Parameters
