#pragma once

#include <juce_core/juce_core.h>

namespace Zn::Tests
{
/** A folder for a test's files that goes with it. */
struct ScratchFolder
{
    ScratchFolder() { folder.createDirectory(); }
    ~ScratchFolder() { folder.deleteRecursively(); }

    ScratchFolder (const ScratchFolder&) = delete;
    ScratchFolder& operator= (const ScratchFolder&) = delete;

    juce::File file (const juce::String& name) const { return folder.getChildFile (name); }

    const juce::File folder = juce::File::createTempFile ("scratch");
};
} // namespace Zn::Tests
