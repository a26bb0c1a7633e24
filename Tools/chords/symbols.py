"""Chord symbols and how they are laid on the keys.

    "Am7 | Dm9 G13 | Cmaj7 . . F6"

Bars stand between lines. What stands in a bar shares it evenly; a point prolongs what came before it, also over the
bar line. A symbol is a root, a kind and, after a stroke, another bass note.
"""

import re
from dataclasses import dataclass
from itertools import product

NOTES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
ACCIDENTALS = {"": 0, "b": -1, "#": 1}

# Semitones above the root, without it: the bass plays that.
KINDS = {
    "": (4, 7),
    "m": (3, 7),
    "sus4": (5, 7),
    "add9": (2, 4, 7),
    "6": (4, 7, 9),
    "m6": (3, 7, 9),
    "7": (4, 7, 10),
    "m7": (3, 7, 10),
    "maj7": (4, 7, 11),
    "m7b5": (3, 6, 10),
    "dim7": (3, 6, 9),
    "m9": (2, 3, 7, 10),
    "maj9": (2, 4, 7, 11),
    "9sus4": (2, 5, 7, 10),
    "7b9": (1, 4, 7, 10),
    "7#9": (3, 4, 7, 10),
    "13": (2, 4, 9, 10),
}

SYMBOL = re.compile(r"([A-G][b#]?)([^/]*)(?:/([A-G][b#]?))?")

LOWEST_BASS = 48  # MIDI notes
LOWEST_VOICE, HIGHEST_VOICE, MIDDLE = 55, 76, 65


@dataclass(frozen=True)
class Chord:
    symbol: str
    start: float  # quarter notes
    length: float
    keys: tuple = ()  # MIDI notes, rising


def pitch_class(note):
    return (NOTES[note[0]] + ACCIDENTALS[note[1:]]) % 12


def parts(symbol):
    """The bass, as a MIDI note, and the pitch classes above it."""
    root, kind, bass = SYMBOL.fullmatch(symbol).groups()
    low = pitch_class(bass or root)
    above = [(pitch_class(root) + interval) % 12 for interval in KINDS[kind]]

    if bass and low != pitch_class(root):
        above = [pitch_class(root), *(voice for voice in above if voice != low)]

    return LOWEST_BASS + low, above


def places(voice, bass):
    lowest = max(LOWEST_VOICE, bass + 1)
    return [key for key in range(lowest, HIGHEST_VOICE + 1) if key % 12 == voice]


def effort(voices, before):
    """How far the hand moves; from nowhere, how far it lies from the middle. Clusters cost."""
    targets = before or (MIDDLE,)
    moves = sum(min(abs(voice - target) for target in targets) for voice in voices)
    moves += sum(min(abs(voice - target) for voice in voices) for target in before)
    drift = abs(sum(voices) / len(voices) - MIDDLE)
    clusters = sum(10 for low, high in zip(voices, voices[1:]) if high - low < 2)
    return moves + drift + (voices[-1] - voices[0]) / 4 + clusters


def keys_of(symbol, before):
    """The nearest way to play a chord after the voices that sounded above the last bass."""
    bass, above = parts(symbol)
    candidates = (tuple(sorted(voices)) for voices in product(*(places(voice, bass) for voice in above)))
    voices = min(candidates, key=lambda voices: (effort(voices, before), voices))
    return bass, voices


def chords(bars, beats):
    """A whole progression, laid on the keys."""
    found = []

    for number, bar in enumerate(bars.split("|")):
        words = bar.split()
        length = beats / len(words)

        for place, word in enumerate(words):
            if word == ".":
                last = found.pop()
                found.append(Chord(last.symbol, last.start, last.length + length))
            else:
                found.append(Chord(word, number * beats + place * length, length))

    voices, played = (), []

    for chord in found:
        bass, voices = keys_of(chord.symbol, voices)
        played.append(Chord(chord.symbol, chord.start, chord.length, (bass, *voices)))

    return played
