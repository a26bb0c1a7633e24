#pragma once

#include <nlohmann/json.hpp>

#include <string_view>

namespace Zn::Presets
{
/** The header of a preset: what stands at the top level of its text and is neither object nor array. Null unless
    the whole text could be loaded. Reads a long preset in a fraction of the time that its document takes. Does not
    throw. Thread: any but audio.
*/
nlohmann::json readHeader (std::string_view text);
} // namespace Zn::Presets
