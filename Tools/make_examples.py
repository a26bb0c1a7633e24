#!/usr/bin/env python3
"""Writes the MIDI files of Examples/ from music in text notation, after proof-reading it.

    make_examples.py            write the files
    make_examples.py --check    fail if a file differs from what would be written

Notation: words between spaces, bars between "|". A word is a note (F#4, middle C is C4), a chord (F3+A3+C4) or a
rest (r), with its length in quarter notes after a star where it is not one quarter: C4*2, r*0.5. A note that goes
on over a bar line is written once in each bar, from the second on with a tilde: F#4*3 | ~F#4*3.
"""

import re
import struct
import sys
from collections import namedtuple
from fractions import Fraction
from itertools import combinations
from pathlib import Path

EXAMPLES = Path(__file__).resolve().parent.parent / "Examples"
TICKS_PER_QUARTER = 480

Note = namedtuple("Note", "start length pitch")  # start and length in quarter notes
Part = namedtuple("Part", "name channel velocity notes pedal", defaults=[()])
Piece = namedtuple("Piece", "file title quarters_per_bar sharps tempi parts")  # flats count as negative sharps


# Notation

def pitch_from_name(name):
    letter, accidental, octave = re.fullmatch(r"([A-G])([#b]?)(-?\d)", name).groups()
    semitone = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}[letter]
    return 12 * (int(octave) + 1) + semitone + {"": 0, "#": 1, "b": -1}[accidental]


def read_bar(bar, start, notes):
    """Appends the bar's notes and gives the position of its end."""
    for word in bar.split():
        names, _, length = word.partition("*")
        length = Fraction(length or 1)

        for name in names.split("+"):
            if name.startswith("~"):
                tied = max(i for i, note in enumerate(notes) if note.pitch == pitch_from_name(name[1:]))
                assert notes[tied].start + notes[tied].length == start, f"nothing to tie {name} to in: {bar}"
                notes[tied] = notes[tied]._replace(length=notes[tied].length + length)
            elif name != "r":
                notes.append(Note(start, length, pitch_from_name(name)))

        start += length

    return start


def read_music(text, quarters_per_bar):
    notes, position = [], Fraction(0)

    for bar in text.strip().strip("|").split("|"):
        end = read_bar(bar, position, notes)
        assert end - position == quarters_per_bar, f"{end - position} quarters instead of {quarters_per_bar}: {bar}"
        position = end

    return notes


# Proof-reading

def sounding(notes, position):
    return next((note.pitch for note in notes if note.start <= position < note.start + note.length), None)


def check_ranges(voices, ranges):
    for name, (low, high) in ranges.items():
        for note in voices[name]:
            assert pitch_from_name(low) <= note.pitch <= pitch_from_name(high), f"{name} out of range: {note}"


def check_part_writing(voices):
    """Voices neither cross nor move from one fifth, octave or unison to the next of the same kind."""
    starts = sorted({note.start for notes in voices.values() for note in notes})

    for upper, lower in combinations(voices, 2):
        chords = [(at, sounding(voices[upper], at), sounding(voices[lower], at)) for at in starts]

        for (_, high, low), (at, next_high, next_low) in zip(chords, chords[1:]):
            assert next_high >= next_low, f"{upper} below {lower} at {at}"
            interval, next_interval = (high - low) % 12, (next_high - next_low) % 12
            moved = high != next_high and low != next_low
            assert not (moved and interval == next_interval and interval in (0, 7)), \
                f"parallel fifths or octaves between {upper} and {lower} at {at}"


# The pieces

def chorale():
    soprano = """
        r*3 G4 | G4 F#4 E4 D4 | G4 A4 B4 B4 | B4 B4 A4 G4 | C5 B4 A4 G4 |
        A4 B4 A4 G4 | E4 F#4 G4 D5 | B4 G4 A4 C5 | B4 A4 G4*2 |"""
    alto = """
        r*3 D4 | D4 D4 B3 B3 | B3 D4 D4 G4 | G4 G4 F#4 G4 | G4 G4 F#4 D4 |
        D4 D4 D4 E4 | C4 D4 D4 G4 | D4 E4 F#4 A4 | G4 F#4 D4*2 |"""
    tenor = """
        r*3 B3 | B3 A3 G3 F#3 | G3 F#3 G3 D4 | D4 D4 D4 B3 | E4 D4 D4 B3 |
        F#3 G3 A3 B3 | A3 A3 B3 B3 | G3 B3 D4 D4 | D4 D4*0.5 C4*0.5 B3*2 |"""
    bass = """
        r*3 G3 | G3 D3 E3 B2 | E3 D3 G2 G3 | G3 G3 D3 E3 | C3 G2 D3 G3 |
        D3 G2 F#2 E2 | A2 D3 G2 G3 | G3 E3 D3 F#3 | G3 D3 G2*2 |"""

    voices = {name: read_music(text, 4) for name, text in
              (("Soprano", soprano), ("Alto", alto), ("Tenor", tenor), ("Bass", bass))}

    check_ranges(voices, {"Soprano": ("C4", "G5"), "Alto": ("G3", "C5"), "Tenor": ("C3", "G4"), "Bass": ("E2", "C4")})
    check_part_writing(voices)

    fermatas = [10, 18, 26]  # the last quarter of each line
    tempi = [(0, 84)] + [tempo for at in fermatas for tempo in ((at, 50), (at + 1, 84))] + [(33, 72), (34, 56)]
    parts = [Part(name, channel, 84, notes) for channel, (name, notes) in enumerate(voices.items(), 1)]
    return Piece("old-hundredth.mid", "Old Hundredth", 4, 1, tempi, parts)


