#pragma once

#include <juce_core/juce_core.h>

#include <cstdlib>

namespace Zn::Tests
{
/** Keeps whatever a test writes out of the user's own folders, and removes it at the end. To be made before JUCE asks
    for a folder.
*/
class TemporaryHome
{
public:
    TemporaryHome()
    {
        home.createDirectory();

        for (const auto* name : { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TMPDIR" })
            ::setenv (name, home.getFullPathName().toRawUTF8(), 1);
    }

    ~TemporaryHome() { home.deleteRecursively(); }

    TemporaryHome (const TemporaryHome&) = delete;
    TemporaryHome& operator= (const TemporaryHome&) = delete;

private:
    juce::File home = juce::File::getSpecialLocation (juce::File::tempDirectory)
                          .getChildFile ("vornel-test-" + juce::Uuid().toString());
};
} // namespace Zn::Tests
