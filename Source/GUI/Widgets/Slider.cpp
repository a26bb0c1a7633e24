#include "GUI/Widgets/Slider.h"

namespace Zn::GUI
{
namespace
{
/** Nothing for a line without a length. */
juce::Path pathAlong (juce::Line<float> line)
{
    juce::Path path;

    if (line.getLength() > 0.0f)
    {
        path.startNewSubPath (line.getStart());
        path.lineTo (line.getEnd());
    }

    return path;
}
} // namespace

Slider::Slider (EditorContext& contextToUse,
                std::string element,
                std::shared_ptr<Parameters::Parameter> parameterToShow,
                Options optionsToUse)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow)), options (optionsToUse)
{}

bool Slider::isAcross() const noexcept
{
    return options.direction == Direction::across
           || (options.direction == Direction::longer && getWidth() > getHeight());
}

juce::Line<float> Slider::track() const
{
    if (isAcross())
    {
        const auto inset = pixels ("SliderThumb") / 2.0f;
        const auto y = area().getCentreY();
        return { inset, y, area().getRight() - inset, y };
    }

    const auto inset = pixels ("FaderHeight") / 2.0f;
    const auto x = area().getCentreX();
    return { x, area().getBottom() - inset, x, inset };
}

float Slider::proportionOf (juce::Point<float> movement) const
{
    const auto length = std::max (1.0f, track().getLength());
    return (isAcross() ? movement.x : -movement.y) / length;
}

juce::Rectangle<float> Slider::handle() const
{
    const auto thumb = pixels ("SliderThumb");
    const auto size = isAcross() ? juce::Rectangle<float> (thumb, thumb)
                                 : juce::Rectangle<float> (pixels ("FaderWidth"), pixels ("FaderHeight"));
    return size.withCentre (track().getPointAlongLineProportionally (shownPosition()));
}

void Slider::schemeChanged()
{
    setMouseCursor (isAcross() ? juce::MouseCursor::LeftRightResizeCursor
                               : juce::MouseCursor::UpDownResizeCursor);
    whole = pathAlong (track());
    valueChanged();
}

void Slider::valueChanged()
{
    const auto start = track().getPointAlongLineProportionally (options.fromMiddle ? 0.5f : 0.0f);
    lit = pathAlong ({ start, handle().getCentre() });
    repaint();
}

void Slider::paintControl (juce::Graphics& g)
{
    const juce::PathStrokeType stroke { pixels ("DefaultStroke"),
                                        juce::PathStrokeType::curved,
                                        juce::PathStrokeType::rounded };
    g.setColour (colour ("KnobTrack"));
    g.strokePath (whole, stroke);
    g.setColour (colour (options.accent));
    g.strokePath (lit, stroke);

    if (options.fromMiddle)
    {
        g.setColour (colour ("GridBar"));
        g.fillRect (juce::Rectangle<float> (pixels ("ThinnerStroke"), pixels ("SliderThumb"))
                        .withCentre (track().getPointAlongLineProportionally (0.5f)));
    }

    g.setColour (surface ("KnobPointer"));
    g.fillRoundedRectangle (handle(), handle().getHeight() * (isAcross() ? 0.5f : 0.3f));
}
} // namespace Zn::GUI
