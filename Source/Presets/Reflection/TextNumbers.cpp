#include "Presets/Reflection/TextNumbers.h"

#include <charconv>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Zn::Serializing
{
namespace
{
constexpr bool isDigit (char c) noexcept
{
    return c >= '0' && c <= '9';
}

std::string_view withoutLeadingBlanks (std::string_view text) noexcept
{
    const auto start = text.find_first_not_of (" \t\n\v\f\r");
    return start == std::string_view::npos ? std::string_view {} : text.substr (start);
}

template <typename Number>
Number numberFromText (std::string_view text, const std::string& converter)
{
    text = withoutLeadingBlanks (text);

    const auto isSigned = text.starts_with ('+') || text.starts_with ('-');
    const auto unsignedText = text.substr (isSigned ? 1 : 0);

    // from_chars would also take a second sign and words for infinity.
    if (unsignedText.empty() || ! (isDigit (unsignedText.front()) || unsignedText.front() == '.'))
        throw std::invalid_argument ("invalid " + converter + " argument");

    if (text.starts_with ('+')) // which from_chars does not know
        text = unsignedText;

    Number number {};
    const auto result = std::from_chars (text.data(), text.data() + text.size(), number);

    if (result.ec == std::errc::result_out_of_range)
        throw std::out_of_range (converter + " argument out of range");

    if (result.ec != std::errc())
        throw std::invalid_argument ("invalid " + converter + " argument");

    return number;
}
} // namespace

std::int64_t integerFromText (std::string_view text)
{
    return numberFromText<std::int64_t> (text, "stol");
}

double doubleFromText (std::string_view text)
{
    return numberFromText<double> (text, "stod");
}
} // namespace Zn::Serializing
