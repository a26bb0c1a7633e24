#include "Plugin/Bases/FlatParams.h"

#include <algorithm>
#include <string>

namespace Zn::Audio::Plugin::FlatParams
{
namespace
{
using nlohmann::json;

void expectType (bool isIt, const char* type, const json& value)
{
    constexpr auto wrongType = 302; // the library's number for it

    if (! isIt)
        throw json::type_error::create (wrongType,
                                        std::string ("type must be ").append (type).append (", but is ")
                                            + value.type_name(),
                                        &value);
}
} // namespace

json get (const List& parameters)
{
    auto values = json::array();

    for (const auto* parameter : parameters)
        values.push_back (parameter->getValue());

    return values;
}

void set (const List& parameters, const json& values)
{
    expectType (values.is_array(), "array", values);

    for (auto i = 0; i < std::min (parameters.size(), static_cast<int> (values.size())); ++i)
    {
        const auto& entry = values[static_cast<std::size_t> (i)];

        // Asked for a number, the library would take a boolean too.
        expectType (entry.is_number(), "number", entry);

        const auto value = std::clamp (entry.get<float>(), 0.0f, 1.0f);

        if (auto* parameter = parameters[i]; parameter->getValue() != value)
            parameter->setValueNotifyingHost (value);
    }
}
} // namespace Zn::Audio::Plugin::FlatParams
