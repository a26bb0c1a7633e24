#include "GUI/Widgets/Stepper.h"

namespace Zn::GUI
{
Stepper::Stepper (EditorContext& contextToUse,
                  std::string element,
                  std::shared_ptr<Parameters::Parameter> parameterToShow)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow))
{}

void Stepper::schemeChanged()
{
    font = context.canvas.fontOf ("FontBody");

    const auto size = pixels ("IconSizeSmall");
    auto inner = area().reduced (pixels ("CaptionGap"), 0.0f);
    minusArea = inner.removeFromLeft (size).withSizeKeepingCentre (size, size);
    plusArea = inner.removeFromRight (size).withSizeKeepingCentre (size, size);
    value = inner.getSmallestIntegerContainer();
}

void Stepper::paintControl (juce::Graphics& g)
{
    const auto position = shownPosition();

    paintField (g, area(), surface ("Control"));
    paintText (g, shownText(), font, value.toFloat(), juce::Justification::centred, colour ("Text"));
    minus.paint (g, minusArea, colour (position > 0.0f ? "TextSecondary" : "TextDisabled"));
    plus.paint (g, plusArea, colour (position < 1.0f ? "TextSecondary" : "TextDisabled"));
}

void Stepper::pressed (const juce::MouseEvent& event)
{
    if (value.contains (event.getPosition()))
        ValueControl::pressed (event);
    else
        clickBy (event.position.x < area().getCentreX() ? -1 : 1);
}

void Stepper::mouseMove (const juce::MouseEvent& event)
{
    setMouseCursor (value.contains (event.getPosition()) ? juce::MouseCursor::UpDownResizeCursor
                                                         : juce::MouseCursor::NormalCursor);
}

void Stepper::mouseDoubleClick (const juce::MouseEvent& event)
{
    if (value.contains (event.getPosition())) // on a sign two quick clicks are two
        ValueControl::mouseDoubleClick (event);
}
} // namespace Zn::GUI
