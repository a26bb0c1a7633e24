#include "GUI/Pattern/PatternParams.h"

#include "GUI/Pattern/ShownSlotParam.h"
#include "Parameters/BoolRef.h"
#include "Parameters/ParameterText.h"
#include "Sequencer/Modifiers/DenumParam.h"
#include "Sequencer/Modifiers/NumParam.h"

namespace Zn::GUI
{
namespace
{
using Sequencer::PatternController;

/** The length that new notes get, as percents of a column. It is the gate of the pattern, and saved with it. */
class NoteLengthParam : public Parameters::IntLike
{
public:
    NoteLengthParam (double& gateToUse, PatternController& patternsToUse)
        : IntLike ("Length"), gate (gateToUse), patterns (patternsToUse)
    {}

    juce::NormalisableRange<float> getRange() const override { return { 1.0f, 100.0f, 1.0f }; }
    float getDefault() const override
    {
        return normalisedFrom (percentOf (Sequencer::PatternSlot().pattern.gate));
    }
    int getIntValue() const override { return percentOf (gate); }

    void setIntValue (int percent) override
    {
        if (percent == getIntValue())
            return;

        const PatternController::Edit edit (patterns);
        gate = percent / 100.0;
    }

    juce::String getCurrentText() const override { return juce::String (getIntValue()) + " %"; }

    juce::String getTextForNormalised (float normalised) const override
    {
        return IntLike::getTextForNormalised (normalised) + " %";
    }

private:
    static int percentOf (double part) { return juce::roundToInt (100.0 * part); }

    double& gate;
    PatternController& patterns;
};

class MultiplyParam : public Parameters::BoolRef
{
public:
    MultiplyParam (bool& multiplyToUse, PatternController& patternsToUse)
        : BoolRef (multiplyToUse, "Multiply"), patterns (patternsToUse)
    {}

    void setBool (bool isOn) override
    {
        if (isOn == getBool())
            return;

        const PatternController::Edit edit (patterns);
        BoolRef::setBool (isOn);
    }

private:
    PatternController& patterns;
};
} // namespace

PatternParams::PatternParams (EditorContext& context)
{
    auto& state = context.state();
    auto& patterns = state.patterns;
    auto& slots = patterns.getSlots();
    const CallbackFunc changed = [&patterns] { patterns.rebuild(); };

    const auto follow = [&] (const ShownSlotParam::Factory& create) {
        return std::make_shared<ShownSlotParam> (context.shownSlot, context.edits.getUndo(), create);
    };

    grid = follow ([&] (std::size_t slot) {
        return std::make_unique<Audio::Plugins::Vornel::ConnectedIntParam> (state.gridOf (slot));
    });
    noteLength = follow ([&] (std::size_t slot) {
        return std::make_unique<NoteLengthParam> (slots[slot].pattern.gate, patterns);
    });
    timeNum = follow ([&] (std::size_t slot) {
        return std::make_unique<Sequencer::Modifiers::NumParam> (slots[slot].time, changed);
    });
    timeDenum = follow ([&] (std::size_t slot) {
        return std::make_unique<Sequencer::Modifiers::DenumParam> (slots[slot].time, changed);
    });
    multiply = follow (
        [&] (std::size_t slot) { return std::make_unique<MultiplyParam> (slots[slot].multiply, patterns); });
}
} // namespace Zn::GUI
