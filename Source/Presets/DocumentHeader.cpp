#include "Presets/DocumentHeader.h"

#include "Presets/Reflection/Build.h"

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

namespace Zn::Presets
{
namespace
{
void requireVersion (const std::string& text, Version minimum)
{
    const auto version = Version::fromText (text);
    const auto isVersion = version != Version {} || text == Version {}.toText();

    if (! isVersion || version < minimum)
        throw std::runtime_error ("Invalid Version");
}

void requireProduct (const std::string& product, const juce::String& expected)
{
    if (product != expected.toStdString())
        throw std::runtime_error ("Invalid Product");
}
} // namespace

DocumentHeader DocumentHeader::forSaving (const juce::String& name)
{
    return { .name = name, .id = juce::Time::getCurrentTime().toString (true, true, true, true) };
}

bool DocumentHeader::reflect (Reflector& r, const Kind& kind)
{
    // What a file was written by is not kept: it is written anew by this program.
    auto version = r.isLoading() ? Version {} : Build::version;
    r.add ("version", version);

    if (r.isLoading() && version < kind.minimum)
        return false;

    r.add ("dirty", dirty);

    if (auto product = kind.product; ! r.isLoading())
        r.add ("product", product);

    r.add ("name", name);
    r.add ("version", version);
    r.add ("id", id);

    name = name.substring (0, longestText);
    id = id.substring (0, longestText);
    return true;
}

bool DocumentHeader::isValid (const nlohmann::json& document, const Kind& kind)
{
    try
    {
        requireVersion (document.at ("version").get<std::string>(), kind.minimum);
        requireProduct (document.at ("product").get<std::string>(), kind.product);
        return true;
    }
    catch (const std::exception&)
    {
        return false;
    }
}
} // namespace Zn::Presets
