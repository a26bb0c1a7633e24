#pragma once

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** What the tooltip of a component says: its name and value in bold, then a line of help, and the key that does the
    same.
*/
struct TooltipText
{
    juce::String title, value, help, shortcut;

    bool operator== (const TooltipText&) const = default;
};

/** A component that has a tooltip. The overlay asks the one under the pointer. Thread: message. */
class TooltipSource
{
public:
    virtual ~TooltipSource() = default;
    virtual TooltipText getTooltipText() const = 0;

    /** How long the pointer rests on it first, in milliseconds; 0: as long as on most. */
    virtual int getTooltipDelay() const { return 0; }
};
} // namespace Zn::GUI
