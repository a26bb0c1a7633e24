#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"

namespace Zn::GUI
{
/** Where the sign that a field opens a menu stands; taken off the field's right side. */
inline juce::Rectangle<float> chevronAreaOf (const AssetScheme::Canvas& canvas, juce::Rectangle<float>& field)
{
    const auto size = canvas.pixelsOf ("IconSizeSmall");
    field.removeFromRight (canvas.pixelsOf ("CaptionGap"));
    const auto right = field.removeFromRight (size);
    return right.withSizeKeepingCentre (size, size);
}
} // namespace Zn::GUI
