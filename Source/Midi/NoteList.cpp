#include "Midi/NoteList.h"

namespace Zn::Midi
{
NoteList& NoteList::operator= (const NoteList& other) noexcept
{
    std::copy (other.begin(), other.end(), notes.begin());
    count = other.count;
    present = other.present;
    return *this;
}

void NoteList::add (int note) noexcept
{
    if (! isNote (note) || contains (note))
        return;

    notes[static_cast<std::size_t> (count++)] = note;
    present.set (static_cast<std::size_t> (note));
}

void NoteList::remove (int note) noexcept
{
    if (! contains (note))
        return;

    std::remove (notes.begin(), notes.begin() + count, note);
    --count;
    present.reset (static_cast<std::size_t> (note));
}

void NoteList::clear() noexcept
{
    count = 0;
    present.reset();
}

NoteList NoteList::sorted() const noexcept
{
    NoteList result;

    for (auto note = 0; result.size() < size(); ++note)
        if (contains (note))
            result.add (note);

    return result;
}
} // namespace Zn::Midi
