#include "GUI/Pattern/SlotVariation.h"

#include <algorithm>
#include <random>

namespace Zn::GUI
{
namespace
{
constexpr auto topRow = 127;

using Random = std::minstd_rand;

std::vector<int> rowsOf (const std::vector<Sequencer::TimedNote>& notes)
{
    std::vector<int> rows;

    for (const auto& note : notes)
        rows.push_back (note.event.noteNum);

    std::sort (rows.begin(), rows.end());
    rows.erase (std::unique (rows.begin(), rows.end()), rows.end());
    return rows;
}

/** A number below a limit; the library's distributions differ between systems. */
std::size_t below (std::size_t limit, Random& random)
{
    return random() / 7u % limit; // the lowest digits of this generator are its weakest
}

/** One cycle through all places, so that none keeps what it had. */
std::vector<int> cycled (const std::vector<int>& rows, Random& random)
{
    auto result = rows;

    for (auto i = result.size(); i > 1; --i)
        std::swap (result[i - 1], result[below (i - 1, random)]);

    return result;
}

void spread (std::vector<Sequencer::TimedNote>& notes, Random& random)
{
    for (auto& note : notes)
    {
        const auto step = static_cast<int> (below (3, random));
        const auto row = note.event.noteNum;
        note.event.noteNum = row + step <= topRow ? row + step : row - step;
    }
}
} // namespace

void varyRows (std::vector<Sequencer::TimedNote>& notes, std::uint32_t seed)
{
    Random random (seed);
    random.discard (8); // seeds that lie close together begin alike
    const auto rows = rowsOf (notes);

    if (rows.size() < 2)
        return spread (notes, random);

    const auto newRows = cycled (rows, random);

    for (auto& note : notes)
    {
        const auto place = std::lower_bound (rows.begin(), rows.end(), note.event.noteNum) - rows.begin();
        note.event.noteNum = newRows[static_cast<std::size_t> (place)];
    }
}
} // namespace Zn::GUI
