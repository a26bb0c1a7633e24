#include "GUI/Pattern/ShownSlotParam.h"

#include "Presets/Undo/Transaction.h"

namespace Zn::GUI
{
ShownSlotParam::ShownSlotParam (const Events::Value<int>& shownSlotToFollow,
                                Undo::Interface& undoToUse,
                                const Factory& create)
    : shownSlot (shownSlotToFollow), undo (undoToUse)
{
    for (std::size_t slot = 0; slot < targets.size(); ++slot)
        targets[slot] = create (slot);
}

void ShownSlotParam::setRawNormalised (float normalised)
{
    change (target(), [&] { target().setRawNormalised (normalised); });
}

void ShownSlotParam::setInt (int value)
{
    change (target(), [&] { target().setInt (value); });
}

void ShownSlotParam::setBool (bool value)
{
    change (target(), [&] { target().setBool (value); });
}

void ShownSlotParam::setDouble (double value)
{
    change (target(), [&] { target().setDouble (value); });
}

juce::String ShownSlotParam::getTextForNormalised (float normalised) const
{
    return target().getTextForNormalised (normalised);
}

void ShownSlotParam::setFromText (const juce::String& text)
{
    change (target(), [&] { target().setFromText (text); });
}

void ShownSlotParam::setNormalisedNotifying (float normalised)
{
    change (target(), [&] { target().setNormalisedNotifying (normalised); });
}

Parameters::Parameter& ShownSlotParam::target() const
{
    return *targets[static_cast<std::size_t> (
        juce::jlimit (0, Sequencer::numSlots - 1, held.value_or (shownSlot.get())))];
}

void ShownSlotParam::change (const Parameter& parameter, const std::function<void()>& set)
{
    if (held)
        return set(); // who holds it tells of the difference at its end

    Undo::Transaction transaction (undo, parameter.getName());
    const auto before = parameter.getFloat();
    set();

    if (parameter.getFloat() != before)
        transaction.markChanged();
}
} // namespace Zn::GUI
