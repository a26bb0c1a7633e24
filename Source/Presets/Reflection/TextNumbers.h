#pragma once

#include <cstdint>
#include <string_view>

namespace Zn::Serializing
{
/** The number a text begins with: leading blanks and a sign are allowed and whatever follows it is ignored.
    Independent of the C locale, which hosts change. "nan" and "inf" are no numbers.

    Throws std::invalid_argument ("invalid stol argument") or std::out_of_range ("stol
    argument out of range").
*/
std::int64_t integerFromText (std::string_view text);

/** The same for numbers with a fraction or an exponent; the texts of its exceptions say "stod". */
double doubleFromText (std::string_view text);
} // namespace Zn::Serializing
