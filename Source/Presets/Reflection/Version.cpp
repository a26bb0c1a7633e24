#include "Presets/Reflection/Version.h"

#include <array>
#include <charconv>
#include <system_error>

namespace Zn
{
Version Version::fromText (std::string_view text) noexcept
{
    std::array<int, 3> numbers {};
    const auto* position = text.data();
    const auto* const end = position + text.size();

    for (std::size_t i = 0; i < numbers.size(); ++i)
    {
        if (i > 0 && (position == end || *position++ != '.'))
            return {};

        const auto result = std::from_chars (position, end, numbers[i]);

        if (result.ec != std::errc() || *position == '-')
            return {};

        position = result.ptr;
    }

    return position == end ? Version { numbers[0], numbers[1], numbers[2] } : Version {};
}

std::string Version::toText() const
{
    return std::to_string (majorNumber) + "." + std::to_string (minorNumber) + "."
           + std::to_string (patchNumber);
}
} // namespace Zn
