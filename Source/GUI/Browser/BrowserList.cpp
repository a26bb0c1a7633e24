#include "GUI/Browser/BrowserList.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
BrowserList::BrowserList (AssetScheme::Canvas& canvas, std::string element, const juce::String& title)
    : Element (canvas, std::move (element))
{
    setTitle (title);
    setOutlineThickness (0);
}

BrowserList::~BrowserList()
{
    jassert (getModel() == nullptr); // or the lines ask a list that is half gone
}

void BrowserList::setHint (const juce::String& newHint)
{
    hint = newHint;
    repaint();
}

void BrowserList::layOutRows (float heightOfRow)
{
    hintFont = getCanvas().fontOf ("FontBody");
    setRowHeight (std::max (1, juce::roundToInt (heightOfRow)));
    updateContent();
    scrollToEnsureRowIsOnscreen (std::max (0, getSelectedRow()));
}

void BrowserList::moveSelection (int numLines)
{
    if (const auto numRows = getNumRows(); numRows > 0)
        selectRow (std::clamp (getSelectedRow() + numLines, 0, numRows - 1));
}

int BrowserList::getNumLinesInSight() const
{
    return std::max (1, getHeight() / std::max (1, getRowHeight()));
}

bool BrowserList::answerSearchKey (const juce::KeyPress& key)
{
    using juce::KeyPress;

    if (key == KeyPress::upKey || key == KeyPress::downKey)
        return moveSelection (key == KeyPress::upKey ? -1 : 1), true;

    if (key == KeyPress::pageUpKey || key == KeyPress::pageDownKey)
        return moveSelection (getNumLinesInSight() * (key == KeyPress::pageUpKey ? -1 : 1)), true;

    if (key == KeyPress::returnKey)
        return activate(), true;

    return false;
}

juce::Component* BrowserList::refreshComponentForRow (int row, bool isSelected, juce::Component* toUpdate)
{
    std::unique_ptr<juce::Component> existing (toUpdate);

    if (row >= getNumRows())
        return nullptr;

    if (existing == nullptr)
        existing = makeRow();

    static_cast<BrowserRow&> (*existing).show (row, isSelected);
    return existing.release();
}

void BrowserList::paintOverChildren (juce::Graphics& g)
{
    ListBox::paintOverChildren (g);

    if (getNumRows() > 0)
        return;

    constexpr auto mostLines = 3;
    g.setColour (AssetScheme::Base::get().colourOf ("TextSecondary"));
    g.setFont (hintFont);
    g.drawFittedText (hint,
                      getLocalBounds().reduced (getRowHeight() / 2),
                      juce::Justification::centred,
                      mostLines);
}
} // namespace Zn::GUI
