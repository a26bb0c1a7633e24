#include "Synth/VoiceStealer.h"

#include <optional>

namespace Zn::Audio
{
namespace
{
template <typename Predicate>
std::optional<int> firstWhere (std::span<const StealCandidate> candidates, Predicate&& predicate) noexcept
{
    for (auto i = 0; i < static_cast<int> (candidates.size()); ++i)
        if (predicate (i, candidates[static_cast<std::size_t> (i)]))
            return i;

    return {};
}

/** The held voice whose note no other held voice's is better than; the oldest of equals. */
template <typename IsBetter>
std::optional<int> outermostHeld (std::span<const StealCandidate> candidates, IsBetter&& isBetter) noexcept
{
    std::optional<int> best;

    for (auto i = 0; i < static_cast<int> (candidates.size()); ++i)
    {
        const auto& candidate = candidates[static_cast<std::size_t> (i)];

        if (candidate.isReleased)
            continue;

        if (! best
            || isBetter (candidate.initialNote, candidates[static_cast<std::size_t> (*best)].initialNote))
            best = i;
    }

    return best;
}
} // namespace

int DefaultVoiceStealer::choose (std::span<const StealCandidate> candidates, int newNote) noexcept
{
    const auto lowest = outermostHeld (candidates, [] (int a, int b) { return a < b; });
    const auto highest = outermostHeld (candidates, [] (int a, int b) { return a > b; });
    const auto isProtected = [&] (int index) { return index == lowest || index == highest; };

    if (const auto same =
            firstWhere (candidates, [newNote] (int, auto& c) { return c.initialNote == newNote; }))
        return *same;

    if (const auto released =
            firstWhere (candidates, [&] (int i, auto& c) { return ! isProtected (i) && c.isReleased; }))
        return *released;

    if (const auto keyUp =
            firstWhere (candidates, [&] (int i, auto& c) { return ! isProtected (i) && ! c.isKeyDown; }))
        return *keyUp;

    if (const auto inner = firstWhere (candidates, [&] (int i, auto&) { return ! isProtected (i); }))
        return *inner;

    // The lowest note is the last to go.
    return highest != lowest ? highest.value_or (0) : lowest.value_or (0);
}
} // namespace Zn::Audio
