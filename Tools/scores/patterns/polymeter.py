"""Patterns against the bar: odd metres, two metres at once, and figures that drift."""

from ..notation import cycle, draw
from ..preset import Pattern
from ..sounds import sound

FIVE = Pattern(
    "Five Alive", "21 Nov 2026 11:50:01",
    "In five: three and two, two and three, five in the time of four, and a five that drifts over the bar.",
    (
        draw("0! 1 2 3! 2", columns=5, time=(5, 4), dynamics=(70, 58, 62), gate=0.8),
        draw("0! 1 2 0! 2 | 0! 1 2 3! 2", columns=10, time=(5, 4), dynamics=(66, 56, 60), gate=0.8),
        draw("-3! _ _ -1 _ | -3! _ _ -2 _", ". 1+2 1+2 . 1+2 | . 1+2 1+2 . 2+3", columns=10, time=((5, 4),) * 2,
             dynamics=(78, 60, 56, 74, 60), gate=0.65),
        draw("0! 2 0! 1 2 | 0! 3 0! 2 1", columns=10, time=(5, 8), dynamics=(64, 56, 60), gate=0.75),
        # Five even notes in a bar of four.
        draw("0! 1 2 3 4", columns=5, dynamics=(85, 62, 66, 62, 70), gate=0.85),
        cycle("0! 2 1 3 2", dynamics=(60, 54, 64), gate=0.8),
        # Fives above, fours below.
        draw("3! 4 5 4 2 ...", "-3@74 _ . . -1@62 _ . . ...", columns=20, time=(5, 4), dynamics=(62,), gate=0.8),
        draw("0! 1 2 3 2 | 4! 3 2 3 1 | 0! 1 2 4 3 | 5! 4 3 2 1", columns=20, time=(5, 4),
             dynamics=(80, 54, 60, 64, 56), gate=0.85),
    ), tempo=118)

SEVEN = Pattern(
    "Seven Hills", "21 Nov 2026 11:50:02",
    "Seven eighths, counted in every way: two two three, three two two, two three two, and doubled.",
    (
        draw("0! 2 0! 2 0! 1 2", columns=7, time=(7, 8), dynamics=(60, 58), gate=0.75),
        draw("0! 1 2 0! 2 3! 2", columns=7, time=(7, 8), dynamics=(60, 56), gate=0.75),
        draw("-3! _ -1 _ -2 _ _ | -3! _ -1 _ 0 _ -1", ". 2' . 2' . 2' 3' | . 2' . 2' . 3' 2'", columns=14,
             time=((7, 8),) * 2, dynamics=(74, 62), gate=0.85),
        draw("0+1+2! . 0+1+2 . 0+1+2! . . | 0+1+2! . . 0+1+2 . 1+2+3! .", columns=14, time=((7, 8),) * 2,
             dynamics=(70,), gate=0.7),
        draw("0! 1 2 1 | 0! 1 2 1 | 0! 2 3 4 3 2", columns=14, time=(7, 8), dynamics=(62, 54, 60, 54), gate=0.85),
        draw("3! 2 1 2 3! 4 5 4 3! 2 1 0 2 1", "-3@70 _ _ _ -2@64 _ _ _ -1@66 _ _ _ _ _", columns=14, time=(7, 8),
             dynamics=(60, 54), gate=0.85),
        # Seven sixteenths in a song of four.
        cycle("0! 1 0 2! 1 3! 1", dynamics=(58,), gate=0.75),
        draw("0! 2 1 2 3! 2 4 | 3! 2 1 2 0! 2 1 | -1! 1 0 1 2! 1 3 | 5! 4 3 2 1! 0 2", columns=28,
             time=((7, 8),) * 2, dynamics=(62, 54, 58), gate=0.85),
    ), tempo=126)

