#!/usr/bin/env python3
"""Writes the MIDI files of Resources/Chords/ and their list, Docs/chord-files.md, from what chords/ holds.

    make_chords.py            write the files
    make_chords.py --check    fail if a file differs from what would be written, or should not be there
"""

from pathlib import Path

from chords.progressions import PROGRESSIONS
from chords.symbols import chords
from made_files import run

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "Resources" / "Chords"
LIST = ROOT / "Docs" / "chord-files.md"

TICKS = 480  # in a quarter note
BASS_VELOCITY, VELOCITY = 100, 84

HEAD = """\
# Chord files

What the MIDI player brings along. `Tools/make_chords.py` writes the files in `Resources/Chords` and this list from
`Tools/chords`; the build puts them into the program. All are written around C: with the switch at Key, the plug-in's
Key moves them to any other.

| File | Key | Chords | |
|---|---|---|---|
"""


def variable_length(number):
    data = [number & 0x7F]

    while number := number >> 7:
        data.insert(0, number & 0x7F | 0x80)

    return bytes(data)


def chunk(name, content):
    return name + len(content).to_bytes(4, "big") + content


def meta(kind, content):
    return bytes((0xFF, kind)) + variable_length(len(content)) + content


def messages(played):
    """Ticks and messages; within a tick what ends comes first."""
    for chord in played:
        start, end = (round(time * TICKS) for time in (chord.start, chord.start + chord.length))

        for voice, key in enumerate(chord.keys):
            yield start, 1, bytes((0x90, key, VELOCITY if voice else BASS_VELOCITY))
            yield end, 0, bytes((0x80, key, 0))


def midi_file(name, progression):
    played = chords(progression.bars, progression.beats)
    track = b"\0" + meta(0x03, name.encode()) + b"\0" + meta(0x58, bytes((progression.beats, 2, 24, 8)))
    now = 0

    for tick, _, message in sorted(messages(played)):
        track += variable_length(tick - now) + message
        now = tick

    bars = len(progression.bars.split("|"))
    track += variable_length(bars * progression.beats * TICKS - now) + meta(0x2F, b"")
    header = b"".join(number.to_bytes(2, "big") for number in (0, 1, TICKS))
    return chunk(b"MThd", header) + chunk(b"MTrk", track)


def shown(bars):
    return " \\| ".join(" ".join(bar.split()) for bar in bars.split("|"))


def made_files():
    """Every file by its path, as bytes."""
    named = {f"Chords {number} - {progression.style}": progression
             for number, progression in enumerate(PROGRESSIONS, 1)}
    rows = "".join(f"| {name} | {item.key} | {shown(item.bars)} | {item.why} |\n" for name, item in named.items())

    return {**{FOLDER / f"{name}.mid": midi_file(name, item) for name, item in named.items()},
            LIST: (HEAD + rows).encode()}


if __name__ == "__main__":
    run(made_files(), FOLDER, "make_chords.py", "progression")
