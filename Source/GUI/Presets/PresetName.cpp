#include "GUI/Presets/PresetName.h"

#include "GUI/Widgets/Chevron.h"

namespace Zn::GUI
{
namespace
{
constexpr auto widestCategory = 0.4f; // part of the text's place

/** A list of presets, told by its name alone: the list itself is the browser's. */
struct SpokenName : juce::AccessibilityTextValueInterface
{
    explicit SpokenName (const PresetName& nameToSpeak) : name (nameToSpeak) {}

    bool isReadOnly() const override { return true; }
    juce::String getCurrentValueAsString() const override { return name.getSpoken(); }
    void setValueAsString (const juce::String&) override {}

    const PresetName& name;
};
} // namespace

PresetName::PresetName (EditorContext& contextToUse, PresetActions& actionsToUse, Callbacks callbacksToUse)
    : Control (contextToUse, actionsToUse.getKind().element ("Name"))
    , actions (actionsToUse)
    , callbacks (std::move (callbacksToUse))
    , libraryListener (actionsToUse.getLibrary().changed, [this] { isStale = true; })
    , settingsListener (contextToUse.settings, [this] { isStale = true; })
{
    shown = { .name = actions.getLibrary().getName(), .isDirty = actions.getLibrary().isDirty() };
}

juce::String PresetName::getSpoken() const
{
    auto spoken = shown.name;

    if (shown.isDirty)
        spoken << ", edited";

    if (shown.isFavourite)
        spoken << ", favourite";

    return spoken;
}

TooltipText PresetName::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.value = shown.name;
    return tooltip;
}

void PresetName::schemeChanged()
{
    const auto& kind = actions.getKind();
    const auto partOf = [this] (const std::string& element) {
        return (context.canvas.boundsOf (element) - context.canvas.boundsOf (getElement()).getPosition())
            .toFloat();
    };

    nameFont = context.canvas.fontOf ("FontTitle", AssetScheme::Cut::bold);
    categoryFont = context.canvas.fontOf ("FontSmall");
    starArea = partOf (kind.element ("NameStar"));
    textArea = partOf (kind.element ("NameText"));

    auto field = area();
    chevronArea = chevronAreaOf (context.canvas, field);
}

void PresetName::paintControl (juce::Graphics& g)
{
    paintField (g, area(), shown.isOpen ? colour ("ControlHover") : surface ("Control"));

    if (shown.isOpen)
    {
        const auto stroke = pixels ("ThinnerStroke");
        g.setColour (colour (actions.getKind().accent));
        g.drawRoundedRectangle (area().reduced (stroke / 2.0f),
                                context.canvas.cornerOf ("ControlCorner", area()),
                                stroke);
    }

    const auto icon = pixels ("IconSizeSmall");
    const auto iconArea = starArea.withSizeKeepingCentre (icon, icon);

    if (shown.isFavourite)
        starred.paint (g, iconArea, colour (actions.getKind().accent));
    else
        star.paint (g, iconArea, colour ("TextQuiet"));

    chevron.paint (g, chevronArea, colour ("TextSecondary"));

    auto line = textArea;
    const auto gap = pixels ("CaptionGap");
    const auto dot = pixels ("UnsavedDot");

    if (shown.category.isNotEmpty())
    {
        const auto width = std::min (categoryFont.getStringWidthFloat (shown.category) + 1.0f,
                                     widestCategory * line.getWidth());
        paintText (g,
                   shown.category,
                   categoryFont,
                   line.removeFromRight (width),
                   juce::Justification::centredRight,
                   colour ("TextSecondary"));
        line.removeFromRight (2.0f * gap);
    }

    if (shown.isDirty)
    {
        const auto nameWidth = nameFont.getStringWidthFloat (shown.name);
        const auto room = line.removeFromRight (dot + gap);
        const auto x = std::min (room.getRight() - dot, line.getX() + nameWidth + gap);
        g.setColour (colour (actions.getKind().accent));
        g.fillEllipse (x, line.getCentreY() - dot / 2.0f, dot, dot);
    }

    paintText (g, shown.name, nameFont, line, juce::Justification::centredLeft, colour ("Text"));
}

void PresetName::poll()
{
    if (isStale || shown.isOpen != callbacks.isBrowserOpen())
        look();
}

void PresetName::look()
{
    isStale = false;
    const auto& library = actions.getLibrary();
    const auto file = actions.getCurrentFile();
    const auto before =
        std::exchange (shown,
                       Shown { .name = library.getName(),
                               .category = file ? categoryOf (library, *file) : juce::String(),
                               .isDirty = library.isDirty(),
                               .isFavourite = actions.isFavourite (library.getName()),
                               .isOpen = callbacks.isBrowserOpen() });

    if (shown == before)
        return;

    repaint();

    if (shown.name != before.name)
        announce();
}

void PresetName::announce()
{
    if (auto* handler = getAccessibilityHandler())
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);

    context.overlay.announce (getText().title + ": " + getSpoken());
}

void PresetName::toggleFavourite()
{
    actions.setFavourite (shown.name, ! actions.isFavourite (shown.name));
    look();
}

void PresetName::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (event.mods.isPopupMenu())
        callbacks.showMenu();
    else if (starArea.contains (event.position))
        toggleFavourite();
    else
        callbacks.openBrowser();
}

void PresetName::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (! isWheelMeant() || wheel.deltaY == 0.0f)
        return Control::mouseWheelMove (event, wheel);

    constexpr auto smoothStep = 0.25f; // of a wheel that turns without notches, for one preset

    if (const auto steps = wheelSteps.upIn (wheel, smoothStep); steps != 0)
        actions.step (steps > 0 ? -1 : 1);
}

bool PresetName::keyPressed (const juce::KeyPress& key)
{
    const auto isUsed = act (key);

    if (isUsed)
        ring.keyPressed();

    return isUsed;
}

bool PresetName::act (const juce::KeyPress& key)
{
    using juce::KeyPress;

    if (isPressKey (key) || key == KeyPress (KeyPress::downKey, juce::ModifierKeys::altModifier, 0))
        return callbacks.openBrowser(), true;

    if (key == KeyPress::downKey || key == KeyPress::rightKey)
        return actions.step (1), true;

    if (key == KeyPress::upKey || key == KeyPress::leftKey)
        return actions.step (-1), true;

    if (key == KeyPress ('f'))
        return toggleFavourite(), true;

    return false;
}

std::unique_ptr<juce::AccessibilityHandler> PresetName::createAccessibilityHandler()
{
    juce::AccessibilityActions actionsForReader;
    actionsForReader.addAction (juce::AccessibilityActionType::press, [this] { callbacks.openBrowser(); })
        .addAction (juce::AccessibilityActionType::showMenu, [this] { callbacks.showMenu(); });

    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::comboBox,
        std::move (actionsForReader),
        juce::AccessibilityHandler::Interfaces { std::make_unique<SpokenName> (*this) });
}
} // namespace Zn::GUI
