#include "GUI/Player/PlayerFile.h"

#include "GUI/Widgets/Chevron.h"

#include <cmath>
#include <utility>

namespace Zn::GUI
{
PlayerFile::PlayerFile (PlayerActions& actionsToUse)
    : Control (actionsToUse.getContext(), "PlayerFile")
    , actions (actionsToUse)
    , listener (context.state().player.changed, [this] { isStale = true; })
{
    look();
}

void PlayerFile::openMenu()
{
    context.overlay.showMenu (actions.createMenu(), this);
}

void PlayerFile::look()
{
    isStale = false;
    name = context.state().midiFile.getCurrentText();
    length.clear();

    if (const auto& song = context.state().player.getSong())
        length << song->numBars << (song->numBars == 1 ? " bar" : " bars");
    else if (context.state().midiFile.getInt() > 0)
        length = isFileMissing (context.state()) ? "missing" : "damaged";

    if (! nameArea.isEmpty())
        schemeChanged();

    repaint();

    if (auto* handler = getAccessibilityHandler())
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);
}

void PlayerFile::poll()
{
    if (isStale)
        look();
}

TooltipText PlayerFile::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.value = name;

    if (isFileMissing (context.state()))
        tooltip.help =
            "Not found: " + juce::String::fromUTF8 (context.state().player.get().resource.data.c_str());

    return tooltip;
}

void PlayerFile::schemeChanged()
{
    nameFont = context.canvas.fontOf ("FontTitle", AssetScheme::Cut::bold);
    lengthFont = context.canvas.fontOf ("FontSmall");

    auto field = area();
    field.removeFromLeft (pixels ("ControlInset"));
    chevronArea = chevronAreaOf (context.canvas, field);
    field.removeFromRight (pixels ("CaptionGap"));
    lengthArea = field.removeFromRight (std::ceil (lengthFont.getStringWidthFloat (length)) + 1.0f);
    nameArea = field.withTrimmedRight (pixels ("CaptionGap"));
}

void PlayerFile::paintControl (juce::Graphics& g)
{
    const auto isThere = context.state().player.getSong() != nullptr;

    paintField (g, area(), surface ("Control"));
    paintText (g,
               name,
               nameFont,
               nameArea,
               juce::Justification::centredLeft,
               colour (isThere ? "Text" : "TextSecondary"));
    paintText (g,
               length,
               lengthFont,
               lengthArea,
               juce::Justification::centredRight,
               colour ("TextSecondary"));
    chevron.paint (g, chevronArea, colour ("TextSecondary"));
}

void PlayerFile::mouseDown (const juce::MouseEvent&)
{
    ring.mousePressed();
    openMenu();
}

void PlayerFile::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (! isWheelMeant() || juce::approximatelyEqual (wheel.deltaY, 0.0f))
        return Control::mouseWheelMove (event, wheel);

    constexpr auto smoothStep = 0.25f; // of a wheel that turns without notches, for one file

    if (const auto steps = wheelSteps.upIn (wheel, smoothStep); steps != 0)
        actions.step (steps > 0 ? -1 : 1);
}

bool PlayerFile::keyPressed (const juce::KeyPress& key)
{
    using juce::KeyPress;

    if (isPressKey (key))
        openMenu();
    else if (key == KeyPress (KeyPress::downKey) || key == KeyPress (KeyPress::rightKey))
        actions.step (1);
    else if (key == KeyPress (KeyPress::upKey) || key == KeyPress (KeyPress::leftKey))
        actions.step (-1);
    else if (key == KeyPress (KeyPress::deleteKey) || key == KeyPress (KeyPress::backspaceKey))
        actions.choose (0);
    else
        return false;

    ring.keyPressed();
    return true;
}

std::unique_ptr<juce::AccessibilityHandler> PlayerFile::createAccessibilityHandler()
{
    struct Spoken : juce::AccessibilityTextValueInterface
    {
        explicit Spoken (const PlayerFile& fileToSpeak) : file (fileToSpeak) {}

        bool isReadOnly() const override { return true; }
        void setValueAsString (const juce::String&) override {}
        juce::String getCurrentValueAsString() const override
        {
            return file.getShownLength().isEmpty() ? file.getShownName()
                                                   : file.getShownName() + ", " + file.getShownLength();
        }

        const PlayerFile& file;
    };

    juce::AccessibilityActions readerActions;
    readerActions.addAction (juce::AccessibilityActionType::press, [this] { openMenu(); })
        .addAction (juce::AccessibilityActionType::showMenu, [this] { openMenu(); });

    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::comboBox,
        std::move (readerActions),
        juce::AccessibilityHandler::Interfaces { std::make_unique<Spoken> (*this) });
}
} // namespace Zn::GUI
