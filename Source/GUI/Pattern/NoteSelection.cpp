#include "GUI/Pattern/NoteSelection.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace Zn::GUI
{
NoteSelection::NoteSelection (std::initializer_list<int> notesToSelect)
{
    for (const auto note : notesToSelect)
        set (note, true);
}

NoteSelection NoteSelection::all (int numNotes)
{
    NoteSelection selection;
    selection.notes.resize (static_cast<std::size_t> (std::max (numNotes, 0)));
    std::iota (selection.notes.begin(), selection.notes.end(), 0);
    return selection;
}

bool NoteSelection::contains (int note) const noexcept
{
    return std::binary_search (notes.begin(), notes.end(), note);
}

void NoteSelection::set (int note, bool shouldBeSelected)
{
    const auto place = std::lower_bound (notes.begin(), notes.end(), note);
    const auto isSelected = place != notes.end() && *place == note;

    if (shouldBeSelected && ! isSelected && note >= 0)
        notes.insert (place, note);
    else if (! shouldBeSelected && isSelected)
        notes.erase (place);
}

void NoteSelection::add (const NoteSelection& others)
{
    std::vector<int> both;
    std::set_union (notes.begin(),
                    notes.end(),
                    others.notes.begin(),
                    others.notes.end(),
                    std::back_inserter (both));
    notes = std::move (both);
}
} // namespace Zn::GUI
