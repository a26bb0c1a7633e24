#include "GUI/Popups/RoutingPopup.h"

#include "GUI/Widgets/ParameterEdit.h"
#include "GUI/Widgets/RadioHandler.h"
#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
juce::String text (const char* utf8)
{
    return juce::String::fromUTF8 (utf8);
}
} // namespace

/** One use in the list; the arrow keys go through them. */
class RoutingPopup::Row : public Control
{
public:
    Row (RoutingPopup& popup, int indexOfCase)
        : Control (popup.context, "RoutingCase" + std::to_string (indexOfCase + 1))
        , owner (popup)
        , index (indexOfCase)
        , shown (routingCases()[static_cast<std::size_t> (indexOfCase)])
    {
        setTitle (shown.title);
        setDescription (shown.detail);
        showChosen();
    }

    void showChosen()
    {
        setWantsKeyboardFocus (isChosen());
        repaint();
        RadioHandler::tellOfChange (*this);
    }

    void schemeChanged() override
    {
        font = context.canvas.fontOf ("FontBody");
        boldFont = context.canvas.fontOf ("FontBody", AssetScheme::Cut::bold);
        quietFont = context.canvas.fontOf ("FontSmall");
    }

    TooltipText getTooltipText() const override { return {}; }

    void mouseDown (const juce::MouseEvent&) override
    {
        ring.mousePressed();
        owner.choose (index);
    }

    bool keyPressed (const juce::KeyPress& key) override
    {
        const auto isUp = key == juce::KeyPress (juce::KeyPress::upKey);

        if (! isUp && ! (key == juce::KeyPress (juce::KeyPress::downKey)))
            return false;

        owner.choose (index + (isUp ? -1 : 1));
        owner.rows[static_cast<std::size_t> (owner.chosen)]->grabKeyboardFocus();
        return true;
    }

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<RadioHandler> (
            *this,
            [this] { return isChosen(); },
            [this] { owner.choose (index); });
    }

private:
    bool isChosen() const { return owner.chosen == index; }

    void paintControl (juce::Graphics& g) override
    {
        const auto inset = juce::roundToInt (pixels ("PopupInset"));

        if (isChosen())
            paintField (g, area(), surface ("MidiDeep"));
        else
            paintHover (g);

        auto place = getLocalBounds().reduced (inset, 0).withSizeKeepingCentre (
            getWidth() - 2 * inset,
            juce::roundToInt (1.3f * (font.getHeight() + quietFont.getHeight())));
        g.setColour (colour ("Text"));
        g.setFont (isChosen() ? boldFont : font);
        g.drawText (shown.title,
                    place.removeFromTop (place.getHeight() / 2),
                    juce::Justification::centredLeft,
                    true);
        g.setColour (colour ("TextSecondary"));
        g.setFont (quietFont);
        g.drawText (shown.detail, place, juce::Justification::centredLeft, true);
    }

    RoutingPopup& owner;
    const int index;
    const RoutingCase& shown;
    juce::Font font, boldFont, quietFont;
};

//======================================================================================================================
RoutingPopup::RoutingPopup (EditorContext& contextToUse)
    : Popup (contextToUse, "RoutingPopup", "How do you want to use Vornel?")
    , list (context.canvas, "RoutingCases")
    , closeButton (
          context, "RoutingClose", { .icon = "close.svg", .look = Button::Look::quiet }, [this] { close(); })
{
    addAndMakeVisible (list);

    for (auto index = 0; index < static_cast<int> (routingCases().size()); ++index)
        list.addAndMakeVisible (*rows.emplace_back (std::make_unique<Row> (*this, index)));

    addAndMakeVisible (picture);
    addAndMakeVisible (steps);
    addAndMakeVisible (closeButton);
    offer.emplace (context, "RoutingButton", Button::Options { .text = text (current().offerText) }, [this] {
        acceptOffer();
    });
    offer->setEnabledWhen ([this] { return ! isSoAlready(); });
    addAndMakeVisible (*offer);
    choose (0);
}

RoutingPopup::~RoutingPopup() = default;

const RoutingCase& RoutingPopup::current() const
{
    return routingCases()[static_cast<std::size_t> (chosen)];
}

void RoutingPopup::choose (int newIndex)
{
    chosen = juce::jlimit (0, static_cast<int> (rows.size()) - 1, newIndex);

    for (auto& row : rows)
        row->showChosen();

    offer->setLabel (text (current().offerText));
    offer->setTitle (text (current().offerText));
    steps.show (current());
    picture.show (current());
}

/** What the button offers. */
bool RoutingPopup::isSoAlready() const
{
    const auto& state = context.state();

    switch (current().offer)
    {
    case RoutingCase::Offer::synthOn:
        return state.params.sound.synthEnable.get();
    case RoutingCase::Offer::synthOff:
        return ! state.params.sound.synthEnable.get();
    case RoutingCase::Offer::internalClock:
        return state.playHead->internalClock.load();
    case RoutingCase::Offer::panic:
        break;
    }

    return false;
}

void RoutingPopup::acceptOffer()
{
    auto& state = context.state();
    const auto setSynth = [this, &state] (bool shouldBeOn) {
        const auto synth = Parameters::createForwarder (state.params.sound.synthEnable);
        context.edits.perform ("Synth", [&] {
            return changeAtOnce (*synth, [shouldBeOn] (auto& p) { p.setBool (shouldBeOn); });
        });
    };

    switch (current().offer)
    {
    case RoutingCase::Offer::synthOn:
        setSynth (true);
        break;
    case RoutingCase::Offer::synthOff:
        setSynth (false);
        break;
    case RoutingCase::Offer::internalClock:
        state.playHead->internalClock = true;
        break;
    case RoutingCase::Offer::panic:
        state.panic();
        break;
    }
}

void RoutingPopup::paint (juce::Graphics& g)
{
    Popup::paint (g);
    paintHeading (g, context.canvas.boundsIn (this, "RoutingTitle"));
}
} // namespace Zn::GUI
