#include "GUI/Arp/NamedSwitch.h"

#include <utility>

namespace Zn::GUI
{
NamedSwitch::NamedSwitch (std::atomic<bool>& valueToUse,
                          const juce::String& nameToUse,
                          Texts textsToUse,
                          CallbackFunc changedToUse)
    : AtomicBool (valueToUse, nameToUse), texts (textsToUse), changed (std::move (changedToUse))
{}

juce::String NamedSwitch::getTextForNormalised (float normalised) const
{
    return texts[normalised > 0.5f ? 1 : 0];
}

void NamedSwitch::setFromText (const juce::String& text)
{
    for (auto position : { 0.0f, 1.0f })
        if (text.trim().equalsIgnoreCase (getTextForNormalised (position)))
            setNormalisedNotifying (position);
}

void NamedSwitch::setNormalisedNotifying (float normalised)
{
    const auto before = getBool();
    AtomicBool::setNormalisedNotifying (normalised);

    if (getBool() != before && changed != nullptr)
        changed();
}
} // namespace Zn::GUI
