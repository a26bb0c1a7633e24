"""How patterns are written down: one line of text for each voice, one word for each column of the drawing.

    "0! 1 2, 3 | 0+2 _ . 4?50"

    0 1 -3   a row, counted from the lowest held key; with three keys held, 3 is its octave
    0+2      several rows at once
    .        nothing
    _        the notes before sound on
    |        for the reader's eye only

Marks stand behind the rows and count for all of a word:

    !  loud      ,  soft      @70  velocity in percent
    '  short, half as long as drawn
    ?40  sounds in 40 of 100 cases
    ~15  velocity varies by up to 15 percent either way

A voice that ends in "..." is repeated to the end of the drawing: "0 1 2 ..." over 16 columns shifts against the beat.
"""

import re
import struct
from dataclasses import dataclass

LOWEST_KEY = 64  # the row of the lowest held key
LOUD, SOFT = 95, 45  # velocities in percent
SHORT = 0.5  # of the length as drawn

WORD = re.compile(r"(?P<rows>-?\d+(?:\+-?\d+)*)(?P<marks>(?:[!,']|[@?~]\d+)*)")
MARK = re.compile(r"([!,'@?~])(\d*)")


@dataclass(frozen=True)
class Note:
    """A drawn note: place and length in columns, the rest as 0 to 100."""

    column: int
    row: int
    length: float
    velocity: int
    chance: int = 100
    spread: int = 0


@dataclass(frozen=True)
class Slot:
    """One of the eight patterns of a preset."""

    notes: tuple
    columns: int
    bars: tuple
    time_is_of_a_column: bool


def single(number):
    """What a 32-bit float keeps of a number."""
    return struct.unpack("f", struct.pack("f", number))[0]


def words_of(voice):
    return voice.replace("|", " ").removesuffix("...").split()


def words_through(voice, columns):
    words = words_of(voice)

    if words[0] == "_" or len(words) != columns and not voice.endswith("..."):
        raise ValueError(f"{len(words)} words for {columns} columns: {voice}")

    return [words[column % len(words)] for column in range(columns)]


def notes_of(word, column, held, velocity, gate):
    """The notes of a word that is held over some columns."""
    match = WORD.fullmatch(word)

    if match is None:
        raise ValueError(f"not a note: {word}")

    marks = dict(MARK.findall(match["marks"]))
    velocity = LOUD if "!" in marks else SOFT if "," in marks else int(marks.get("@", velocity))
    length = (held - 1 + gate) * (SHORT if "'" in marks else 1.0)

    return [Note(column, LOWEST_KEY + int(row), length, velocity, int(marks.get("?", 100)), int(marks.get("~", 0)))
            for row in match["rows"].split("+")]


def drawn(voice, columns, dynamics, gate):
    words = words_through(voice, columns)

    for column, word in enumerate(words):
        if word not in "._":
            held = next((n for n, later in enumerate(words[column + 1:], 1) if later != "_"), columns - column)
            yield from notes_of(word, column, held, dynamics[column % len(dynamics)], gate)


def checked(notes, columns):
    """The notes in order of time. Two on one row may touch, but a row cannot sound twice at once."""
    ends = {}

    for note in sorted(notes, key=lambda note: (note.column, note.row)):
        if note.column < ends.get(note.row, 0) or not 0 < note.velocity <= 100 or not 0 <= note.row < 128:
            raise ValueError(f"cannot be played: {note}")

        ends[note.row] = note.column + note.length
        yield note

    if any(end > columns for end in ends.values()):
        raise ValueError("a note is longer than the pattern")


def draw(*voices, columns=16, time=(4, 4), dynamics=(70,), gate=1.0):
    """A pattern that lasts a time: one bar, or a list of them. Dynamics are velocities in percent, repeated column
    by column, for notes without a mark; the gate is how much of its last column a note fills.
    """
    bars = (time,) if isinstance(time[0], int) else tuple(time)
    notes = [note for voice in voices for note in drawn(voice, columns, dynamics, gate)]
    return Slot(tuple(checked(notes, columns)), columns, bars, False)


def cycle(*voices, step=(1, 16), **arguments):
    """A pattern of as many columns as the first voice has words, each lasting a step: for metres that no bar holds."""
    columns = len(words_of(voices[0]))
    slot = draw(*voices, columns=columns, time=step, **arguments)
    return Slot(slot.notes, columns, slot.bars, True)
