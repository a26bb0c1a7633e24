#include "GUI/Widgets/Button.h"

namespace Zn::GUI
{
Button::Button (EditorContext& contextToUse,
                std::string element,
                Options optionsToUse,
                CallbackFunc onClickToUse)
    : Control (contextToUse, std::move (element))
    , options (std::move (optionsToUse))
    , onClick (std::move (onClickToUse))
    , caption ({ .text = options.text.value_or (options.icon.isEmpty() ? getText().label : juce::String()),
                 .icon = options.icon,
                 .arrangement = options.arrangement,
                 .cut = options.look == Look::primary ? AssetScheme::Cut::bold : AssetScheme::Cut::regular,
                 .iconSize = options.iconSize })
{}

void Button::setLabel (const juce::String& newLabel)
{
    if (caption.getText() == newLabel)
        return;

    caption.setText (newLabel);
    repaint();
}

void Button::setIcon (const juce::String& newIcon)
{
    caption.setIcon (newIcon);
    repaint();
}

void Button::click()
{
    if (isEnabled() && onClick != nullptr)
    {
        const auto copy = onClick; // a click may close what the button lies on
        copy();
    }
}

void Button::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();
    setPressed (isEnabled() && ! event.mods.isPopupMenu());
}

void Button::mouseDrag (const juce::MouseEvent& event)
{
    if (isEnabled() && ! event.mods.isPopupMenu())
        setPressed (getLocalBounds().contains (event.getPosition()));
}

void Button::mouseUp (const juce::MouseEvent&)
{
    if (! isPressed())
        return;

    setPressed (false);
    click();
}

bool Button::keyPressed (const juce::KeyPress& key)
{
    if (! isEnabled() || ! isPressKey (key))
        return false;

    ring.keyPressed();
    click();
    return true;
}

void Button::paintControl (juce::Graphics& g)
{
    const auto isPrimary = options.look == Look::primary;
    const auto accent = options.accent.empty() ? std::string_view ("Pattern") : options.accent;

    if (isPrimary)
        paintField (g, area(), surface (accent));
    else if (options.look == Look::filled)
        paintField (g, area(), surface (options.fill));
    else
        paintHover (g);

    const auto quietText = options.look == Look::quiet ? "TextSecondary" : "Text";
    const auto text = colour (isPrimary ? "TextOnAccent" : quietText);
    caption.paint (g, options.accent.empty() || isPrimary ? text : colour (options.accent), text);
}

std::unique_ptr<juce::AccessibilityHandler> Button::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::button,
        juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press, [this] { click(); }));
}
} // namespace Zn::GUI
