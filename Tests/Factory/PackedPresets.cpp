#include "Factory/PackedPresets.h"

#include "FactoryData.h"
#include "Presets/Reflection/JsonText.h"

namespace Zn::Factory
{
namespace
{
std::vector<Packed> unpacked (const char* archive)
{
    auto size = 0;
    const auto* data = FactoryData::getNamedResource (archive, size);
    juce::MemoryInputStream stream (data, static_cast<std::size_t> (size), false);
    juce::ZipFile zip (stream);
    std::vector<Packed> presets;

    for (auto i = 0; i < zip.getNumEntries(); ++i)
    {
        juce::MemoryBlock content;
        std::unique_ptr<juce::InputStream> (zip.createStreamForEntry (i))->readIntoMemoryBlock (content);
        presets.push_back ({ zip.getEntry (i)->filename, std::string (content.begin(), content.end()) });
    }

    return presets;
}
} // namespace

juce::String Packed::name() const
{
    return path.fromLastOccurrenceOf ("/", false, false).upToLastOccurrenceOf (".", false, false);
}

juce::String Packed::folder() const
{
    return path.upToLastOccurrenceOf ("/", false, false);
}

nlohmann::json Packed::document() const
{
    return Json::parse (bytes);
}

std::vector<Packed> patternPresets()
{
    return unpacked ("FactoryPresets_zip");
}

std::vector<Packed> soundPresets()
{
    return unpacked ("FactorySounds_zip");
}
} // namespace Zn::Factory
