#include "GUI/Widgets/RangeSlider.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/OctaveEnd.h"
#include "GUI/Widgets/ValueControl.h"

#include <cmath>

namespace Zn::GUI
{
class RangeSlider::End : public ValueControl
{
public:
    End (RangeSlider& slider, const char* name, std::shared_ptr<OctaveEnd> octave)
        : ValueControl (slider.context, slider.getElement() + name, std::move (octave)), owner (slider)
    {
        setMouseCursor (juce::MouseCursor::LeftRightResizeCursor);
    }

    float position() const { return shownPosition(); }

    bool hitTest (int x, int) override { return owner.isNearer (*this, static_cast<float> (x)); }

    void focusGained (FocusChangeType cause) override
    {
        ValueControl::focusGained (cause);
        repaint();
    }

    void focusLost (FocusChangeType cause) override
    {
        ValueControl::focusLost (cause);
        repaint();
    }

private:
    float proportionOf (juce::Point<float> movement) const override
    {
        return movement.x / std::max (1.0f, owner.lineLength());
    }

    juce::String getReadout() const override { return owner.getShownText(); }

    void paintControl (juce::Graphics& g) override
    {
        const auto handle = owner.handleOf (*this);
        const auto corner = pixels ("DefaultStroke");
        g.setColour (surface ("KnobPointer"));
        g.fillRoundedRectangle (handle, corner);

        if (ring.isShown()) // lies round both
        {
            const auto stroke = pixels ("ThinStroke");
            g.setColour (colour ("Focus"));
            g.drawRoundedRectangle (handle.expanded (stroke), corner, stroke);
        }
    }

    RangeSlider& owner;
};

RangeSlider::RangeSlider (EditorContext& contextToUse,
                          const std::string& element,
                          std::shared_ptr<Parameters::Parameter> lowest,
                          std::shared_ptr<Parameters::Parameter> highest)
    : Element (contextToUse.canvas, element)
    , context (contextToUse)
    , low (std::make_unique<End> (
          *this,
          "Low",
          std::make_shared<OctaveEnd> (OctaveEnd::Side::low, lowest, highest, context.settings)))
    , high (std::make_unique<End> (
          *this,
          "High",
          std::make_shared<OctaveEnd> (OctaveEnd::Side::high, highest, lowest, context.settings)))
{
    setTitle (controlText (element).title);
    addAndMakeVisible (*low);
    addAndMakeVisible (*high);
}

RangeSlider::~RangeSlider() = default;

juce::String RangeSlider::getShownText() const
{
    constexpr juce::juce_wchar enDash = 0x2013;
    const auto &lowest = *low->getParameter(), &highest = *high->getParameter();

    if (lowest.getNormalised() <= 0.0f && highest.getNormalised() >= 1.0f)
        return "All";

    return lowest.getCurrentText() + " " + juce::String::charToString (enDash) + " "
           + highest.getCurrentText();
}

void RangeSlider::typeValues()
{
    low->typeValue();
}

float RangeSlider::lineLength() const
{
    return pointAt (1.0f).x - pointAt (0.0f).x;
}

juce::Point<float> RangeSlider::pointAt (float position) const
{
    const auto area = getLocalBounds().toFloat();
    const auto inset =
        context.canvas.pixelsOf ("RangeThumbWidth") / 2.0f + context.canvas.pixelsOf ("ThinStroke");
    return { inset + position * (area.getWidth() - 2.0f * inset), area.getCentreY() };
}

juce::Rectangle<float> RangeSlider::handleOf (const End& end) const
{
    return juce::Rectangle<float> (context.canvas.pixelsOf ("RangeThumbWidth"),
                                   context.canvas.pixelsOf ("SliderThumb"))
        .withCentre (pointAt (end.position()));
}

bool RangeSlider::isNearer (const End& end, float x) const
{
    const auto lowIsNearer =
        std::abs (x - pointAt (low->position()).x) < std::abs (x - pointAt (high->position()).x);
    return lowIsNearer == (&end == low.get());
}

void RangeSlider::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto stroke = context.canvas.pixelsOf ("DefaultStroke");
    const auto bar = [&] (float from, float to) {
        const juce::Rectangle<float> between { pointAt (from), pointAt (to) };
        g.fillRoundedRectangle (between.expanded (0.0f, stroke / 2.0f), stroke / 2.0f);
    };

    g.setColour (scheme.colourOf ("KnobTrack"));
    bar (0.0f, 1.0f);
    g.setColour (scheme.colourOf ("Pattern"));
    bar (low->position(), high->position());

    // A dot for each octave, below the line.
    const auto size = context.canvas.pixelsOf ("ThinStroke");
    const auto below = 0.75f * context.canvas.pixelsOf ("SliderThumb");
    const auto numOctaves = low->getParameter()->getNumSteps();
    g.setColour (scheme.colourOf ("GridBar"));

    for (auto octave = 0; octave <= numOctaves; ++octave)
        g.fillEllipse (
            juce::Rectangle<float> (size, size)
                .withCentre (pointAt (static_cast<float> (octave) / static_cast<float> (numOctaves)))
                .translated (0.0f, below));
}
} // namespace Zn::GUI
