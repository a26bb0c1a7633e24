#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace Zn::Fuzz
{
/** A text with something else in one to three places of its document: other values, other types, more or fewer of
    them. Texts that are no JSON stay as they are. The same seed makes the same of the same text.
*/
std::string mutatedJson (std::string_view text, unsigned seed);

/** For LLVMFuzzerCustomMutator: changes the document behind `headerSize` bytes, or now and then any bytes at all. Calls
    `writeHeader (bytes)` after a change of the document. Returns the new size.
*/
std::size_t mutateBehindHeader (std::span<std::uint8_t> buffer,
                                std::size_t size,
                                unsigned seed,
                                std::size_t headerSize,
                                void (*writeHeader) (std::span<std::uint8_t>));
} // namespace Zn::Fuzz