THREE_FOUR = Pattern(
    "Three over Four", "21 Nov 2026 11:50:03",
    "Two pulses at once: three against four, four against three, three against two, and accents that slip.",
    (
        draw("0! . . . 1 . . . 2 . . .", "-3@78 . . -3@56 . . -3@66 . . -3@56 . .", columns=12, dynamics=(74,),
             gate=0.9),
        draw("3! . . 4 . . 5 . . 4 . .", "0@74 _ _ . 1@60 _ _ . 2@64 _ _ .", columns=12, dynamics=(72, 62),
             gate=0.8),
        # The same sixteenths, heard in threes.
        draw("2! 1 0 ...", dynamics=(62, 50, 54), gate=0.7),
        draw("0! 1 2 0 1! 2 0 1 2! 0 1 2 | 3! 1 2 3 1! 2 3 1 2! 3 1 2", columns=24, time=(3, 2),
             dynamics=(64, 54), gate=0.75),
        draw("3 . . 4 . . 5 . . 4 . . 3 . . 2 | . . 3 . . 4 . . 5 . . 4 . . 3 2",
             "-3! _ . . -1 _ . . -3 _ . . -1 _ . . ...",
             columns=32, time=((4, 4),) * 2, dynamics=(72,), gate=0.85),
        draw("-3! . 0 . -3 . 0 . -3 . 0 .", "2+3@70 . . 2+3@56 . . 2+4@70 . . 2+3@56 . .", columns=12,
             dynamics=(72, 0, 58, 0), gate=0.7),
        draw("3! 2 1 0 ...", "-3@72 _ _ -2@60 _ _ -1@66 _ _ ...", columns=12, time=(3, 4), dynamics=(60, 52, 56),
             gate=0.8),
        draw("4! 3 2 4! 3 2 4! 3 2 4! 3 2 4! 3 2 1", "-3@74 . 0@50 . -3@62 . 0@50 . -2@74 . 1@50 . -1@66 . 1@50 .",
             dynamics=(64, 52, 56), gate=0.75),
    ), tempo=104)

DRIFT = Pattern(
    "Out of Phase", "21 Nov 2026 11:50:04",
    "One figure of twelve beside copies that are a note short or long: they slide apart and meet again.",
    (
        cycle("0! 2 3 1 2 0 3! 2 0 1 3 2", dynamics=(62, 54), gate=0.7),
        cycle("0! 2 3 1 2 0 3! 2 0 1 3", dynamics=(62, 54), gate=0.7),
        cycle("0! 2 3 1 2 0 3! 2 0 1 3 2 4", dynamics=(62, 54), gate=0.7),
        # Both at once: eleven above, ten below, for as long as they need to meet.
        draw("3 5 6 4 5 3 6 5 3 4 5 ...", "0, 2, . 1, 2, 0, . 2, 1, . ...", columns=110, time=(55, 8),
             dynamics=(62, 54), gate=0.6),
        cycle("0! . 2 3 . 1 2 . 0", dynamics=(70, 60), gate=0.7),
        draw("0! 1 3 2 . ...", "4, . 6, . 5, . . ...", columns=35, time=(35, 16), dynamics=(64, 56), gate=0.7),
        draw("0! . 1 . 2 ...", "3, . . 4, ...", "-3@70 _ . ...", columns=60, time=(15, 4), dynamics=(66,),
             gate=0.7),
        cycle("0! 2 3 1 2 0 3! 2 0 1 3 2 4! 2 1", dynamics=(62, 54), gate=0.7),
    ), tempo=116, sound=sound("Wooden Keys"))

GROWING = Pattern(
    "Counting Up", "21 Nov 2026 11:50:05",
    "Slot by slot one sixteenth longer, from three to ten: change slots while it runs and the bar breathes.",
    (
        cycle("0! 1 2", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3! 2", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3! 2 1", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3 4! 3 2", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3! 4 5! 4 3", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3! 4 5 6! 4 2", dynamics=(62, 54), gate=0.8),
        cycle("0! 1 2 3 4! 5 6 4! 3 2", dynamics=(62, 54), gate=0.8),
    ), tempo=120)

POLYMETER = (FIVE, SEVEN, THREE_FOUR, DRIFT, GROWING)
