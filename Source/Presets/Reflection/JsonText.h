#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace Zn::Json
{
inline constexpr std::size_t largestPresetText = 8 * 1024 * 1024; // bytes
inline constexpr std::size_t largestChunkText = 64 * 1024 * 1024; // bytes

/** Objects and arrays inside one another. Copying and writing a document recurse, so a hostile file could
    otherwise exhaust the stack; what we write nests less than a third as deep.
*/
inline constexpr int deepestNesting = 64;

/** The document that a text holds up to its first NUL; null when it holds none, is longer than `largestText`
    or nests too deep. Does not throw. Thread: any but audio.
*/
nlohmann::json parse (std::string_view text, std::size_t largestText = largestChunkText);

/** The text of a document, its keys sorted, on one line or with an indent. Invalid UTF-8 is replaced rather
    than thrown at.
*/
std::string toText (const nlohmann::json& document, int indent = -1);

/** Whether no bracket outside a string opens more than deepestNesting levels. Looks at the whole text. */
bool nestsWithinLimit (std::string_view text) noexcept;
} // namespace Zn::Json
