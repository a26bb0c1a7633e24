#include "GUI/Widgets/Segments.h"

#include "GUI/Widgets/RadioHandler.h"

#include <utility>

namespace Zn::GUI
{
struct Segments::Segment : juce::Component, TooltipSource
{
    Segment (Segments& rowToBelongTo, Item itemToShow)
        : row (rowToBelongTo)
        , item (std::move (itemToShow))
        , text (item.element.empty() ? row.getText() : controlText (item.element))
        , caption ({ .text = item.text, .icon = item.icon })
    {
        setComponentID (item.element.empty() ? juce::String (row.getElement()) + item.text
                                             : juce::String (item.element));
        setTitle (item.text);
        setDescription (text.help);
        setWantsKeyboardFocus (false);
    }

    bool isChosen() const { return row.getParameter()->getInt() == item.value; }

    TooltipText getTooltipText() const override
    {
        return { .title = text.title,
                 .value = item.element.empty() ? item.text : juce::String(),
                 .help = text.help,
                 .shortcut = text.shortcut };
    }

    void mouseDown (const juce::MouseEvent& event) override
    {
        if (row.isShowing())
            row.grabKeyboardFocus();

        if (row.context.learning.isActive() || event.mods.isPopupMenu() || event.mods.isCommandDown())
            row.mouseDown (event.getEventRelativeTo (&row));
        else if (row.isEnabled())
            row.choose (item.value);
    }

    void mouseEnter (const juce::MouseEvent& event) override
    {
        row.mouseEnter (event.getEventRelativeTo (&row)); // covered, it would not know
        repaint();
    }

    void mouseExit (const juce::MouseEvent& event) override
    {
        row.mouseExit (event.getEventRelativeTo (&row));
        repaint();
    }

    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override
    {
        row.mouseWheelMove (event.getEventRelativeTo (&row), wheel);
    }

    void paint (juce::Graphics& g) override { row.paintSegment (g, *this); }

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    Segments& row;
    const Item item;
    const ControlText text;
    Caption caption;
    bool wasChosen = isChosen(); // when that was told last
};

Segments::Segments (EditorContext& contextToUse,
                    std::string element,
                    std::shared_ptr<Parameters::Parameter> parameterToShow)
    : Segments (contextToUse, std::move (element), std::move (parameterToShow), Options())
{}

Segments::Segments (EditorContext& contextToUse,
                    std::string element,
                    std::shared_ptr<Parameters::Parameter> parameterToShow,
                    Options optionsToUse)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow))
    , accent (optionsToUse.accent)
{
    for (auto& item : itemsOf (optionsToUse.items))
        addAndMakeVisible (segments.emplace_back (*this, std::move (item)));
}

Segments::~Segments() = default;

std::vector<Segments::Item> Segments::itemsOf (const std::vector<Item>& given) const
{
    if (! given.empty())
        return given;

    std::vector<Item> items;

    for (auto step = 0; step <= getParameter()->getNumSteps(); ++step)
        items.push_back ({ .text = getParameter()->getTextForStep (step), .value = step });

    return items;
}

void Segments::schemeChanged()
{
    const auto inner = area().reduced (pixels ("SegmentInset"));
    auto room = inner.getWidth();

    for (auto& segment : segments)
    {
        segment.caption.layOut (context.canvas, {});
        room -= segment.caption.getWidth();
    }

    auto x = inner.getX();

    for (auto& segment : segments)
    {
        const auto width = segment.caption.getWidth() + room / static_cast<float> (segments.size());
        const auto place = juce::Rectangle<float> (x, inner.getY(), width, inner.getHeight());
        segment.setBounds (segment.item.element.empty() ? place.toNearestIntEdges()
                                                        : context.canvas.boundsIn (this, segment.item.element)
                                                              .getIntersection (inner.toNearestIntEdges()));
        segment.caption.layOut (context.canvas, segment.getLocalBounds().toFloat());
        x += width;
    }
}

void Segments::paintControl (juce::Graphics& g)
{
    paintField (g, area(), colour ("Control"));
}

void Segments::paintSegment (juce::Graphics& g, Segment& segment)
{
    const auto field = segment.getLocalBounds().toFloat();
    const auto chosen = segment.isChosen();

    if (chosen)
    {
        paintField (g, field, colour (accent.empty() ? "Choice" : accent + "Deep"));

        if (! accent.empty())
        {
            const auto stroke = pixels ("HairlineStroke");
            const auto edge = field.reduced (stroke / 2.0f);
            g.setColour (colour (accent));
            g.drawRoundedRectangle (edge, context.canvas.cornerOf ("ControlCorner", edge), stroke);
        }
    }
    else if (isEnabled() && segment.isMouseOver())
    {
        paintField (g, field, colour ("ControlHover"));
    }

    const auto icon = chosen && ! accent.empty() ? std::string_view (accent) : "TextSecondary";
    segment.caption.paint (g, colour (icon), colour (chosen ? "Text" : "TextSecondary"));
}

void Segments::valueChanged()
{
    for (auto& segment : segments)
    {
        segment.repaint();

        if (const auto isChosen = segment.isChosen(); std::exchange (segment.wasChosen, isChosen) != isChosen)
            RadioHandler::tellOfChange (segment);
    }
}

void Segments::choose (int value)
{
    change ([value] (auto& p) { p.setInt (value); });
}

void Segments::moveBy (int distance)
{
    for (auto index = 0; index < static_cast<int> (segments.size()); ++index)
        if (segments[static_cast<std::size_t> (index)].isChosen())
        {
            const auto last = static_cast<int> (segments.size()) - 1;
            const auto next = static_cast<std::size_t> (juce::jlimit (0, last, index + distance));
            changeJoining ([value = segments[next].item.value] (auto& p) { p.setInt (value); });
            return;
        }
}

std::unique_ptr<juce::AccessibilityHandler> Segments::Segment::createAccessibilityHandler()
{
    return std::make_unique<RadioHandler> (
        *this,
        [this] { return isChosen(); },
        [this] { row.choose (item.value); });
}
} // namespace Zn::GUI
