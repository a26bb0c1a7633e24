#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** For a drag over what takes no drop; made when it is needed first. Thread: message. */
class NoEntryPointer
{
public:
    const juce::MouseCursor& get();

private:
    juce::MouseCursor pointer;
};
} // namespace Zn::GUI
