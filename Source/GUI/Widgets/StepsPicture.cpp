#include "GUI/Widgets/StepsPicture.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
constexpr auto fewestRows = 5;        // a pattern of few rows does not get higher boxes than this leaves
constexpr auto quietest = 0.4f;       // opacity of a note without velocity
constexpr auto disabledNote = 0.25f;  // opacity
constexpr auto thinnestNote = 0.6f;   // part of its row
constexpr auto cornerOfNote = 0.016f; // part of the picture's width

/** The rows that a picture shows, around those that have notes. */
juce::Range<int> rowsOf (const std::vector<Sequencer::TimedNote>& steps)
{
    juce::Range<int> rows { steps.front().event.noteNum, steps.front().event.noteNum + 1 };

    for (const auto& step : steps)
        rows = rows.getUnionWith ({ step.event.noteNum, step.event.noteNum + 1 });

    const auto missing = std::max (0, fewestRows - rows.getLength());
    return { rows.getStart() - missing / 2, rows.getEnd() + (missing - missing / 2) };
}

float opacityOf (const Sequencer::TimedNote& step)
{
    const auto velocity = std::clamp (step.event.velocity, 0.0f, 1.0f);
    return step.enabled ? quietest + (1.0f - quietest) * velocity : disabledNote;
}
} // namespace

void paintSteps (juce::Graphics& g,
                 const AssetScheme::Canvas& canvas,
                 juce::Rectangle<float> area,
                 const std::vector<Sequencer::TimedNote>& steps)
{
    if (steps.empty())
        return;

    const auto rows = rowsOf (steps);
    const auto rowHeight = area.getHeight() / static_cast<float> (rows.getLength());
    const auto gap = canvas.pixelsOf ("HairlineStroke");
    const auto noteHeight = std::max (rowHeight - gap, rowHeight * thinnestNote);
    const auto narrowest = 2.0f * gap;
    const auto corner = std::min (0.5f * noteHeight, cornerOfNote * area.getWidth());
    const auto colour = AssetScheme::Base::get().colourOf ("Pattern");

    for (const auto& step : steps)
    {
        const auto x = static_cast<float> (step.time.start) * area.getWidth();
        const auto y = static_cast<float> (rows.getEnd() - 1 - step.event.noteNum) * rowHeight;
        const auto width =
            std::max (narrowest, static_cast<float> (step.time.length) * area.getWidth() - gap);

        g.setColour (colour.withAlpha (opacityOf (step)));
        g.fillRoundedRectangle (area.getX() + x,
                                area.getY() + y,
                                std::min (width, area.getWidth() - x),
                                noteHeight,
                                corner);
    }
}
} // namespace Zn::GUI
