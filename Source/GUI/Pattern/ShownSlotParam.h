#pragma once

#include "Foundation/Events/Value.h"
#include "Parameters/Parameter.h"
#include "Presets/Undo/Interface.h"
#include "Sequencer/PatternData.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace Zn::GUI
{
/** One parameter of eight, that of the slot which is shown at the time; a gesture stays with the slot that it began on.
    Each call that changes its value is a step of undo, or part of the one that is under way. Thread: message.
*/
class ShownSlotParam : public Parameters::Parameter
{
public:
    using Factory = std::function<std::unique_ptr<Parameters::Parameter> (std::size_t slot)>;

    /** All that is referred to outlives it. */
    ShownSlotParam (const Events::Value<int>& shownSlotToFollow,
                    Undo::Interface& undoToUse,
                    const Factory& create);

    float getNormalised() const override { return target().getNormalised(); }
    void setRawNormalised (float normalised) override;
    void setInt (int value) override;
    void setBool (bool value) override;
    void setDouble (double value) override;
    juce::String getName() const override { return target().getName(); }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return target().getCurrentText(); }
    juce::String getTextForStep (int index) const override { return target().getTextForStep (index); }
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;

    float getFloat() const override { return target().getFloat(); }
    int getInt() const override { return target().getInt(); }
    bool getBool() const override { return target().getBool(); }
    bool isHostVisible() const override { return target().isHostVisible(); }
    bool hasSteps() const override { return target().hasSteps(); }
    int getNumSteps() const override { return target().getNumSteps(); }
    float getDefault() const override { return target().getDefault(); }
    bool isGestureActive() const override { return held.has_value(); }
    void beginGesture() override { held = shownSlot.get(); }
    void endGesture() override { held.reset(); }

private:
    Parameters::Parameter& target() const;
    void change (const Parameter& parameter, const std::function<void()>& set);

    const Events::Value<int>& shownSlot;
    Undo::Interface& undo;
    std::array<std::unique_ptr<Parameters::Parameter>, Sequencer::numSlots> targets; // none is null
    std::optional<int> held; // the slot of the gesture
};
} // namespace Zn::GUI
