"""Plain arpeggios and chords: each preset is one idea in eight shapes, from simple to busy."""

from ..notation import cycle, draw
from ..preset import Pattern

STRAIGHT = (88, 52, 66, 56)  # accents of four sixteenths
EIGHTHS = (88, 62)

UPWARDS = Pattern(
    "Up and Away", "21 Nov 2026 11:10:01",
    "Rising arpeggios: eighths, sixteenths, triplets, skips, with a bass, with air, and a climb over two bars.",
    (
        draw("0 1 2 3 | 0 1 2 3", columns=8, dynamics=EIGHTHS, gate=0.8),
        draw("0 1 2 3 | 0 1 2 3 | 0 1 2 3 | 0 1 2 3", dynamics=STRAIGHT, gate=0.8),
        draw("0 1 2 | 3 4 5 | 0 1 2 | 3 4 5", columns=12, dynamics=(88, 55, 62), gate=0.85),
        # Two rows up, one down: the same climb with more to hear on the way.
        draw("0 2 1 3 | 2 4 3 5 | 0 2 1 3 | 2 4 3 5", dynamics=STRAIGHT, gate=0.8),
        draw("-3! _ _ _ | . . . . | -3 _ _ _ | . . . .", ". . 0 1 | 2 3 4, . | . . 0 1 | 2 3 4 5,",
             dynamics=STRAIGHT, gate=0.9),
        draw("0! . 1 2 | . 3 . 4 | 0! . 1 2 | . 3 4 5", dynamics=STRAIGHT, gate=0.6),
        # Each beat starts one row higher than the last.
        draw("0 1 2 . | 1 2 3 . | 2 3 4 . | 3 4 5 6,", dynamics=STRAIGHT, gate=0.75),
        draw("-3 -2 -1 0 | -2 -1 0 1 | -1 0 1 2 | 0 1 2 3 | 1 2 3 4 | 2 3 4 5 | 3 4 5 6 | 6, 5, 4, 3,",
             columns=32, time=((4, 4), (4, 4)), dynamics=STRAIGHT, gate=0.85),
    ))

DOWNWARDS = Pattern(
    "Down the Stairs", "21 Nov 2026 11:10:02",
    "Falling arpeggios: plain, in triplets, with a landing, in pairs, and down two octaves.",
    (
        draw("3 2 1 0 | 3 2 1 0", columns=8, dynamics=EIGHTHS, gate=0.8),
        draw("3 2 1 0 | 3 2 1 0 | 3 2 1 0 | 3 2 1 0", dynamics=STRAIGHT, gate=0.8),
        draw("5 4 3 | 2 1 0 | 5 4 3 | 2 1 0", columns=12, dynamics=(88, 58, 64), gate=0.85),
        draw("5 4 3 2 | 1 0 -1 -2 | -3! _ _ _ | . . 0, 1,", dynamics=STRAIGHT, gate=0.9),
        # Pairs: each row answers the one above it.
        draw("4 3 4 3 | 3 2 3 2 | 2 1 2 1 | 1 0 1 0", dynamics=(85, 55, 65, 50), gate=0.8),
        draw("3! . 2 1 | . 0 . -1 | 3! . 2 1 | . 0 -1 -3!", dynamics=STRAIGHT, gate=0.6),
        draw("6 4 5 3 | 4 2 3 1 | 2 0 1 -1 | 0 -2 -1 -3", dynamics=STRAIGHT, gate=0.8),
        draw("6! _ 5 _ 4 _ 3 _ | 5! _ 4 _ 3 _ 2 _ | 4! _ 3 _ 2 _ 1 _ | 3! _ 2 _ 1 _ 0 _",
             "-3@72 _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ | -2@66 _ _ _ _ _ _ _ _ _ _ _ _ _ _ _",
             columns=32, time=((4, 4), (4, 4)), dynamics=(70,), gate=0.95),
    ))

