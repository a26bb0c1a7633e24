#include "GUI/Arp/PlayButton.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
PlayButton::PlayButton (EditorContext& contextToUse)
    : Control (contextToUse, "Play")
    , playHead (*contextToUse.state().playHead)
    , plays (playHead.isPlaying.load())
{
    setEnabledWhen ([this] { return playHead.control.load() == Sequencer::PlayHead::Control::editor; });
}

void PlayButton::flip()
{
    if (! isEnabled())
        return;

    playHead.isPlaying.store (! playHead.isPlaying.load());
    poll();
}

void PlayButton::rewind()
{
    if (isEnabled())
        playHead.moveTo (0.0);
}

void PlayButton::poll()
{
    const auto now = playHead.isPlaying.load();

    if (std::exchange (plays, now) == now)
        return;

    repaint();

    if (auto* handler = getAccessibilityHandler())
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);
}

void PlayButton::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (! isEnabled() || event.mods.isPopupMenu())
        return;

    setPressed (true);

    if (event.mods.isAltDown())
        rewind();
    else
        flip();
}

void PlayButton::mouseUp (const juce::MouseEvent&)
{
    setPressed (false);
}

bool PlayButton::keyPressed (const juce::KeyPress& key)
{
    if (! isEnabled() || (key.getKeyCode() != juce::KeyPress::returnKey && ! isPressKey (key)))
        return false;

    ring.keyPressed();

    if (key.getModifiers().isAltDown())
        rewind();
    else
        flip();

    return true;
}

TooltipText PlayButton::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.title = plays ? "Stop" : "Play";

    switch (playHead.control.load())
    {
    case Sequencer::PlayHead::Control::host:
        tooltip.help = "The host starts and stops the clock.";
        break;
    case Sequencer::PlayHead::Control::nobody:
        tooltip.help = "The clock always runs while the host is stopped.";
        break;
    case Sequencer::PlayHead::Control::editor:
        break;
    }

    return tooltip;
}

void PlayButton::paintControl (juce::Graphics& g)
{
    const auto stroke = pixels ("ThinStroke");
    const auto diameter = std::min (area().getWidth(), area().getHeight());
    const auto circle = area().withSizeKeepingCentre (diameter, diameter).reduced (stroke / 2.0f);

    if (isEnabled())
    {
        g.setColour (surface ("Control"));
        g.fillEllipse (circle);
    }

    if (plays || ! isEnabled()) // what is only shown is still to be seen well
    {
        g.setColour (AssetScheme::Base::get().colourOf (isEnabled() ? "Time" : "Choice"));
        g.drawEllipse (circle, stroke);
    }

    const auto size = pixels ("PlayIcon");
    auto& icon = plays ? stopIcon : playIcon;
    icon.paint (g,
                juce::Rectangle<float> (size, size).withCentre (circle.getCentre()),
                AssetScheme::Base::get().colourOf (isEnabled() ? "Text" : "TextSecondary"));
}

std::unique_ptr<juce::AccessibilityHandler> PlayButton::createAccessibilityHandler()
{
    struct Handler : juce::AccessibilityHandler
    {
        explicit Handler (PlayButton& buttonToDescribe)
            : AccessibilityHandler (buttonToDescribe,
                                    juce::AccessibilityRole::toggleButton,
                                    juce::AccessibilityActions()
                                        .addAction (juce::AccessibilityActionType::press,
                                                    [&buttonToDescribe] { buttonToDescribe.flip(); })
                                        .addAction (juce::AccessibilityActionType::toggle,
                                                    [&buttonToDescribe] { buttonToDescribe.flip(); }))
            , button (buttonToDescribe)
        {}

        juce::AccessibleState getCurrentState() const override
        {
            const auto state = AccessibilityHandler::getCurrentState().withCheckable();
            return button.isPlaying() ? state.withChecked() : state;
        }

        juce::String getHelp() const override { return button.getTooltipText().help; }

        PlayButton& button;
    };

    return std::make_unique<Handler> (*this);
}
} // namespace Zn::GUI
