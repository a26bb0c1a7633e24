#pragma once

#include "Foundation/Binaries.h"

#include <juce_core/juce_core.h>

namespace Zn::Presets
{
/** Brings a folder to what an embedded archive holds: writes what is missing or different and leaves the rest alone.

    Several processes may do so at once; a reader sees a whole old file or a whole new one. What cannot be written
    is passed over, silently. Never writes through a link. Thread: any but audio.
*/
void installFactoryContent (Binaries::Bytes zip, const juce::File& folder);
} // namespace Zn::Presets
