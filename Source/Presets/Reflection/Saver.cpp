#include "Presets/Reflection/Saver.h"

#include <type_traits>
#include <utility>
#include <variant>

namespace Zn::Json
{
namespace
{
nlohmann::json jsonFromValue (const ReflectedValue& value)
{
    return std::visit (
        [] (const auto& held) -> nlohmann::json {
            if constexpr (std::is_same_v<std::decay_t<decltype (held)>, std::monostate>)
                return nullptr;
            else
                return held;
        },
        value);
}
} // namespace

Saver::Saver (ReflectorContext contextToUse, std::string nameInParent)
    : Reflector (contextToUse), name (std::move (nameInParent))
{}

nlohmann::json Saver::takeDocument()
{
    auto document = std::move (value);

    if (document.is_array())
        document.get_ref<nlohmann::json::array_t&>().reserve (children.size());

    for (auto& child : children)
    {
        auto childDocument = child.takeDocument();

        if (document.is_array())
            document.push_back (std::move (childDocument));
        else
            document[child.name] = std::move (childDocument);
    }

    return document;
}

Saver* Saver::getChild (const std::string& childName)
{
    return &children.emplace_back (getContext(), childName);
}

Saver* Saver::addArrayItem()
{
    if (! value.is_array())
        value = nlohmann::json::array();

    return getChild ({});
}

void Saver::setValue (const std::string& key, const ReflectedValue& newValue)
{
    value[key] = jsonFromValue (newValue);
}

} // namespace Zn::Json
