#include "GUI/Popups/RoutingPopup.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/ParameterEdit.h"
#include "Parameters/CreateForwarder.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
juce::Colour schemeColour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

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
        return std::make_unique<juce::AccessibilityHandler> (
            *this,
            juce::AccessibilityRole::radioButton,
            juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press,
                                                    [this] { owner.choose (index); }));
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
    picture.repaint();
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

//======================================================================================================================
RoutingPopup::Picture::Picture (RoutingPopup& popup)
    : Element (popup.context.canvas, "RoutingPicture"), owner (popup)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false); // the steps say the same
}

void RoutingPopup::Picture::schemeChanged()
{
    nameFont = getCanvas().fontOf ("FontBody", AssetScheme::Cut::bold);
    detailFont = getCanvas().fontOf ("FontSmall");
}

void RoutingPopup::Picture::paint (juce::Graphics& g)
{
    const auto area = getLocalBounds().toFloat();
    g.setColour (schemeColour ("Inset"));
    g.fillRoundedRectangle (area, getCanvas().cornerOf ("PictureCorner", area));

    constexpr auto boxPart = 0.222f, gapPart = 0.115f, heightPart = 0.36f; // of the picture
    const auto stroke = std::max (1.0f, getCanvas().pixelsOf ("ThinnerStroke"));
    const auto& shown = owner.current();
    auto box = juce::Rectangle<float> (boxPart * area.getWidth(), heightPart * area.getHeight())
                   .withCentre (area.getCentre());
    box.translate (-(boxPart + gapPart) * area.getWidth(), 0.0f);

    for (std::size_t index = 0; index < shown.boxes.size(); ++index)
    {
        const auto& [name, detail, colourName] = shown.boxes[index];
        const auto corner = getCanvas().cornerOf ("NoteCorner", box) / 2.0f;
        g.setColour (schemeColour ("Card"));
        g.fillRoundedRectangle (box, corner);
        g.setColour (schemeColour (colourName));
        g.drawRoundedRectangle (box.reduced (stroke / 2.0f), corner, stroke);

        auto words = box.withSizeKeepingCentre (box.getWidth(),
                                                1.3f * (nameFont.getHeight() + detailFont.getHeight()));
        g.setColour (schemeColour ("Text"));
        g.setFont (nameFont);
        g.drawText (name, words.removeFromTop (words.getHeight() / 2.0f), juce::Justification::centred, true);
        g.setColour (schemeColour ("TextSecondary"));
        g.setFont (detailFont);
        g.drawText (detail, words, juce::Justification::centred, true);

        const auto gap = juce::Rectangle<float> (gapPart * area.getWidth(), box.getHeight())
                             .withPosition (box.getRight(), box.getY());
        box.translate ((boxPart + gapPart) * area.getWidth(), 0.0f);

        if (index == shown.arrows.size())
            break;

        const auto line = gap.reduced (gap.getWidth() * 0.12f, 0.0f);
        const auto y = gap.getCentreY();
        const auto head = line.getWidth() * 0.25f;
        juce::Path arrow;
        arrow.startNewSubPath (line.getX(), y);
        arrow.lineTo (line.getRight(), y);
        arrow.startNewSubPath (line.getRight() - head, y - head / 2.0f);
        arrow.lineTo (line.getRight(), y);
        arrow.lineTo (line.getRight() - head, y + head / 2.0f);

        const auto isAudio = std::string_view (shown.arrows[index]) == "Audio";
        g.setColour (schemeColour (isAudio ? "Sound" : "Midi"));
        g.strokePath (arrow,
                      juce::PathStrokeType (1.5f * stroke,
                                            juce::PathStrokeType::curved,
                                            juce::PathStrokeType::rounded));
        g.setColour (schemeColour ("TextSecondary"));
        g.setFont (detailFont);
        g.drawText (
            shown.arrows[index],
            gap.withBottom (y - head / 2.0f).removeFromBottom (detailFont.getHeight()).expanded (head, 0.0f),
            juce::Justification::centred,
            false);
    }
}

//======================================================================================================================
RoutingPopup::Steps::Steps (RoutingPopup& popup)
    : Element (popup.context.canvas, "RoutingSteps"), owner (popup)
{
    setInterceptsMouseClicks (false, false);
}

void RoutingPopup::Steps::show (const RoutingCase& shown)
{
    const auto inset = getCanvas().pixelsOf ("PopupInset");
    const auto font = getCanvas().fontOf ("FontBody");
    juce::StringArray spoken;
    lines.clear();

    for (const auto* step : shown.steps)
        if (step != nullptr)
        {
            juce::AttributedString words;
            words.append (text (step), font, schemeColour ("Text"));
            words.setLineSpacing (0.4f * font.getHeight());
            lines.emplace_back().createLayout (words, float (getWidth()) - 3.0f * inset);
            spoken.add (text (step));
        }

    setDescription (spoken.joinIntoString (" "));
    repaint();
}

void RoutingPopup::Steps::schemeChanged()
{
    numberFont = getCanvas().fontOf ("FontSmall", AssetScheme::Cut::bold);
    show (owner.current());
}

void RoutingPopup::Steps::paint (juce::Graphics& g)
{
    const auto inset = getCanvas().pixelsOf ("PopupInset");
    const auto side = 1.8f * inset;
    auto area = getLocalBounds().toFloat();
    auto number = 0;

    for (const auto& line : lines)
    {
        auto place = area.removeFromTop (std::max (line.getHeight(), side));
        const auto circle = place.removeFromLeft (3.0f * inset).withSize (side, side);

        g.setColour (schemeColour ("Control"));
        g.fillEllipse (circle);
        g.setColour (schemeColour ("Text"));
        g.setFont (numberFont);
        g.drawText (juce::String (++number), circle, juce::Justification::centred, false);

        line.draw (g, place.withTrimmedTop (std::max (0.0f, (side - line.getHeight()) / 2.0f)));
        area.removeFromTop (0.8f * inset);
    }
}
} // namespace Zn::GUI
