#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace Zn::Tests
{
using Bytes = std::vector<std::uint8_t>;

inline void append (Bytes& bytes, std::uint32_t value, int count)
{
    for (auto i = count - 1; i >= 0; --i)
        bytes.push_back (static_cast<std::uint8_t> (value >> (8 * i)));
}

/** A MIDI file from the contents of its tracks, each a list of times and messages. */
inline Bytes midiFile (int format, int division, std::initializer_list<Bytes> tracks)
{
    Bytes file { 'M', 'T', 'h', 'd' };
    append (file, 6, 4);
    append (file, static_cast<std::uint32_t> (format), 2);
    append (file, static_cast<std::uint32_t> (tracks.size()), 2);
    append (file, static_cast<std::uint32_t> (division), 2);

    for (const auto& track : tracks)
    {
        file.insert (file.end(), { 'M', 'T', 'r', 'k' });
        append (file, static_cast<std::uint32_t> (track.size()), 4);
        file.insert (file.end(), track.begin(), track.end());
    }

    return file;
}
} // namespace Zn::Tests
