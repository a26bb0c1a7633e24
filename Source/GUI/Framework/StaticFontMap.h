#pragma once

#include "Foundation/Binaries.h"

#include <juce_graphics/juce_graphics.h>

#include <map>
#include <string>
#include <string_view>

namespace Zn::Binaries
{
/** The typefaces of the embedded fonts by the names of their files, each loaded once and kept for the process.
    Thread: message.
*/
class StaticFontMap
{
public:
    static StaticFontMap& get();

    /** Null for an unknown name. */
    juce::Typeface::Ptr getTypeface (std::string_view fileName);

    /** A font by the size of its em, as designers give it: JUCE's own height is that of a line. The system's font
        for an unknown name.
    */
    juce::Font fontOf (std::string_view fileName, float emPixels);

private:
    struct Face
    {
        juce::Typeface::Ptr typeface;
        float emsPerLine = 1.0f;
    };

    static Face load (std::string_view fileName);
    const Face& faceOf (std::string_view fileName);

    std::map<std::string, Face, std::less<>> faces;
};
} // namespace Zn::Binaries
