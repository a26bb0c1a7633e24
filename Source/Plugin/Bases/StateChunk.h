#pragma once

#include <juce_core/juce_core.h>

#include <string_view>

/** The container of the text that a host keeps in its project for us:

        offset 0   4 bytes       "VC2!"
        offset 4   4 bytes       length of the text with its NUL, little endian, signed
        offset 8   that many     UTF-8 text, ended by a NUL
*/
namespace Zn::Audio::Plugin::StateChunk
{
/** Fills the block with the text in its container. */
void write (std::string_view text, juce::MemoryBlock& destination);

/** The text in a container, as far as there is data, and with all that its length covers; a view of the data.
    Empty when this is no container.
*/
std::string_view read (const void* data, int size) noexcept;
} // namespace Zn::Audio::Plugin::StateChunk
