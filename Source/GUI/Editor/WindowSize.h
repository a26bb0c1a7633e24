#pragma once

#include "Foundation/Dimensions.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** The size of the editor that a component lies in: that of the host's window or, without one, of the page.
    Setting it keeps to the smallest and largest size and the proportions. Thread: message.
*/
Dimensions<int> windowSizeOf (const juce::Component& part);
void setWindowWidth (juce::Component& part, int width);

/** Over the width that a new editor opens with. */
float windowScaleOf (const juce::Component& part);
void setWindowScale (juce::Component& part, float scale);
} // namespace Zn::GUI
