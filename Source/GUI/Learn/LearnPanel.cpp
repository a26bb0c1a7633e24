#include "GUI/Learn/LearnPanel.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto emptyText = "Nothing yet. Click a pattern, then play the key that is to switch to it.";
constexpr auto keyWidth = 0.23f; // of a line

juce::Colour schemeColour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

struct LearnPanel::Row : juce::Component, TooltipSource
{
    Row (LearnPanel& panelToBelongTo, Line lineToShow)
        : panel (panelToBelongTo), line (std::move (lineToShow))
    {
        setTitle (line.title + ", " + line.key);
        setWantsKeyboardFocus (true);
        setRepaintsOnMouseActivity (true);
    }

    TooltipText getTooltipText() const override
    {
        return { .title = line.title,
                 .value = line.key,
                 .help = "Click the cross to forget it.",
                 .shortcut = "Delete" };
    }

    juce::Rectangle<float> crossArea() const
    {
        const auto size = panel.context.canvas.pixelsOf ("IconSizeSmall");
        const auto end = getLocalBounds().toFloat().removeFromRight (float (getHeight()));
        return end.withSizeKeepingCentre (size, size);
    }

    void forget()
    {
        auto& learning = panel.context.learning;
        const auto target = line.target; // the row goes with it
        learning.forget (target);
    }

    void mouseEnter (const juce::MouseEvent&) override { panel.onHover (line.target); }
    void mouseExit (const juce::MouseEvent&) override { panel.onHover ({}); }

    void mouseDown (const juce::MouseEvent& event) override
    {
        if (event.mods.isPopupMenu() || event.x >= getWidth() - getHeight())
            forget();
    }

    bool keyPressed (const juce::KeyPress& key) override
    {
        if (key != juce::KeyPress (juce::KeyPress::deleteKey)
            && key != juce::KeyPress (juce::KeyPress::backspaceKey))
            return false;

        forget();
        return true;
    }

    void focusGained (FocusChangeType) override { repaint(); }
    void focusLost (FocusChangeType) override { repaint(); }

    void paint (juce::Graphics& g) override
    {
        const auto& sheet = panel.context.canvas;
        auto area = getLocalBounds().toFloat();

        if (isMouseOver() || hasKeyboardFocus (false))
        {
            g.setColour (schemeColour ("PopupHover"));
            g.fillRoundedRectangle (area, sheet.cornerOf ("ControlCorner", area));
        }

        const auto inset = sheet.pixelsOf ("CaptionGap");
        area.reduce (inset, 0.0f);
        const auto key = area.removeFromLeft (keyWidth * area.getWidth()).reduced (0.0f, inset);

        g.setColour (schemeColour ("MidiDeep"));
        g.fillRoundedRectangle (key, sheet.cornerOf ("ControlCorner", key));
        g.setColour (schemeColour ("Text"));
        g.setFont (panel.keyFont);
        g.drawText (line.key, key, juce::Justification::centred, true);

        area.removeFromLeft (2.0f * inset);
        area.setRight (crossArea().getX());
        g.setFont (panel.textFont);
        g.drawText (line.title, area, juce::Justification::centredLeft, true);
        cross.paint (g, crossArea(), schemeColour ("TextSecondary"));
    }

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<juce::AccessibilityHandler> (
            *this,
            juce::AccessibilityRole::listItem,
            juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press,
                                                    [this] { forget(); }));
    }

    LearnPanel& panel;
    const Line line;
    SVGPainter cross { "close.svg" };
};

LearnPanel::LearnPanel (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "LearnPanel")
    , context (contextToUse)
    , view (contextToUse.canvas, "LearnPanelList")
    , forgetAll (contextToUse,
                 "LearnPanelClear",
                 { .text = "Forget all" },
                 [&learning = contextToUse.learning] { learning.getMap().clearAll(); })
{
    setTitle ("Learned");
    view.setViewedComponent (&list, false);
    view.setScrollBarsShown (true, false);
    forgetAll.setEnabled (false);
    addAndMakeVisible (view);
    addAndMakeVisible (forgetAll);
}

LearnPanel::~LearnPanel() = default;

void LearnPanel::setLines (std::vector<Line> newLines)
{
    if (std::exchange (lines, std::move (newLines)) == lines)
        return;

    rows.clear();
    forgetAll.setEnabled (! lines.empty());

    for (const auto& line : lines)
        list.addAndMakeVisible (*rows.emplace_back (std::make_unique<Row> (*this, line)));

    layOutRows();
    repaint();
}

void LearnPanel::layOutRows()
{
    const auto height = juce::roundToInt (context.canvas.pixelsOf ("LearnRowHeight"));
    const auto width = view.getMaximumVisibleWidth();
    list.setSize (width, height * int (rows.size()));

    for (auto y = 0; auto& row : rows)
    {
        row->setBounds (0, y, width, height);
        y += height;
    }
}

void LearnPanel::schemeChanged()
{
    const auto& sheet = context.canvas;
    titleFont = sheet.fontOf ("FontTitle", AssetScheme::Cut::bold);
    countFont = sheet.fontOf ("FontSmall");
    keyFont = sheet.fontOf ("FontSmall", AssetScheme::Cut::bold);
    textFont = sheet.fontOf ("FontBody");
    layOutRows();
}

void LearnPanel::paint (juce::Graphics& g)
{
    paintCard (g, context.canvas, getLocalBounds());

    const auto title = context.canvas.boundsIn (this, "LearnPanelTitle");
    g.setColour (schemeColour ("Text"));
    g.setFont (titleFont);
    g.drawText (getTitle(), title, juce::Justification::centredLeft, false);
    g.setColour (schemeColour ("TextSecondary"));
    g.setFont (countFont);

    if (! lines.empty())
        g.drawText (juce::String (lines.size()), title, juce::Justification::centredRight, false);
    else
        g.drawFittedText (emptyText,
                          context.canvas.boundsIn (this, "LearnPanelList")
                              .withX (title.getX())
                              .withWidth (title.getWidth()),
                          juce::Justification::topLeft,
                          3);
}

std::unique_ptr<juce::AccessibilityHandler> LearnPanel::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::list);
}
} // namespace Zn::GUI
