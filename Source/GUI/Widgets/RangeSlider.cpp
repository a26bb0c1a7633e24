#include "GUI/Widgets/RangeSlider.h"

#include <cmath>

namespace Zn::GUI
{
RangeSlider::RangeSlider (EditorContext& contextToUse,
                          std::string element,
                          std::shared_ptr<Parameters::Parameter> low,
                          std::shared_ptr<Parameters::Parameter> high)
    : Control (contextToUse, std::move (element)), ends { std::move (low), std::move (high) }
{
    RangeSlider::poll();
}

RangeSlider::~RangeSlider() = default;

void RangeSlider::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (! isEnabled() || event.mods.isPopupMenu())
        return;

    const auto distance = [&] (std::size_t end) {
        return std::abs (event.position.x - handleOf (end).getCentreX());
    };
    held = distance (0) < distance (1) ? 0 : 1;
    edit.emplace (context.edits, ends[held], getText().title);
}

void RangeSlider::mouseDrag (const juce::MouseEvent& event)
{
    if (! edit)
        return;

    const auto left = pointOf (0.0f).x, right = pointOf (1.0f).x;
    const auto position = juce::jlimit (0.0f, 1.0f, (event.position.x - left) / (right - left));
    const auto highest = ends[held]->getNumSteps();
    const auto value = juce::roundToInt (position * static_cast<float> (highest));

    ends[held]->setInt (held == 0 ? std::min (value, ends[1]->getInt() - 1)
                                  : std::max (value, ends[0]->getInt() + 1));
    poll();
}

void RangeSlider::mouseUp (const juce::MouseEvent&)
{
    edit.reset();
}

void RangeSlider::poll()
{
    const std::array now { ends[0]->getNormalised(), ends[1]->getNormalised() };

    if (std::exchange (drawn, now) != now)
        repaint();
}

juce::Point<float> RangeSlider::pointOf (float position) const
{
    const auto inset = pixels ("RangeThumbWidth") / 2.0f + pixels ("ThinStroke");
    return { inset + position * (area().getWidth() - 2.0f * inset), area().getCentreY() };
}

juce::Rectangle<float> RangeSlider::handleOf (std::size_t end) const
{
    return juce::Rectangle<float> (pixels ("RangeThumbWidth"), pixels ("SliderThumb"))
        .withCentre (pointOf (drawn[end]));
}

void RangeSlider::paintControl (juce::Graphics& g)
{
    const auto stroke = pixels ("DefaultStroke");
    const auto bar = [&] (float from, float to) {
        const juce::Rectangle<float> between { pointOf (from), pointOf (to) };
        g.fillRoundedRectangle (between.expanded (0.0f, stroke / 2.0f), stroke / 2.0f);
    };

    g.setColour (colour ("KnobTrack"));
    bar (0.0f, 1.0f);
    g.setColour (colour ("Pattern"));
    bar (drawn[0], drawn[1]);
    g.setColour (surface ("KnobPointer"));

    for (std::size_t end = 0; end < 2; ++end)
        g.fillRoundedRectangle (handleOf (end), stroke);
}
} // namespace Zn::GUI
