#include "Presets/Reflection/Loader.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace Zn::Json
{
namespace
{
using nlohmann::json;

[[noreturn]] void throwCannotGetValue (const json& node)
{
    throw json::invalid_iterator::create (214, "cannot get value", &node);
}

template <typename Json>
auto entryAt (Json& object, int index)
{
    if (index < 0 || static_cast<std::size_t> (index) >= object.size())
        throwCannotGetValue (object);

    return std::next (object.begin(), index);
}

ReflectedValue valueFromUnsigned (std::uint64_t value)
{
    return static_cast<std::int64_t> (
        std::min<std::uint64_t> (value,
                                 static_cast<std::uint64_t> (std::numeric_limits<std::int64_t>::max())));
}

ReflectedValue valueFromJson (const json& node)
{
    if (node.is_boolean())
        return node.get<bool>();

    if (node.is_number_unsigned())
        return valueFromUnsigned (node.get<std::uint64_t>());

    if (node.is_number_integer())
        return node.get<std::int64_t>();

    if (node.is_number_float())
        return node.get<double>();

    if (node.is_string())
        return node.get_ref<const std::string&>();

    return std::monostate();
}
} // namespace

Loader::Loader (json& documentToRead, ReflectorContext contextToUse)
    : Reflector (contextToUse), document (documentToRead)
{}

Loader* Loader::getChild (const std::string& name)
{
    if (! document.is_object())
        return nullptr;

    const auto entry = document.find (name);

    if (entry == document.end())
        return nullptr;

    return &children.emplace_back (*entry, getContext());
}

Loader* Loader::getArrayItem (int index)
{
    item = std::make_unique<Loader> (itemAt (index), getContext());
    return item.get();
}

ReflectedValue Loader::getValue (const std::string& name) const
{
    if (! document.is_object())
        return std::monostate();

    const auto entry = document.find (name);
    return entry == document.end() ? ReflectedValue (std::monostate()) : valueFromJson (*entry);
}

std::string Loader::getKey (int index) const
{
    if (! document.is_object())
        throw json::invalid_iterator::create (207, "cannot use key() for non-object iterators", &document);

    return entryAt (document, index).key();
}

int Loader::getSize() const
{
    return document.is_structured() ? static_cast<int> (document.size()) : 0;
}

json& Loader::itemAt (int index)
{
    if (document.is_object())
        return *entryAt (document, index);

    if (document.is_array() && index >= 0)
        return document[static_cast<std::size_t> (index)]; // grows with nulls

    if (document.is_array() || document.is_null() || index != 0)
        throwCannotGetValue (document);

    return document;
}
} // namespace Zn::Json
