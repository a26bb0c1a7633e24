#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace Zn::Sequencer
{
/** One row of the drawing on one channel: what a note message names. */
struct Cell
{
    static constexpr int numChannels = 16, numRows = 128;

    int channel = 0; // 0..15
    int row = 0;     // 0..127

    constexpr bool operator== (const Cell&) const = default;
};

/** A set of cells as bits: small to clear, and quick to walk when it is nearly empty. Thread: audio. */
class CellSet
{
public:
    void add (Cell cell) noexcept { wordOf (cell) |= bitOf (cell); }
    void remove (Cell cell) noexcept { wordOf (cell) &= ~bitOf (cell); }
    bool contains (Cell cell) const noexcept { return (words[indexOf (cell)] & bitOf (cell)) != 0; }

    /** The cells that are also in another set. */
    CellSet sharedWith (const CellSet& other) const noexcept
    {
        return combined (other, [] (Word mine, Word theirs) { return mine & theirs; });
    }

    /** The cells that are not in another set. */
    CellSet without (const CellSet& other) const noexcept
    {
        return combined (other, [] (Word mine, Word theirs) { return mine & ~theirs; });
    }

    /** Calls a function with each cell, channel by channel, rows upwards. */
    template <typename Function>
    void forEach (Function&& function) const
    {
        for (std::size_t i = 0; i < words.size(); ++i)
            for (auto rest = words[i]; rest != 0; rest &= rest - 1)
                function (cellAt (static_cast<int> (i) * wordBits + std::countr_zero (rest)));
    }

private:
    using Word = std::uint64_t;

    static constexpr int wordBits = 64;
    static constexpr int numCells = Cell::numChannels * Cell::numRows;

    static std::size_t numberOf (Cell cell) noexcept
    {
        return static_cast<std::size_t> (cell.channel * Cell::numRows + cell.row);
    }

    static Cell cellAt (int number) noexcept { return { number / Cell::numRows, number % Cell::numRows }; }
    static std::size_t indexOf (Cell cell) noexcept { return numberOf (cell) / wordBits; }
    static Word bitOf (Cell cell) noexcept { return Word { 1 } << (numberOf (cell) % wordBits); }
    Word& wordOf (Cell cell) noexcept { return words[indexOf (cell)]; }

    template <typename Operation>
    CellSet combined (const CellSet& other, Operation&& operation) const noexcept
    {
        CellSet result;

        for (std::size_t i = 0; i < words.size(); ++i)
            result.words[i] = operation (words[i], other.words[i]);

        return result;
    }

    std::array<Word, numCells / wordBits> words {};
};
} // namespace Zn::Sequencer
