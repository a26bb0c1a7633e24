#pragma once

#include "Presets/Base.h"

#include <string_view>

namespace Zn::Fuzz
{
/** Loads the text of a preset file into a library, if that is for the library, and ends the program unless the library
    can say what it has understood: that loads without an error, and gives the same again.
*/
void feedPreset (Presets::Base& library, std::string_view text);
} // namespace Zn::Fuzz
