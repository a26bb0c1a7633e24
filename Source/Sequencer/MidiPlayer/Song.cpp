#include "Sequencer/MidiPlayer/Song.h"

#include "Sequencer/MidiPlayer/FileReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
constexpr std::size_t mostNotes = 8192;

// So many within a sixteenth are more than ten fingers and a pedal can do, and still fit into what a block reserves.
constexpr std::size_t densestNotes = 128;
constexpr double densestSpan = 0.25; // quarter notes

constexpr double longestSong = 65536.0; // quarter notes
constexpr double overhang = 0.0625; // quarter notes by which a hand or a program may miss the last bar line
constexpr int numPitches = 128, numKeys = 16 * numPitches;
constexpr int maxVelocity = 127;
constexpr auto never = std::numeric_limits<double>::max(); // ticks

struct Note
{
    double start, end; // ticks
    int pitch, velocity;
};

/** Finds the end of each note of one track. */
class NotePairs
{
public:
    explicit NotePairs (std::vector<Note>& notesToAddTo) : notes (notesToAddTo) {}

    void follow (const TrackReader::Event& event)
    {
        const int pitch = event.data[0], velocity = event.data[1];
        auto& key = keys[static_cast<std::size_t> ((event.status & 0x0F) * numPitches + pitch)];

        if ((event.status & 0xF0) == 0x90 && velocity > 0)
            start (key, { event.tick, event.tick, pitch, velocity });
        else
            end (key, event.tick);
    }

    void endAll()
    {
        for (auto& key : keys)
            end (key, never);
    }

private:
    using Key = std::optional<Note>;

    void start (Key& key, const Note& note)
    {
        end (key, note.start);
        key = note;
    }

    void end (Key& key, double tick)
    {
        if (auto note = std::exchange (key, {}))
        {
            note->end = tick;
            notes.push_back (*note);
        }
    }

    std::vector<Note>& notes;
    std::array<Key, numKeys> keys;
};

/** Quarter notes; nothing for a time signature that makes no sense. */
std::optional<double> barLengthFrom (FileBytes signature)
{
    constexpr auto mostBeats = 32, finestBeat = 6; // 2 to the power of that is 64

    if (signature.size() < 2)
        return {};

    const int numerator = signature[0], power = signature[1];
    const auto isSensible = numerator >= 1 && numerator <= mostBeats && power <= finestBeat;

    return isSensible ? std::optional (4.0 * numerator / (1 << power)) : std::nullopt;
}

struct Content
{
    std::vector<Note> notes;
    double endTick = 0.0;
    std::optional<double> barLength; // quarter notes

    /** False if the track is damaged. */
    bool add (FileBytes track)
    {
        constexpr auto timeSignature = 0x58;
        const auto pairs = std::make_unique<NotePairs> (notes); // too large for a stack
        TrackReader reader (track);

        while (const auto event = reader.next())
        {
            if ((event->status & 0xE0) == 0x80)
                pairs->follow (*event);
            else if (event->status == 0xFF && event->type == timeSignature && ! barLength)
                barLength = barLengthFrom (event->data);
        }

        pairs->endAll();
        endTick = std::max (endTick, reader.getTick());
        return ! reader.isDamaged();
    }
};

std::optional<Content> contentOf (const FileTracks& file)
{
    Content content;

    for (const auto& track : file.tracks)
        if (! content.add (track))
            return {};

    for (auto& note : content.notes)
        note.end = std::min (note.end, content.endTick);

    std::erase_if (content.notes, [] (const Note& note) { return note.end <= note.start; });
    std::ranges::stable_sort (content.notes, [] (const Note& a, const Note& b) {
        return std::pair (a.start, a.pitch) < std::pair (b.start, b.pitch);
    });

    return content;
}

/** Leaves each pitch one note at a time. */
std::vector<Note> withoutOverlaps (const std::vector<Note>& sorted)
{
    std::vector<Note> notes;
    std::array<std::optional<std::size_t>, numPitches> previous;

    for (auto note : sorted)
    {
        auto& index = previous[static_cast<std::size_t> (note.pitch)];
        auto* before = index ? &notes[*index] : nullptr;

        if (before != nullptr && before->end > note.start)
        {
            note.end = std::max (note.end, before->end);
            before->end = note.start;

            if (before->start == note.start)
            {
                note.velocity = std::max (note.velocity, before->velocity);
                *before = note;
                continue;
            }
        }

        index = notes.size();
        notes.push_back (note);
    }

    return notes;
}

void thinOut (std::vector<Note>& notes, double ticksPerQuarter)
{
    std::vector<Note> kept;

    for (const auto& note : notes)
        if (kept.size() < densestNotes
            || note.start - kept[kept.size() - densestNotes].start >= densestSpan * ticksPerQuarter)
            kept.push_back (note);

    notes = std::move (kept);
}

TimedNote timedNote (const Note& note, double ticksPerQuarter)
{
    TimedNote timed;
    timed.enabled = true;
    timed.time.start = note.start / ticksPerQuarter;
    timed.time.length = std::min (note.end / ticksPerQuarter, longestSong) - timed.time.start;
    timed.event.noteNum = note.pitch;
    timed.event.velocity = static_cast<float> (note.velocity) / maxVelocity;
    timed.event.channel = 0;
    return timed;
}

std::shared_ptr<const Song> songOf (const Content& content, double ticksPerQuarter)
{
    auto notes = withoutOverlaps (content.notes);
    auto end = content.endTick;

    std::erase_if (notes, [&] (const Note& note) { return note.start >= longestSong * ticksPerQuarter; });
    thinOut (notes, ticksPerQuarter);

    if (notes.empty())
        return nullptr;

    if (notes.size() > mostNotes)
    {
        notes.resize (mostNotes);
        end = std::ranges::max_element (notes, {}, &Note::end)->end;
    }

    auto song = std::make_shared<Song>();
    song->barLength = content.barLength.value_or (song->barLength);

    const auto mostBars = std::floor (longestSong / song->barLength);
    const auto bars = std::ceil ((end / ticksPerQuarter - overhang) / song->barLength);
    song->numBars = static_cast<int> (std::clamp (bars, 1.0, mostBars));

    auto& slot = song->slot;
    slot.playLength = slot.events.length = song->numBars * song->barLength;

    for (const auto& note : notes)
        if (note.start < slot.playLength * ticksPerQuarter)
            slot.events.notes.push_back (timedNote (note, ticksPerQuarter));

    return song;
}
} // namespace

std::shared_ptr<const Song> readSong (std::span<const std::byte> bytes)
{
    if (bytes.size() > largestFile)
        return nullptr;

    const auto file =
        FileTracks::find ({ reinterpret_cast<const std::uint8_t*> (bytes.data()), bytes.size() });
    const auto content = file ? contentOf (*file) : std::nullopt;

    return content ? songOf (*content, file->ticksPerQuarter) : nullptr;
}
} // namespace Zn::Sequencer::MidiPlayer
