#include "GUI/Widgets/Choice.h"

#include "GUI/Widgets/Chevron.h"
#include "GUI/Widgets/SpokenValue.h"

namespace Zn::GUI
{
namespace
{
using Target = std::weak_ptr<Parameters::Parameter>;

/** Lets every line of a menu be a step of undo. */
void makeEdits (Parameters::MenuItems::Item& menu,
                Edits& edits,
                const Target& target,
                const juce::String& name)
{
    for (auto& line : menu.subItems)
    {
        makeEdits (line, edits, target, name);

        if (line.action == nullptr)
            continue;

        line.action = [&edits, target, name, action = line.action] {
            edits.perform (name, [&] {
                const auto parameter = target.lock();
                const auto before = parameter != nullptr ? parameter->getNormalised() : 0.0f;
                action();
                return parameter != nullptr && parameter->getNormalised() != before;
            });
        };
    }
}
} // namespace

Choice::Choice (EditorContext& contextToUse,
                std::string element,
                std::shared_ptr<Parameters::Parameter> parameterToShow,
                Look lookToHave)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow)), look (lookToHave)
{}

void Choice::openMenu()
{
    auto menu = getParameter()->getMenuChoices();
    makeEdits (menu, context.edits, getParameter(), getText().title);
    Parameters::MenuItems::holdWeakly (menu, getParameter());
    context.overlay.showMenu (menu, this);
}

void Choice::schemeChanged()
{
    font = context.canvas.fontOf ("FontBody");
    textArea = area();

    if (look == Look::field)
    {
        textArea.removeFromLeft (pixels ("ControlInset"));
        chevronArea = chevronAreaOf (context.canvas, textArea);
    }
    else if (look == Look::browser)
    {
        const auto size = pixels ("IconSizeSmall");
        textArea.reduce (pixels ("CaptionGap") / 2.0f, 0.0f);
        previousArea = textArea.removeFromLeft (size).withSizeKeepingCentre (size, size);
        nextArea = textArea.removeFromRight (size).withSizeKeepingCentre (size, size);
    }
}

void Choice::paintControl (juce::Graphics& g)
{
    paintField (g, area(), surface ("Control"));
    paintText (g,
               shownText(),
               font,
               textArea,
               look == Look::field ? juce::Justification::centredLeft : juce::Justification::centred,
               colour ("Text"));

    if (look == Look::field)
    {
        chevron.paint (g, chevronArea, colour ("TextSecondary"));
    }
    else if (look == Look::browser)
    {
        previous.paint (g, previousArea, colour ("TextSecondary"));
        next.paint (g, nextArea, colour ("TextSecondary"));
    }
}

void Choice::pressed (const juce::MouseEvent& event)
{
    if (look == Look::browser && ! textArea.contains (event.position))
        clickBy (event.position.x < area().getCentreX() ? -1 : 1);
    else
        openMenu();
}

std::unique_ptr<juce::AccessibilityHandler> Choice::createAccessibilityHandler()
{
    const auto open = [this] { openMenu(); };

    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::comboBox,
        juce::AccessibilityActions()
            .addAction (juce::AccessibilityActionType::press, open)
            .addAction (juce::AccessibilityActionType::showMenu, open),
        juce::AccessibilityHandler::Interfaces { std::make_unique<SpokenValue> (*this) });
}
} // namespace Zn::GUI
