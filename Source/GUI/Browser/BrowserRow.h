#pragma once

#include "GUI/Browser/BrowserColours.h"
#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Widgets/TooltipSource.h"

namespace Zn::GUI
{
/** One line of a browser's list. Lines are used again for others when the list is scrolled. Thread: message. */
class BrowserRow : public juce::Component, public TooltipSource
{
public:
    BrowserRow();

    void show (int rowToShow, bool shouldBeSelected);

    int getTooltipDelay() const override { return quickTooltip; }
    void mouseEnter (const juce::MouseEvent&) override { repaint(); }
    void mouseExit (const juce::MouseEvent&) override { repaint(); }

protected:
    int getRow() const noexcept { return row; }

    /** It stands for another line, or that has changed. */
    virtual void shownRowChanged() {}

    /** In the height of a box, over the whole width. */
    void paintGround (juce::Graphics& g,
                      const AssetScheme::Canvas& canvas,
                      juce::Rectangle<float> box,
                      BrowserColours colours,
                      bool isCurrent) const;

private:
    static constexpr auto quickTooltip = 300; // milliseconds

    int row = 0;
    bool isSelected = false;
};
} // namespace Zn::GUI
