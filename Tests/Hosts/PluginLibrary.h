#pragma once

#include <juce_core/juce_core.h>

#include <string>

namespace Zn::Tests
{
/** Whether a library whose path ends like this is in the memory of this process. */
bool isLoaded (const std::string& endOfPath);

/** A VST3's library as a scanner has it: loaded by hand, so that it goes when this does. Hosts made of JUCE keep
    theirs. Throws if it cannot be loaded.
*/
class VST3Library
{
public:
    explicit VST3Library (const std::string& bundle);
    ~VST3Library();

    VST3Library (const VST3Library&) = delete;
    VST3Library& operator= (const VST3Library&) = delete;

    /** Makes one of each class there is, and drops it. Returns how many there were. */
    int scan() const;

private:
    void* handle = nullptr;
};
} // namespace Zn::Tests
