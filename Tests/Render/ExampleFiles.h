#pragma once

#include <juce_core/juce_core.h>

#include <array>
#include <cstdint>
#include <vector>

namespace Zn::Tests
{
inline constexpr std::array exampleNames { "old-hundredth.mid", "auld-lang-syne.mid", "gymnopedie-1.mid" };

inline juce::File exampleFile (const char* name)
{
    return juce::File (ZN_EXAMPLES).getChildFile (name);
}

inline std::vector<std::uint8_t> bytesOf (const juce::File& file)
{
    juce::MemoryBlock block;
    file.loadFileAsData (block);
    const auto* data = static_cast<const std::uint8_t*> (block.getData());
    return { data, data + block.getSize() };
}
} // namespace Zn::Tests
