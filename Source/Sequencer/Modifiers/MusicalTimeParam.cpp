#include "Sequencer/Modifiers/MusicalTimeParam.h"

namespace Zn::Sequencer::Modifiers
{
MusicalTimeParam::MusicalTimeParam (juce::String nameToUse,
                                    int Bar::*fieldToUse,
                                    MusicalTime& timeToUse,
                                    CallbackFunc changedToUse,
                                    int barIndexToUse)
    : IntLike (std::move (nameToUse))
    , field (fieldToUse)
    , time (timeToUse)
    , changed (std::move (changedToUse))
    , barIndex (static_cast<std::size_t> (barIndexToUse))
{}

int MusicalTimeParam::getIntValue() const
{
    const auto& bars = time.getBars().list;
    return barIndex < bars.size() ? bars[barIndex].*field : defaultValue;
}

void MusicalTimeParam::setIntValue (int newValue)
{
    const auto& bars = time.getBars().list;

    if (barIndex >= bars.size() || bars[barIndex].*field == newValue)
        return;

    auto bar = bars[barIndex];
    bar.*field = newValue;
    time.setBar (static_cast<int> (barIndex), bar);

    if (changed != nullptr)
        changed();
}
} // namespace Zn::Sequencer::Modifiers
