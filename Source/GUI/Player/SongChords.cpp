#include "GUI/Player/SongChords.h"

#include "GUI/Pattern/ChordName.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr std::size_t mostChords = 32;
constexpr auto shortestChord = 0.25; // quarter notes: what is struck together may not be so to the tick

using Song = Sequencer::MidiPlayer::Song;

/** Where to look what sounds: at each change, or in even steps. */
std::vector<double> changesOf (const Song& song)
{
    std::vector<double> times { 0.0 };

    for (const auto& note : song.slot.events.notes)
        times.insert (times.end(), { note.time.start, note.time.end() });

    std::ranges::sort (times);
    std::vector<double> changes;

    for (const auto time : times)
        if (time < song.slot.playLength && (changes.empty() || time - changes.back() >= shortestChord))
            changes.push_back (time);

    return changes;
}

std::vector<double> barLinesOf (const Song& song)
{
    const auto barsPerChord = std::ceil (song.numBars / double (mostChords));
    std::vector<double> lines;

    for (auto bar = 0.0; bar < song.numBars; bar += barsPerChord)
        lines.push_back (bar * song.barLength);

    return lines;
}

/** What sounds for at least half of a time, or as long as a chord may last at the least. */
Midi::NoteList keysIn (const Song& song, Ranges::Span time)
{
    const auto needed = std::min (0.5 * time.length, shortestChord);
    Midi::NoteList keys;

    for (const auto& note : song.slot.events.notes)
        if (std::min (note.time.end(), time.end()) - std::max (note.time.start, time.start) >= needed)
            keys.add (note.event.noteNum);

    return keys.sorted();
}
} // namespace

std::vector<SongChord> chordsOf (const Song& song, int middleC)
{
    auto times = changesOf (song);

    if (times.size() > mostChords)
        times = barLinesOf (song);

    std::vector<SongChord> chords;
    Midi::NoteList before;

    for (std::size_t i = 0; i < times.size(); ++i)
    {
        const auto end = i + 1 < times.size() ? times[i + 1] : song.slot.playLength;
        const Ranges::Span time { times[i], end - times[i] };
        const auto keys = keysIn (song, time);

        if (! chords.empty() && keys == before && chords.back().time.end() == time.start)
            chords.back().time.length += time.length;
        else if (! keys.isEmpty())
            chords.push_back ({ time, chordName (keys, middleC) });

        before = keys;
    }

    return chords;
}
} // namespace Zn::GUI
