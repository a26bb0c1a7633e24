#pragma once

#include <juce_core/juce_core.h>

#include <functional>
#include <optional>
#include <vector>

namespace Zn::Presets
{
/** One preset file in menu order. */
struct PresetEntry
{
    juce::File file;
    juce::String id; // stamp of the preset in it; may be empty

    bool operator== (const PresetEntry&) const = default;
};

/** The preset files of one library, searched for when they are first asked for. Thread: message. */
class PresetList
{
public:
    using Search = std::function<std::vector<PresetEntry>()>;

    const std::vector<PresetEntry>& get (const Search& search);

    void forget() noexcept { entries.reset(); }
    bool isBuilt() const noexcept { return entries.has_value(); }

private:
    std::optional<std::vector<PresetEntry>> entries;
};

/** The place of a preset among others, -1 if it is not there. Of several copies of one it is the file that is likely,
    or the first.
*/
int positionOf (const std::vector<PresetEntry>& entries,
                const juce::String& id,
                const juce::String& name,
                const juce::File& likely);

/** Where a step from a position leads in a list of `size` presets, round its ends. From -1, which is nowhere, to
    the first or the last.
*/
constexpr int steppedPosition (int position, int direction, int size) noexcept
{
    const auto sum = position + direction;
    return (sum < 0 ? size - 1 : sum) % size;
}
} // namespace Zn::Presets
