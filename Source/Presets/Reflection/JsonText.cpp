#include "Presets/Reflection/JsonText.h"

namespace Zn::Json
{
using nlohmann::json;

json parse (std::string_view text, std::size_t largestText)
{
    text = text.substr (0, text.find ('\0'));

    if (text.size() > largestText || ! nestsWithinLimit (text))
        return nullptr;

    constexpr auto allowExceptions = false;
    auto document = json::parse (text.begin(), text.end(), nullptr, allowExceptions);

    if (document.is_discarded())
        return nullptr;

    return document; // moved: a document is dear to copy
}

std::string toText (const json& document, int indent)
{
    constexpr auto asciiOnly = false;
    return document.dump (indent, ' ', asciiOnly, json::error_handler_t::replace);
}

bool nestsWithinLimit (std::string_view text) noexcept
{
    auto depth = 0;
    auto inString = false;

    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const auto c = text[i];

        if (c == '"')
            inString = ! inString;
        else if (inString)
            i += c == '\\' ? 1 : 0; // what is escaped is no end of the string
        else if (c == '[' || c == '{')
            ++depth;
        else if (c == ']' || c == '}')
            --depth;

        if (depth > deepestNesting)
            return false;
    }

    return true;
}
} // namespace Zn::Json
