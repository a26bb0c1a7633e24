#include "Parameters/ReflectedText.h"

#include "Parameters/ParameterText.h"

#include <array>
#include <charconv>

namespace Zn::Parameters
{
namespace
{
template <typename Number>
juce::String shortestText (Number number)
{
    std::array<char, 32> buffer {};
    const auto end = std::to_chars (buffer.begin(), buffer.end(), number).ptr;
    return juce::String::fromUTF8 (buffer.data(), static_cast<int> (end - buffer.data()));
}

struct TextOf
{
    using Text = std::optional<juce::String>;

    Text operator() (bool value) const { return juce::String (value ? "1" : "0"); }
    Text operator() (std::int64_t value) const { return shortestText (value); }
    Text operator() (double value) const { return shortestText (value); }
    Text operator() (std::monostate) const { return {}; }

    Text operator() (const std::string& value) const
    {
        return juce::String::fromUTF8 (value.data(), static_cast<int> (std::min (value.size(), maxBytes)))
            .substring (0, longestText);
    }

    static constexpr std::size_t maxBytes = 4 * longestText; // a character has at most four bytes
};
} // namespace

std::optional<juce::String> loadedText (const ReflectedValue& value)
{
    return std::visit (TextOf {}, value);
}
} // namespace Zn::Parameters
