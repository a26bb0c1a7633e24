#pragma once

#include "GUI/Arp/DragMidi.h"
#include "GUI/Pattern/PatternParams.h"
#include "GUI/Pattern/SlotEdits.h"
#include "GUI/Widgets/Divider.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/Label.h"
#include "GUI/Widgets/NumberField.h"
#include "GUI/Widgets/Segments.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The tools, and the grid and time of the pattern that is open. Thread: message. */
class BrushBand : public AssetScheme::Element<>
{
public:
    explicit BrushBand (EditorContext& contextToUse);

    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    void poll();
    void showLength (double quarters);
    void showGrid (int numColumns);

    EditorContext& context;
    PatternParams params { context };
    SlotEdits slotEdits { context };

    Segments tools;
    Button clear;
    Divider afterTools { context, "BrushDivider1" };

    Toggle snap;
    Label gridLabel, noteLengthLabel;
    NumberField grid, noteLength;
    Divider afterGrid { context, "BrushDivider2" };

    Label timeLabel, timeSlash, patternLength;
    double shownQuarters = -1.0;
    int shownColumns = -1;
    NumberField timeNum, timeDenum;
    Toggle multiply;
    DragMidi dragMidi { context };

    Events::Listener polls { context.polls, [this] { poll(); } };
};
} // namespace Zn::GUI