def song():
    verse = """
        F3+A3+C4*2 F3+A3+C4*2 | E3+G3+Bb3+C4*2 E3+G3+Bb3+C4*2 | F3+A3+C4*2 F3+A3+C4+Eb4*2 | F3+Bb3+D4*2 F3+Bb3+D4*2 |
        F3+A3+C4*2 F3+A3+D4*2 | E3+G3+Bb3+C4*2 E3+G3+Bb3+C4*2 |"""
    half_close = "F3+Bb3+D4 F3+Bb3+D4 E3+G3+Bb3+C4 E3+G3+Bb3+C4 | F3+A3+C4*2 F3+A3+C4*2 |"
    full_close = "F3+Bb3+D4 F3+Bb3+D4 E3+G3+Bb3+C4 E3+G3+Bb3+C4 | F3+A3+C4+F4*4 |"
    chords = read_music(verse + half_close + verse + full_close, 4)

    tempi = [(0, 92), (32, 100), (56, 96), (57, 88), (58, 80), (59, 70), (60, 60)]  # chorus at bar 9, slower to the end
    return Piece("auld-lang-syne.mid", "Auld Lang Syne", 4, -1, tempi, [Part("Chords", 1, 88, chords)])


def piano_piece():
    melody = "r F#5 A5 | G5 F#5 C#5 | B4 C#5 D5 | A4*3 |"
    right = "r*3 | r*3 | r*3 | r*3 |" + melody + "F#4*3 | ~F#4*3 | ~F#4*3 | ~F#4*3 |" + melody
    bass = "G2*3 | D2*3 |" * 8
    chords = "r B3+D4+F#4*2 | r A3+C#4+F#4*2 |" * 8

    bars = 16
    pedal = [(3 * bar, down) for bar in range(bars) for down in (False, True)][1:] + [(3 * bars, False)]
    parts = [Part("Right hand", 1, 66, read_music(right, 3), pedal),
             Part("Left hand", 2, 50, sorted(read_music(bass, 3) + read_music(chords, 3)), pedal)]
    return Piece("gymnopedie-1.mid", "Gymnopedie No. 1", 3, 2, [(0, 72), (45, 66), (47, 58)], parts)


# MIDI file

def quantity(value):
    """A number as MIDI files write it: seven bits a byte, the highest first."""
    rest = quantity(value >> 7)[:-1] + bytes([(value >> 7) & 0x7F | 0x80]) if value > 0x7F else b""
    return rest + bytes([value & 0x7F])


def meta(kind, data):
    return bytes([0xFF, kind]) + quantity(len(data)) + data


def chunk(kind, data):
    return kind + struct.pack(">I", len(data)) + data


def track(events):
    """A track from (tick, order at that tick, bytes)."""
    data, last = b"", 0

    for tick, _, message in sorted(events):
        data += quantity(tick - last) + message
        last = tick

    return chunk(b"MTrk", data + quantity(0) + meta(0x2F, b""))


def ticks(quarters):
    return int(quarters * TICKS_PER_QUARTER)


def conductor_track(piece):
    events = [(0, 0, meta(0x03, piece.title.encode())),
              (0, 1, meta(0x58, bytes([piece.quarters_per_bar, 2, 24, 8]))),
              (0, 2, meta(0x59, struct.pack("bB", piece.sharps, 0)))]
    events += [(ticks(at), 3, meta(0x51, struct.pack(">I", round(60_000_000 / bpm))[1:])) for at, bpm in piece.tempi]
    return track(events)


def part_track(part):
    """Releases come before what starts at the same tick; the pedal goes down just after the chord it catches."""
    events = [(0, 0, meta(0x03, part.name.encode()))]
    channel, catch_ticks = part.channel - 1, 40

    for note in part.notes:
        events.append((ticks(note.start), 3, bytes([0x90 | channel, note.pitch, part.velocity])))
        events.append((ticks(note.start + note.length), 1, bytes([0x80 | channel, note.pitch, 64])))

    for at, down in part.pedal:
        events.append((ticks(at) + (catch_ticks if down else 0), 2, bytes([0xB0 | channel, 64, 127 if down else 0])))

    return track(events)


def midi_file(piece):
    tracks = [conductor_track(piece)] + [part_track(part) for part in piece.parts]
    return chunk(b"MThd", struct.pack(">HHH", 1, len(tracks), TICKS_PER_QUARTER)) + b"".join(tracks)


def main():
    stale = []

    for piece in (chorale(), song(), piano_piece()):
        path, data = EXAMPLES / piece.file, midi_file(piece)

        if "--check" not in sys.argv:
            path.write_bytes(data)
        elif not path.is_file() or path.read_bytes() != data:
            stale.append(piece.file)

    if stale:
        sys.exit("differs from Tools/make_examples.py: " + ", ".join(stale))


if __name__ == "__main__":
    main()
