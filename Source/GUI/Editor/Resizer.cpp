#include "GUI/Editor/Resizer.h"

#include "GUI/Editor/WindowSize.h"

#include <algorithm>

namespace Zn::GUI
{
Resizer::Resizer (EditorContext& contextToUse) : Control (contextToUse, "Resizer")
{
    setMouseCursor (juce::MouseCursor::BottomRightCornerResizeCursor);
    setWantsKeyboardFocus (false); // the settings have sizes to choose from
}

juce::Rectangle<float> Resizer::corner() const
{
    const auto size = pixels ("IconSizeLarge");
    const auto inside = getParentComponent() != nullptr
                            ? getLocalArea (getParentComponent(), getParentComponent()->getLocalBounds())
                            : getLocalBounds();
    return area().getIntersection (inside.toFloat()).removeFromBottom (size).removeFromRight (size);
}

bool Resizer::hitTest (int x, int y)
{
    return corner().expanded (pixels ("ThinStroke")).contains (juce::Point<int> (x, y).toFloat());
}

void Resizer::mouseDown (const juce::MouseEvent&)
{
    widthAtPress = windowSizeOf (*this).width;
}

void Resizer::mouseDrag (const juce::MouseEvent& event)
{
    // Whichever way the hand has gone further; on the screen, since the corner moves away beneath it.
    const auto moved = event.getScreenPosition() - event.getMouseDownScreenPosition();
    const auto [width, height] = windowSizeOf (*this);
    const auto alongHeight = juce::roundToInt (double (moved.y) * width / std::max (1, height));

    setWindowWidth (*this, widthAtPress + std::max (moved.x, alongHeight));
}

void Resizer::mouseDoubleClick (const juce::MouseEvent&)
{
    setWindowScale (*this, 1.0f);
}

void Resizer::paintControl (juce::Graphics& g)
{
    icon.paint (g, corner(), colour (isMouseOver() ? "Text" : "TextQuiet"));
}

std::unique_ptr<juce::AccessibilityHandler> Resizer::createAccessibilityHandler()
{
    return createIgnoredAccessibilityHandler (*this);
}
} // namespace Zn::GUI
