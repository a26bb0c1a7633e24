#include "Presets/Param.h"

#include "Presets/Base.h"

namespace Zn::Presets
{
Param::Param (Base& libraryToStep, int directionToStep) noexcept
    : library (&libraryToStep), direction (directionToStep)
{}

juce::String Param::getName() const
{
    return direction < 0 ? "Previous Preset" : "Next Preset";
}

juce::String Param::getCurrentText() const
{
    return library->isDirty() ? library->getName() + "*" : library->getName();
}

void Param::setNormalisedNotifying (float normalised)
{
    if (normalised > 0.5f)
        library->step (direction);
}
} // namespace Zn::Presets
