#include "Fuzz/PresetFuzzing.h"

#include "Presets/HeaderReader.h"
#include "Presets/Reflection/JsonText.h"

#include <cstdlib>
#include <exception>
#include <iostream>

namespace Zn::Fuzz
{
void feedPreset (Presets::Base& library, std::string_view text)
{
    constexpr auto context = ReflectorContext::forPresetFile();

    if (! library.isValid (Presets::readHeader (text)))
        return;

    try
    {
        library.applyDocument (Json::parse (text, Json::largestPresetText), context);
    }
    catch (const std::exception&) // text where a number belongs
    {}

    const auto understood = library.createDocument (context);
    library.applyDocument (understood, context);

    if (const auto again = library.createDocument (context); again != understood)
    {
        std::cerr << "Understood at first:\n" << understood << "\nand then:\n" << again << '\n';
        std::abort();
    }
}
} // namespace Zn::Fuzz
