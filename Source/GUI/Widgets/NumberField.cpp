#include "GUI/Widgets/NumberField.h"

#include "GUI/Widgets/Chevron.h"

namespace Zn::GUI
{
NumberField::NumberField (EditorContext& contextToUse,
                          std::string element,
                          std::shared_ptr<Parameters::Parameter> parameterToShow)
    : NumberField (contextToUse, std::move (element), std::move (parameterToShow), Options())
{}

NumberField::NumberField (EditorContext& contextToUse,
                          std::string element,
                          std::shared_ptr<Parameters::Parameter> parameterToShow,
                          Options optionsToUse)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow))
    , options (std::move (optionsToUse))
{
    setMouseCursor (juce::MouseCursor::UpDownResizeCursor);

    if (options.hasMenu)
        chevron.emplace ("down.svg");
}

void NumberField::schemeChanged()
{
    font = options.bare ? context.canvas.fontOf ("FontRead", AssetScheme::Cut::bold)
                        : context.canvas.fontOf ("FontBody");
    textArea = options.bare ? area() : area().reduced (pixels ("CaptionGap"), 0.0f);

    if (chevron)
    {
        textArea = area().withTrimmedLeft (pixels ("ControlInset"));
        chevronArea = chevronAreaOf (context.canvas, textArea);
    }
}

void NumberField::paintControl (juce::Graphics& g)
{
    if (! options.bare)
        paintField (g, area(), surface ("Control"));

    const auto isLeft = options.bare || chevron.has_value();
    paintText (g,
               shownText(),
               font,
               textArea,
               isLeft ? juce::Justification::centredLeft : juce::Justification::centred,
               colour ("Text"));

    if (chevron)
        chevron->paint (g, chevronArea, colour ("TextSecondary"));
}

void NumberField::pressed (const juce::MouseEvent& event)
{
    if (chevron && event.position.x >= chevronArea.getX())
        openMenu();
    else
        ValueControl::pressed (event);
}

void NumberField::openMenu()
{
    const juce::Component::SafePointer<NumberField> self (this);
    juce::PopupMenu menu;

    for (const auto value : options.menuValues)
        menu.addItem (value, juce::String (value), true, getParameter()->getInt() == value);

    context.overlay.showMenu (menu, this, [self] (int value) {
        if (self != nullptr && value != 0)
            self->setFromTyped (juce::String (value));
    });
}
} // namespace Zn::GUI