ROUND_TRIP = Pattern(
    "Round Trip", "21 Nov 2026 11:10:03",
    "Up and down again: turning on a note, turning twice on it, in sixes, in five, wide, and across the bar line.",
    (
        draw("0 1 2 3 | 4 3 2 1", columns=8, dynamics=EIGHTHS, gate=0.9),
        # The turning notes sound twice.
        draw("0 1 2 3 | 3 2 1 0 | 0 1 2 3 | 3 2 1 0", dynamics=STRAIGHT, gate=0.75),
        draw("0 1 2 3 2 1", columns=6, time=(6, 8), dynamics=(90, 55, 60, 75, 55, 60), gate=0.9),
        draw("0 1 2 | 3 4 5 | 4 3 2 | 1 0 -1", columns=12, dynamics=(88, 58, 64), gate=0.9),
        # Ten sixteenths: the turn wanders through the bar.
        cycle("0! 1 2 3 4 5 4 3 2 1", dynamics=(70, 55, 62), gate=0.9),
        draw("-3 0 2 4 | 6 4 2 0 | -2 1 3 5 | 6 5 3 1", dynamics=STRAIGHT, gate=0.9),
        draw("0! _ 2 1 3 _ 4 3 | 5! _ 3 4 2 _ 1 2", dynamics=(78, 0, 58, 62), gate=0.9),
        draw("-3 -2 -1 0 1 2 3 4 | 5 6 5 4 3 2 1 0 | -1 0 1 2 3 4 5 4 | 3 2 1 0 -1 -2 -1 -2",
             columns=32, time=((4, 4), (4, 4)), dynamics=STRAIGHT, gate=0.95),
    ))

OCTAVES = Pattern(
    "Octave Ladder", "21 Nov 2026 11:10:04",
    "For three keys: the lowest leaps octaves, the others fill the space between.",
    (
        draw("0! 3 0 3 | 0! 3 0 3", columns=8, dynamics=EIGHTHS, gate=0.7),
        draw("-3! 0 3 0 | -3! 0 3 0 | -3! 0 3 0 | -3! 0 3 6,", dynamics=(85, 60, 70, 55), gate=0.65),
        draw("-3! . 0 . | -3 . 0 3, | -3! . 0 . | -3 0 3 .", dynamics=(85, 60, 68, 60), gate=0.6),
        # Disco: low on the beat, high behind it.
        draw("-3! _ 0 _ | -3! _ 0 _ | -2 _ 1 _ | -1 _ 2 _", dynamics=(80, 0, 68, 0), gate=0.55),
        draw("0 3 1 4 | 2 5 1 4 | 0 3 1 4 | 2 5 3 6", dynamics=(82, 60, 70, 58), gate=0.7),
        draw("-3 0 3 | -2 1 4 | -1 2 5 | 0 3 6", columns=12, dynamics=(88, 60, 66), gate=0.8),
        draw("-3+0! . . 0 | . 0+3 . . | -3+0! . . 0 | 3 . 0+3 .", dynamics=(80, 60, 70, 65), gate=0.6),
        draw("-3 _ _ . . . -3 . | -2 _ _ . . . -2 . | -1 _ _ . . . -1 . | 0 _ . 0 _ . -1 -2",
             ". . . 3 . 3, . . | . . . 4 . 4, . . | . . . 5 . 5, . . | . . 3 . . 3 . .",
             columns=32, time=((4, 4), (4, 4)), dynamics=(78,), gate=0.8),
    ))

CHORD = "0+1+2"

BLOCKS = Pattern(
    "Block Chords", "21 Nov 2026 11:10:05",
    "The keys together, in eight rhythms: held, halves, quarters, off the beat, and four syncopations.",
    (
        draw(f"{CHORD} _ _ _", columns=4, gate=0.98),
        draw(f"{CHORD}! _ {CHORD} _", columns=4, gate=0.9),
        draw(f"{CHORD}! {CHORD} {CHORD} {CHORD}", columns=4, dynamics=(90, 65, 75, 65), gate=0.7),
        draw(f". {CHORD} . {CHORD} | . {CHORD} . {CHORD}", columns=8, dynamics=(70, 78), gate=0.5),
        # The first beat and the and of two.
        draw(f"{CHORD}! _ _ {CHORD} _ . . .", columns=8, gate=0.8),
        draw(f"{CHORD}! _ . {CHORD} _ . {CHORD} . | . . {CHORD} _ {CHORD}! _ . .", gate=0.85),
        # Bass on the beat, the rest of the chord after it.
        draw("-3! _ . . -1 _ . . | -3 _ . . -1 _ . .", f". . 1+2+3 . . . 1+2+3 . | . . 1+2+3 . . . 1+2+3 {CHORD},",
             dynamics=(78,), gate=0.7),
        draw(f"{CHORD}! _ _ _ _ _ . {CHORD}, | _ . {CHORD} _ _ . {CHORD} _ "
             f"| 1+2+3! _ _ _ _ _ . 1+2+3, | _ . 1+2+3 _ 2+3+4 _ 1+2+3 _",
             columns=32, time=((4, 4), (4, 4)), dynamics=(74,), gate=0.9),
    ))

BASICS = (UPWARDS, DOWNWARDS, ROUND_TRIP, OCTAVES, BLOCKS)
