#pragma once

#include "GUI/Widgets/ValueText.h"

namespace Zn::GUI
{
/** What somebody has typed as the text that a parameter reads, in the parameter's own unit; none if it is no number with
    a unit of that style. A bare number counts in the unit that makes sense of it: 2.4 of a cutoff are kilohertz, 180 of a
    time are milliseconds.
*/
std::optional<juce::String> readNumber (const juce::String& typed, ValueStyle style);

/** The same for a parameter with texts of its own: one of them in any case, or a whole number where they are numbers. */
std::optional<juce::String> readWord (const juce::String& typed, const Parameters::Parameter& parameter);
} // namespace Zn::GUI
