#pragma once

#include <juce_core/juce_core.h>

#include <algorithm>
#include <array>
#include <vector>

namespace Zn::Tools
{
/** Lines of text whose columns stand one below the other, two blanks apart. The first row may be a heading. */
template <std::size_t numColumns>
juce::String textTable (const std::vector<std::array<juce::String, numColumns>>& rows)
{
    std::array<int, numColumns> widths {};

    for (const auto& row : rows)
        for (std::size_t i = 0; i < numColumns; ++i)
            widths[i] = std::max (widths[i], row[i].length());

    juce::String table;

    for (const auto& row : rows)
    {
        juce::String line;

        for (std::size_t i = 0; i < numColumns; ++i)
            line << row[i].paddedRight (' ', widths[i] + 2);

        table << line.trimEnd() << '\n';
    }

    return table;
}
} // namespace Zn::Tools
