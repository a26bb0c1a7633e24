#pragma once

#include "GUI/Widgets/Label.h"

namespace Zn::GUI
{
/** How the title of a card is written that has no power button. */
inline Label::Options cardHeading (juce::Justification justification = juce::Justification::centredLeft)
{
    return { .font = "FontBody",
             .colour = "Text",
             .cut = AssetScheme::Cut::bold,
             .justification = justification };
}
} // namespace Zn::GUI
