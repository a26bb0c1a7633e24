#include "GUI/Framework/StaticFontMap.h"

#include "Foundation/Singleton.h"
#include "GUI/Framework/Resources.h"

#include <optional>

namespace Zn::Binaries
{
namespace
{
/** What a font file says of its size; none if it is no such file. */
class FontFile
{
public:
    explicit FontFile (Bytes content) : stream (content.data(), content.size(), false) {}

    /** The em over the height of a line, ascender to descender. */
    std::optional<float> emsPerLine()
    {
        constexpr juce::int64 unitsPerEmInHead = 18, ascenderInHhea = 4; // bytes

        const auto head = positionOf ("head");
        const auto hhea = positionOf ("hhea");

        if (! head || ! hhea)
            return std::nullopt;

        stream.setPosition (*head + unitsPerEmInHead);
        const auto unitsPerEm = static_cast<juce::uint16> (stream.readShortBigEndian());

        stream.setPosition (*hhea + ascenderInHhea);
        const int ascender = stream.readShortBigEndian();
        const int line = ascender - stream.readShortBigEndian();

        return line > 0 ? std::optional (float (unitsPerEm) / float (line)) : std::nullopt;
    }

private:
    std::optional<juce::int64> positionOf (const char* table)
    {
        constexpr juce::int64 numTables = 4, firstRecord = 12, recordSize = 16, offsetInRecord = 8; // bytes

        stream.setPosition (numTables);
        const auto count = static_cast<juce::uint16> (stream.readShortBigEndian());

        for (juce::int64 record = firstRecord; record < firstRecord + count * recordSize;
             record += recordSize)
        {
            char tag[4] = {};
            stream.setPosition (record);

            if (stream.read (tag, sizeof (tag)) == sizeof (tag)
                && std::string_view (tag, sizeof (tag)) == table)
            {
                stream.setPosition (record + offsetInRecord);
                return static_cast<juce::uint32> (stream.readIntBigEndian());
            }
        }

        return std::nullopt;
    }

    juce::MemoryInputStream stream;
};
} // namespace

StaticFontMap& StaticFontMap::get()
{
    return Singleton::get<StaticFontMap>();
}

juce::Typeface::Ptr StaticFontMap::getTypeface (std::string_view fileName)
{
    return faceOf (fileName).typeface;
}

juce::Font StaticFontMap::fontOf (std::string_view fileName, float emPixels)
{
    const auto& face = faceOf (fileName);
    const auto font = face.typeface != nullptr ? juce::Font (face.typeface) : juce::Font();
    return font.withHeight (emPixels / face.emsPerLine);
}

StaticFontMap::Face StaticFontMap::load (std::string_view fileName)
{
    const auto content = GUI::contentOf (std::string (fileName));

    // JUCE itself takes whatever it is given for a font.
    if (const auto emsPerLine = FontFile (content).emsPerLine())
        return { juce::Typeface::createSystemTypefaceFor (content.data(), content.size()), *emsPerLine };

    return {};
}

const StaticFontMap::Face& StaticFontMap::faceOf (std::string_view fileName)
{
    const auto found = faces.find (fileName);
    return found != faces.end() ? found->second : faces.emplace (fileName, load (fileName)).first->second;
}
} // namespace Zn::Binaries
