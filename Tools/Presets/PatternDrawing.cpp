#include "PatternDrawing.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

namespace Zn::PresetTool
{
namespace
{
constexpr double aHairEarly = 1.0e-3; // columns: steps of other grids may start that much ahead of a line
constexpr int rowWidth = 5;           // characters

void drawStep (std::string& row, const Sequencer::TimedNote& step)
{
    const auto columns = static_cast<double> (row.size());
    const auto first = std::floor (step.time.start * columns + aHairEarly);

    if (! (first >= 0.0 && first < columns))
        return;

    const auto length = std::max (std::round (step.time.length * columns), 1.0);
    const auto start = static_cast<std::size_t> (first);
    const auto end = static_cast<std::size_t> (std::min (first + length, columns));

    for (auto column = start + 1; column < end; ++column)
        if (row[column] == '.')
            row[column] = '-';

    row[start] = step.enabled ? 'x' : 'o';
}

juce::String counted (int number, const juce::String& thing)
{
    return juce::String (number) + " " + thing + (number == 1 ? "" : "s");
}

juce::String textOf (const Sequencer::MusicalTime& time)
{
    juce::StringArray bars;

    for (const auto& bar : time.getBars().list)
        bars.add (juce::String (bar.num) + "/" + juce::String (bar.denum));

    return bars.joinIntoString (" + ");
}
} // namespace

juce::String drawingOf (const Sequencer::PatternSlot& slot)
{
    const auto columns = static_cast<std::size_t> (slot.pattern.grid);
    std::map<int, std::string, std::greater<>> rows;

    for (const auto& step : slot.pattern.steps)
        drawStep (rows.try_emplace (step.event.noteNum, columns, '.').first->second, step);

    juce::String drawing;

    for (const auto& [row, cells] : rows)
        drawing << juce::String (row).paddedLeft (' ', rowWidth) << " |" << juce::String (cells) << "|\n";

    return drawing;
}

juce::String descriptionOf (const Sequencer::PatternSlot& slot)
{
    const auto columns = counted (slot.pattern.grid, "column");
    const auto time = textOf (slot.time);

    return (slot.multiply ? columns + " of " + time + " each" : time + ", " + columns) + ", "
           + counted (static_cast<int> (slot.pattern.steps.size()), "step");
}
} // namespace Zn::PresetTool
