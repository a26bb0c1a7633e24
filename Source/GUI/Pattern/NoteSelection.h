#pragma once

#include <initializer_list>
#include <vector>

namespace Zn::GUI
{
/** Which notes of a drawing are selected: their places in its list, ascending. Thread: message. */
class NoteSelection
{
public:
    NoteSelection() = default;
    NoteSelection (std::initializer_list<int> notesToSelect);

    /** The first so many notes. */
    static NoteSelection all (int numNotes);

    bool contains (int note) const noexcept;
    bool isEmpty() const noexcept { return notes.empty(); }
    int size() const noexcept { return static_cast<int> (notes.size()); }
    int first() const noexcept { return notes.empty() ? -1 : notes.front(); }

    void set (int note, bool shouldBeSelected);
    void add (const NoteSelection& others);

    auto begin() const noexcept { return notes.begin(); }
    auto end() const noexcept { return notes.end(); }

    bool operator== (const NoteSelection&) const = default;

private:
    std::vector<int> notes;
};
} // namespace Zn::GUI
