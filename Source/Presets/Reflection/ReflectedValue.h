#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace Zn
{
/** The one value that crosses between a model and a document. Its index is its tag: 0 boolean, 1 integer,
    2 floating point, 3 UTF-8 text, 4 none.
*/
using ReflectedValue = std::variant<bool, std::int64_t, double, std::string, std::monostate>;

/** Where a reflection comes from or goes to. Handed on unchanged from each node to its children. */
struct ReflectorContext
{
    /** Which members take part: a preset file leaves out what belongs to the host's project only. */
    enum class Target : std::int32_t
    {
        presetFile = 0,
        hostChunk = 1
    };

    Target target = Target::presetFile;
    std::int32_t purpose = 0; // 0 preset file, 2 host chunk, 3 undo

    static constexpr ReflectorContext forPresetFile() noexcept { return { Target::presetFile, 0 }; }
    static constexpr ReflectorContext forHostChunk() noexcept { return { Target::hostChunk, 2 }; }
    static constexpr ReflectorContext forUndo() noexcept { return { Target::hostChunk, 3 }; }

    constexpr bool operator== (const ReflectorContext&) const = default;
};
} // namespace Zn
