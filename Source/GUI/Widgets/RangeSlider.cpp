#include "GUI/Widgets/RangeSlider.h"

#include "GUI/Widgets/ValueKeys.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
RangeSlider::RangeSlider (EditorContext& contextToUse,
                          std::string element,
                          std::shared_ptr<Parameters::Parameter> low,
                          std::shared_ptr<Parameters::Parameter> high)
    : Control (contextToUse, std::move (element))
    , ends { std::move (low), std::move (high) }
    , limits (ends[0]->getTextForNormalised (0.0f).getIntValue(),
              ends[1]->getTextForNormalised (1.0f).getIntValue())
{
    RangeSlider::poll();
}

RangeSlider::~RangeSlider() = default;

juce::String RangeSlider::getShownText() const
{
    constexpr auto octaveOfMiddleC = 5;
    constexpr juce::juce_wchar enDash = 0x2013;

    const auto low = ends[0]->getInt(), high = ends[1]->getInt();

    if (low <= limits.getStart() && high >= limits.getEnd())
        return "All";

    const auto shift = context.settings.get().middleC - octaveOfMiddleC;
    const auto dash = " " + juce::String::charToString (enDash) + " ";
    return withTrueMinus ("C" + juce::String (low + shift)) + dash
           + withTrueMinus ("B" + juce::String (high - 1 + shift));
}

TooltipText RangeSlider::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.value = getShownText();
    return tooltip;
}

void RangeSlider::resetToDefault()
{
    context.edits.perform (getText().title, [this] {
        const auto reset = [] (auto& p) { p.setNormalisedNotifying (p.getDefault()); };
        const auto lowChanged = changeAtOnce (*ends[0], reset);
        return changeAtOnce (*ends[1], reset) || lowChanged;
    });
    poll();
}

void RangeSlider::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (! isEnabled() || event.mods.isPopupMenu())
        return;

    if (event.mods.isCommandDown())
        return resetToDefault();

    held = endAt (event.position.x);
    edit = std::make_unique<ParameterEdit> (context.edits, ends[held], getText().title);
    setPressed (true);
}

void RangeSlider::mouseDrag (const juce::MouseEvent& event)
{
    if (edit == nullptr)
        return;

    const auto left = pointOf (limits.getStart()).x, right = pointOf (limits.getEnd()).x;
    const auto position = (event.position.x - left) / (right - left);
    moveTo (limits.getStart() + juce::roundToInt (position * static_cast<float> (limits.getLength())));
    context.overlay.showReadout (getText().title, getShownText(), event.getScreenPosition());
}

void RangeSlider::moveTo (int value)
{
    ends[held]->setInt (held == 0 ? std::min (value, ends[1]->getInt() - 1)
                                  : std::max (value, ends[0]->getInt() + 1));
    poll();
}

void RangeSlider::stepBy (int steps)
{
    context.edits.join (ends[held].get(), getText().title, [this, steps] {
        return changeAtOnce (*ends[held], [this, steps] (auto& p) { moveTo (p.getInt() + steps); });
    });
}

void RangeSlider::mouseUp (const juce::MouseEvent&)
{
    endDrag();
}

void RangeSlider::endDrag()
{
    if (edit == nullptr)
        return;

    edit.reset();
    setPressed (false);
    context.overlay.hideReadout();
}

bool RangeSlider::restoreDrag()
{
    if (edit == nullptr)
        return false;

    edit->restore();
    endDrag();
    poll();
    return true;
}

void RangeSlider::mouseDoubleClick (const juce::MouseEvent& event)
{
    if (! isEnabled() || ! event.mods.isLeftButtonDown() || event.mods.isAnyModifierKeyDown())
        return;

    endDrag();
    resetToDefault();
}

void RangeSlider::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (! isEnabled() || ! isWheelMeant() || ! context.settings.get().wheelTurnsKnobs || edit != nullptr)
        return Control::mouseWheelMove (event, wheel);

    held = endAt (event.position.x);
    stepBy ((wheel.deltaY > 0.0f) == wheel.isReversed ? -1 : 1);
}

bool RangeSlider::keyPressed (const juce::KeyPress& key)
{
    using enum ValueKey::Wish;

    if (! isEnabled())
        return false;

    const auto [wish, steps, fine] = ValueKey::of (key);

    if (wish == restore)
        return restoreDrag();

    if (wish == stepUp || wish == stepAlong)
        stepBy (steps);
    else if (wish == minimum || wish == maximum)
        held = wish == minimum ? 0 : 1;
    else if (wish == reset)
        resetToDefault();
    else
        return false;

    ring.keyPressed();
    return true;
}

std::size_t RangeSlider::endAt (float x) const
{
    const auto distance = [&] (std::size_t end) { return std::abs (x - handleOf (end).getCentreX()); };
    return distance (0) < distance (1) ? 0 : 1;
}

void RangeSlider::poll()
{
    const std::array now { ends[0]->getInt(), ends[1]->getInt() };

    if (std::exchange (drawn, now) == now)
        return;

    repaint();

    if (auto* handler = getAccessibilityHandler())
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);
}

juce::Point<float> RangeSlider::pointOf (int value) const
{
    const auto position =
        static_cast<float> (value - limits.getStart()) / static_cast<float> (limits.getLength());
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
    const auto bar = [&] (int from, int to) {
        const juce::Rectangle<float> between { pointOf (from), pointOf (to) };
        g.fillRoundedRectangle (between.expanded (0.0f, stroke / 2.0f), stroke / 2.0f);
    };

    g.setColour (colour ("KnobTrack"));
    bar (limits.getStart(), limits.getEnd());
    g.setColour (colour ("Pattern"));
    bar (drawn[0], drawn[1]);
    paintOctaves (g);
    g.setColour (surface ("KnobPointer"));

    for (std::size_t end = 0; end < 2; ++end)
        g.fillRoundedRectangle (handleOf (end), stroke);
}

/** A dot for each octave, below the line. */
void RangeSlider::paintOctaves (juce::Graphics& g) const
{
    const auto size = pixels ("ThinStroke");
    const auto below = 0.75f * pixels ("SliderThumb");
    g.setColour (colour ("GridBar"));

    for (auto value = limits.getStart(); value <= limits.getEnd(); ++value)
        g.fillEllipse (
            juce::Rectangle<float> (size, size).withCentre (pointOf (value).translated (0.0f, below)));
}

std::unique_ptr<juce::AccessibilityHandler> RangeSlider::createAccessibilityHandler()
{
    /** Speaks both ends, moves the one that was moved last. */
    struct Spoken : juce::AccessibilityValueInterface
    {
        explicit Spoken (RangeSlider& sliderToRead) : slider (sliderToRead) {}

        bool isReadOnly() const override { return ! slider.isEnabled(); }
        double getCurrentValue() const override { return slider.ends[slider.held]->getInt(); }
        juce::String getCurrentValueAsString() const override { return slider.getShownText(); }
        void setValue (double value) override
        {
            slider.stepBy (juce::roundToInt (value) - slider.ends[slider.held]->getInt());
        }
        void setValueAsString (const juce::String& text) override { setValue (text.getDoubleValue()); }
        AccessibleValueRange getRange() const override
        {
            return { { double (slider.limits.getStart()), double (slider.limits.getEnd()) }, 1.0 };
        }

        RangeSlider& slider;
    };

    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::slider,
        juce::AccessibilityActions(),
        juce::AccessibilityHandler::Interfaces { std::make_unique<Spoken> (*this) });
}
} // namespace Zn::GUI
