#pragma once

#include <algorithm>
#include <array>
#include <bitset>
#include <initializer_list>

namespace Zn::Midi
{
/** Different notes (0..127) in the order in which they came.

    There are only 128, so the list has its place in the object and never needs the heap. What lies outside
    the range is ignored. Thread: any.
*/
class NoteList
{
public:
    static constexpr int maxSize = 128;

    using value_type = int;
    using const_iterator = const int*;

    NoteList() = default;
    NoteList (std::initializer_list<int> notesToAdd) noexcept
    {
        std::for_each (notesToAdd.begin(), notesToAdd.end(), [this] (int note) { add (note); });
    }

    NoteList (const NoteList& other) noexcept { *this = other; }
    NoteList& operator= (const NoteList& other) noexcept;

    /** Does nothing if the note is there: it keeps its place. */
    void add (int note) noexcept;
    void remove (int note) noexcept;
    void clear() noexcept;

    bool contains (int note) const noexcept
    {
        return isNote (note) && present[static_cast<std::size_t> (note)];
    }
    bool isEmpty() const noexcept { return count == 0; }
    int size() const noexcept { return count; }
    int operator[] (int index) const noexcept { return notes[static_cast<std::size_t> (index)]; }

    const int* begin() const noexcept { return notes.data(); }
    const int* end() const noexcept { return notes.data() + count; }

    /** The same notes in ascending order. */
    NoteList sorted() const noexcept;

    bool operator== (const NoteList& other) const noexcept
    {
        return std::equal (begin(), end(), other.begin(), other.end());
    }

private:
    static bool isNote (int note) noexcept { return note >= 0 && note < maxSize; }

    std::array<int, maxSize> notes {}; // those up to count are in use
    int count = 0;
    std::bitset<maxSize> present;
};
} // namespace Zn::Midi
