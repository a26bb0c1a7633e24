#pragma once

#include "GUI/Widgets/Control.h"

#include <vector>

namespace Zn::GUI
{
/** Something in the editor that a key or the pedal can be learned for. */
struct LearnTarget
{
    Learning::Target target;
    Control* control; // never null

    bool operator== (const LearnTarget&) const = default;
};

/** All in the bands of a page that can be seen now. Thread: message. */
std::vector<LearnTarget> findLearnTargets (juce::Component& page);
} // namespace Zn::GUI
