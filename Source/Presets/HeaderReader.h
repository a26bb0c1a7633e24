#pragma once

#include <nlohmann/json.hpp>

#include <string_view>

namespace Zn::Presets
{
/** The header of a preset, with the keys of a DocumentHeader that its text has, and their texts as far as anybody
    reads them: small, however long the preset. Null unless the whole text could be loaded. Reads a long preset in a
    fraction of the time that its document takes. Does not throw. Thread: any but audio.
*/
nlohmann::json readHeader (std::string_view text);
} // namespace Zn::Presets
