#include "GUI/Widgets/Toggle.h"

#include "GUI/Widgets/SpokenValue.h"

namespace Zn::GUI
{
namespace
{
Caption::Options captionOf (const Toggle::Options& options, const ControlText& text)
{
    const auto isPower = options.look == Toggle::Look::power;
    const auto isButton = options.look == Toggle::Look::button;

    return { .text = options.text.value_or (options.look == Toggle::Look::pill ? juce::String() : text.label),
             .icon = isPower ? juce::String ("power.svg") : options.icon,
             .arrangement = isButton ? options.arrangement : Caption::Arrangement::left,
             .cut = isPower ? AssetScheme::Cut::bold : AssetScheme::Cut::regular,
             .iconSize = options.iconSize };
}
} // namespace

Toggle::Toggle (EditorContext& contextToUse,
                std::string element,
                std::shared_ptr<Parameters::Parameter> parameterToShow,
                Options optionsToUse)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow))
    , options (std::move (optionsToUse))
    , accent (options.accent)
    , fill (accent + "Deep")
    , caption (captionOf (options, getText()))
{}

void Toggle::setOn (bool shouldBeOn)
{
    change ([shouldBeOn] (auto& p) { p.setBool (shouldBeOn); });
}

void Toggle::setLabel (const juce::String& newLabel)
{
    if (caption.getText() == newLabel)
        return;

    caption.setText (newLabel);
    repaint();
}

void Toggle::schemeChanged()
{
    auto captionArea = area();

    if (options.look == Look::box)
        captionArea.removeFromLeft (pixels ("IconSizeLarge") + pixels ("ControlInset"));

    if (options.look == Look::power)
        captionArea.removeFromLeft (pixels ("ThinStroke"));

    caption.layOut (context.canvas, captionArea);
}

void Toggle::pressed (const juce::MouseEvent&)
{
    endStroke(); // one whose end was lost
    setPressed (true);
    paintOver (*this, ! isOn());
}

void Toggle::paintOver (Toggle& other, bool on)
{
    stroke.push_back (std::make_unique<ParameterEdit> (context.edits, other.getParameter(), getText().title));
    other.getParameter()->setBool (on);
    other.poll();
}

/** Paints its new state over others of its kind. */
void Toggle::mouseDrag (const juce::MouseEvent& event)
{
    if (stroke.empty())
        return;

    auto* root = getTopLevelComponent();
    auto* under = root->getComponentAt (root->getLocalPoint (this, event.getPosition()));
    auto* other = dynamic_cast<Toggle*> (under);

    if (other != nullptr && other->isEnabled() && isOfKindOf (*other) && other->isOn() != isOn())
        paintOver (*other, isOn());
}

void Toggle::endStroke()
{
    setPressed (false);

    while (! stroke.empty()) // what was begun first is the whole step, and ends last
        stroke.pop_back();
}

bool Toggle::restoreDrag()
{
    if (stroke.empty())
        return false;

    for (const auto& edit : stroke)
        edit->restore();

    endStroke();
    poll();
    return true;
}

void Toggle::mouseUp (const juce::MouseEvent&)
{
    endStroke();
}

bool Toggle::isOfKindOf (const Toggle& other) const
{
    return options.look == other.options.look && options.accent == other.options.accent
           && getHeight() == other.getHeight();
}

bool Toggle::keyPressed (const juce::KeyPress& key)
{
    if (! isEnabled() || ! isPressKey (key))
        return ValueControl::keyPressed (key);

    ring.keyPressed();
    setOn (! isOn());
    return true;
}

void Toggle::paintControl (juce::Graphics& g)
{
    if (options.look == Look::pill)
        paintPill (g);
    else if (options.look == Look::box)
        paintBox (g);
    else
        paintButton (g);
}

void Toggle::paintButton (juce::Graphics& g)
{
    const auto on = isOn();

    if (options.look == Look::button)
        paintField (g, area(), surface (on ? fill : "Control"));
    else
        paintHover (g);

    const auto* off = options.look == Look::power ? "TextQuiet" : "TextSecondary";
    const auto* text = on ? "Text" : off;
    caption.paint (g, on ? colour (accent) : colour ("TextSecondary"), colour (text));
}

juce::Rectangle<float> Toggle::pillArea() const
{
    const juce::Rectangle<float> pill { pixels ("SwitchWidth"), pixels ("SwitchHeight") };
    return pill.withCentre ({ pill.getCentreX(), area().getCentreY() });
}

juce::Rectangle<float> Toggle::learnArea() const
{
    return options.look == Look::pill ? area().withWidth (pillArea().getWidth()) : area();
}

void Toggle::paintPill (juce::Graphics& g)
{
    const auto on = isOn();
    const auto pill = pillArea();
    const auto inset = pixels ("ThinStroke");
    const auto knob = pill.getHeight() - 2.0f * inset;
    const auto inner = pill.reduced (inset);

    g.setColour (surface (on ? std::string_view (accent) : "KnobTrack"));
    g.fillRoundedRectangle (pill, pill.getHeight() / 2.0f);
    g.setColour (colour (on ? "TextOnAccent" : "TextSecondary"));
    g.fillEllipse (inner.withWidth (knob).withX (on ? inner.getRight() - knob : inner.getX()));
}

void Toggle::paintBox (juce::Graphics& g)
{
    const auto size = pixels ("IconSizeLarge");
    const auto box = area().withWidth (size).withSizeKeepingCentre (size, size);
    const auto on = isOn();

    paintField (g, box, surface (on ? std::string_view (accent) : "Control"));

    if (on)
        check.paint (g, box, colour ("TextOnAccent"));

    caption.paint (g, colour ("Text"), colour ("Text"));
}

std::unique_ptr<juce::AccessibilityHandler> Toggle::createAccessibilityHandler()
{
    struct Handler : juce::AccessibilityHandler
    {
        explicit Handler (Toggle& toggleToTell)
            : AccessibilityHandler (toggleToTell,
                                    juce::AccessibilityRole::toggleButton,
                                    juce::AccessibilityActions()
                                        .addAction (juce::AccessibilityActionType::press,
                                                    [&toggleToTell] { toggleToTell.enter(); })
                                        .addAction (juce::AccessibilityActionType::toggle,
                                                    [&toggleToTell] { toggleToTell.enter(); }),
                                    Interfaces { std::make_unique<SpokenValue> (toggleToTell) })
            , toggle (toggleToTell)
        {}

        juce::AccessibleState getCurrentState() const override
        {
            const auto state = AccessibilityHandler::getCurrentState().withCheckable();
            return toggle.isOn() ? state.withChecked() : state;
        }

        Toggle& toggle;
    };

    return std::make_unique<Handler> (*this);
}
} // namespace Zn::GUI
