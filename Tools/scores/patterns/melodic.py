"""Patterns that sing: broken chords, answers, canons, waltzes and picking."""

from ..notation import draw
from ..preset import Pattern
from ..sounds import sound

TWO_BARS = ((4, 4), (4, 4))
WALTZ = (3, 4)
TWO_WALTZ_BARS = (WALTZ, WALTZ)

BROKEN = Pattern(
    "Broken Chords", "21 Nov 2026 11:30:01",
    "The left hand of the classics: low, high, middle, high, in eighths, sixteenths, triplets and tenths.",
    (
        draw("0! 2 1 2 | 0 2 1 2", columns=8, dynamics=(82, 55, 62, 55), gate=0.95),
        draw("0! 2 1 2 | 0 2 1 2 | 0! 2 1 2 | 0 3 1 2", dynamics=(82, 52, 60, 54), gate=0.95),
        draw("0! 1 2 | 0 1 2 | 0! 1 2 | 0 2 3", columns=12, dynamics=(80, 54, 60), gate=0.95),
        # Wide: the middle key an octave up.
        draw("-3! _ 0 _ 1 _ 0 _ | -3 _ 0 _ 2 _ 0 _", ". . . . . . 4, . | . . . . . . 3, .", dynamics=(74, 0, 58, 0),
             gate=0.95),
        draw("-3! 0 2 4 | 3 2 0 2 | -3! 0 2 5 | 4 2 0 2", dynamics=(84, 54, 60, 64), gate=0.95),
        draw("-3! _ _ _ _ _ _ _ | -2 _ _ _ _ _ _ _", ". 1 2 3 4 3 2 1 | . 2 3 4 5 4 3 2", dynamics=(70, 54, 60, 56),
             gate=0.95),
        draw("0! 2 1 2 3 2 1 2 | 0! 3 2 3 4 3 2 3", dynamics=(80, 50, 60, 52), gate=0.9),
        draw("-3! 1 0 1 2 1 0 1 | -3 1 0 1 3 1 0 1 | -2! 2 1 2 3 2 1 2 | -1! 3 2 3 5 3 2 3",
             columns=32, time=TWO_BARS, dynamics=(80, 50, 60, 52), gate=0.95),
    ), tempo=108)

HILLS = Pattern(
    "Rolling Hills", "21 Nov 2026 11:30:02",
    "Long arcs over two bars: each slot another line of the horizon, with a bass that moves beneath.",
    (
        draw("0 1 2 3 4 5 4 3 | 2 3 4 5 6 5 4 3 | 2 1 2 3 4 3 2 1 | 0 1 2 1 0 -1 -2 -1",
             columns=32, time=TWO_BARS, dynamics=(82, 54, 64, 56), gate=0.95),
        draw("0 _ 2 _ 4 _ 5 _ | 6 _ 5 _ 4 _ 2 _ | 1 _ 3 _ 4 _ 3 _ | 2 _ 1 _ 0 _ -1 _",
             columns=32, time=TWO_BARS, dynamics=(80, 0, 62, 0), gate=0.98),
        draw("-3! _ _ _ _ _ _ _ _ _ _ _ -2 _ _ _ | -1 _ _ _ _ _ _ _ _ _ _ _ -2 _ _ _",
             ". 1 2 3 4 5 4 3 2 1 2 3 . 2 3 4 | . 3 4 5 6 5 4 3 2 3 2 1 . 1 0 1",
             columns=32, time=TWO_BARS, dynamics=(66, 52, 60, 54), gate=0.95),
        # Peaks: the highest row of each group is the loud one.
        draw("0 2 4! 2 | 1 3 5! 3 | 2 4 6! 4 | 3 5 4 2 | 1 3 5! 3 | 0 2 4! 2 | -1 1 3! 1 | -2 0 2! 1",
             columns=32, time=TWO_BARS, dynamics=(66, 54, 70, 54), gate=0.9),
        draw("0 1 2 | 3 4 5 | 6 5 4 | 3 2 1 | 2 3 4 | 5 4 3 | 2 1 0 | -1 0 -1",
             columns=24, time=TWO_BARS, dynamics=(82, 56, 62), gate=0.95),
        draw("3! _ _ 2 _ _ 1 _ _ 2 _ _ 3 _ 4 _ | 5! _ _ 4 _ _ 3 _ _ 2 _ _ 1 _ 2 _",
             "-3@60 _ _ _ _ _ _ _ -1@52 _ _ _ _ _ _ _ | -2@60 _ _ _ _ _ _ _ -1@52 _ _ _ _ _ _ _",
             columns=32, time=TWO_BARS, dynamics=(68,), gate=0.98),
        draw("6 5 4 3 2 3 4 3 | 5 4 3 2 1 2 3 2 | 4 3 2 1 0 1 2 1 | 3 2 1 0 -1 0 1 2",
             columns=32, time=TWO_BARS, dynamics=(84, 54, 62, 56), gate=0.95),
        draw("-3 0 2 0 -3 1 2 4 | -2 1 3 1 -2 2 3 5 | -1 2 4 2 -1 3 4 6 | 0 3 5 4 3 2 1 -1",
             columns=32, time=TWO_BARS, dynamics=(86, 54, 64, 58), gate=0.95),
    ), tempo=96)

ANSWERS = Pattern(
    "Call and Answer", "21 Nov 2026 11:30:03",
    "A low voice asks for a bar, a high voice answers: eight short conversations.",
    (
        draw("0! _ 1 2 | _ . 1 . | . . . . | . . . . | . . . . | . . . . | 4! _ 3 4 | 5 _ . .",
             columns=32, time=TWO_BARS, dynamics=(76,), gate=0.9),
        draw("-3! . -3 -2 | . -1 . 0 | . . . . | . . . . | 3! . 3 4 | . 5 . 4 | 3 . 2 . | . . . .",
             columns=32, time=TWO_BARS, dynamics=(74,), gate=0.75),
        # The answer comes from the other hand, upside down.
        draw("0! 1 2 1 | 3 _ . . | . . . . | . . . . | 5! 4 3 4 | 2 _ . . | . . . . | . . 1, 0,",
             columns=32, time=TWO_BARS, dynamics=(74, 60), gate=0.9),
        draw("-3! _ . -3 | . . 0 _ | . . . . | . . . . | -3! _ . -3 | . . -1 _ | . . . . | . . . .",
             ". . . . | . . . . | 2 . 3 4 | . 3, . . | . . . . | . . . . | 4 . 3 2 | . 3! _ .",
             columns=32, time=TWO_BARS, dynamics=(74,), gate=0.8),
        draw("0! 0 . 1 | . 2 . . | 3, 3, . 2, | . 1, . . | 0! 0 . 1 | . 3 . . | 5, 5, . 4, | . 3, . .",
             columns=32, time=TWO_BARS, dynamics=(78,), gate=0.6),
        draw("-3! _ -2 | _ -1 _ | 4 3 2 | 3 _ . | -2! _ -1 | _ 0 _ | 5 4 3 | 4 _ .",
             columns=24, time=TWO_BARS, dynamics=(76, 64, 60), gate=0.9),
        draw("0+1+2! _ . . 0+1+2' . . . | . . 5 4 3 4 . 3 | 0+1+2! _ . . 0+1+2' . . . | . . 3 4 5 6 . 5",
             columns=32, time=TWO_BARS, dynamics=(72, 62), gate=0.85),
        # They talk at once and agree at the end.
        draw("-3! _ . -2 | _ . -1 _ | -3 _ . -2 | _ . -1 _", ". 3 . . | 4 . . 3 | . 5 . . | 4 . 3! 2",
             dynamics=(72,), gate=0.85),
    ), tempo=104)

CANON = Pattern(
    "Canon", "21 Nov 2026 11:30:04",
    "One tune, and the same again later and higher: after a beat, half a bar, a bar, and closer and closer.",
    (
        draw("0! 1 2 1 | 0 2 1 0 | 0! 1 2 1 | 0 2 1 0", ". . . . | 3, 4, 5, 4, | 3, 5, 4, 3, | 3, 4, 5, 4,",
             dynamics=(76, 60), gate=0.85),
        draw("0! _ 2 1 0 _ 1 2 | . . . . . . . .", ". . . . . . . . | 3! _ 5 4 3 _ 4 5", dynamics=(74, 0, 62, 60),
             gate=0.9),
        # The answer inverts the tune.
        draw("0! 1 2 _ 1 0 1 _ | 0 1 2 _ 1 0 1 _", ". . 5, 4, 3, _ 4, 5, | 4, _ 5, 4, 3, _ 4, 5,",
             dynamics=(76, 64), gate=0.9),
        # Half as fast below, as fast as it goes above.
        draw("-3! _ -2 _ -1 _ -2 _ | -3 _ -1 _ -2 _ -3 _", "3, 4, 5, 4, 3, 5, 4, 3, | 3, 4, 5, 4, 3, 5, 4, 3,",
             dynamics=(78,), gate=0.85),
        draw("0! . 1 . 2 . 1 . | 0 . 2 . 1 . 0 .", ". 3, . 4, . 5, . 4, | . 3, . 5, . 4, . 3,", dynamics=(78,),
             gate=0.7),
        draw("0! 1 2 | 1 0 2 | 1 0 . | . . .", ". . . | 3 4 5 | 4 3 5 | 4 3 .",
             "-3@60 _ _ | _ _ _ | -2@60 _ _ | _ _ _",
             columns=12, dynamics=(70, 56, 60), gate=0.9),
        draw("0! _ 1 2 _ 1 0 _ | . . . . . . . . | 0! _ 1 2 _ 1 0 _ | . . . . . . . .",
             ". . . . . . . . | 3 _ 4 5 _ 4 3 _ | . . . . . . . . | 3 _ 4 5 _ 4 3 _",
             "-3@62 _ _ _ _ _ _ _ | _ _ _ _ _ _ _ _ | -1@62 _ _ _ _ _ _ _ | -2@62 _ _ _ _ _ _ _",
             columns=32, time=TWO_BARS, dynamics=(72,), gate=0.9),
        # Three voices, two columns apart.
        draw("-3! _ -2 _ -1 _ -2 _ | -3 _ -2 _ -1 _ -2 _", ". . 0, _ 1, _ 2, _ | 1, _ 0, _ 1, _ 2, _",
             ". . . . 3 4 5 4 | 3 4 5 4 3 4 5 6", dynamics=(74, 60), gate=0.85),
    ), tempo=100)

WALTZES = Pattern(
    "Waltz Book", "21 Nov 2026 11:30:05",
    "Three in a bar: bass and two chords, turning figures, a slow one, a hemiola and a quick one in one.",
    (
        draw("-3! . . | -1 . .", ". 0+1+2 0+1+2 . 0+1+2 0+1+2", columns=6, time=TWO_WALTZ_BARS,
             dynamics=(85, 58, 54), gate=0.6),
        draw("0! 1 2 | 3 2 1", columns=6, time=WALTZ, dynamics=(85, 58, 62), gate=0.9),
        draw("-3! _ 1 2 1 2 | -2 _ 2 3 2 3", columns=12, time=TWO_WALTZ_BARS, dynamics=(74, 0, 58, 62, 56, 60),
             gate=0.85),
        draw("-3! _ _ | _ _ _ | -2 _ _ | _ _ _", ". 0 1 | 2 1 2 | . 1 2 | 3 2 3", columns=12, time=TWO_WALTZ_BARS,
             dynamics=(66, 56, 60), gate=0.95),
        # Hemiola: three groups of two across two bars.
        draw("0+1+2! . 0+1+2 . 0+1+2 . | 0+1+2! . . 0+1+2 . .", "-3! _ _ _ _ _ | -3 _ _ -1 _ _", columns=12,
             time=TWO_WALTZ_BARS, dynamics=(72,), gate=0.7),
        draw("0! 2 1 3 2 4 | 3 5 4 3 2 1", columns=12, time=WALTZ, dynamics=(82, 54, 64, 54, 68, 56), gate=0.85),
        draw("3! _ 2 | 1 _ 2 | 3! 4 5 | 4 _ _", "-3@58 _ _ | . . . | -2@58 _ _ | -1@58 _ _", columns=12,
             time=((3, 4),) * 4, dynamics=(70, 58, 62), gate=0.95),
        draw("-3! 0 1 2 1 0 | -2 1 2 3 2 1 | -1! 2 3 4 3 2 | 0 3 5 4 3 2", columns=24, time=((3, 8),) * 4,
             dynamics=(86, 54, 60, 66, 58, 54), gate=0.9),
    ), tempo=132)

PICKING = Pattern(
    "Finger Picking", "21 Nov 2026 11:30:06",
    "A guitarist's right hand: the thumb alternates below, the fingers pick above it. Best with four keys.",
    (
        draw("-4! _ _ _ -2 _ _ _ | -4 _ _ _ -2 _ _ _", ". . 1 . . . 2 . | . . 1 . . . 3 .", dynamics=(74,),
             gate=0.9),
        draw("-4! _ _ _ -2 _ _ _ | -3 _ _ _ -2 _ _ _", ". . 2 . . 1 . 3 | . 1 . 2 . 1 . .", dynamics=(70, 58),
             gate=0.9),
        # Pinch: thumb and finger together on the one.
        draw("-4! _ _ _ -2 _ _ _ | -4 _ _ _ -2 _ _ _", "3! _ 1 . . 2 . 1 | . 3 . 1 . 2 . 1", dynamics=(70, 60),
             gate=0.9),
        draw("0! 1 2 3 2 1 2 1 | 0! 1 2 3 2 1 3 2", dynamics=(82, 56, 60, 68), gate=0.98),
        draw("-4! 0 2 | 1 3 1 | 2 0 . | -2! 1 3", columns=12, dynamics=(76, 58, 62), gate=0.95),
        draw("-4! _ _ 1 2 3 | -2 _ _ 1 3 2", columns=12, time=TWO_WALTZ_BARS, dynamics=(76, 0, 0, 58, 62, 66),
             gate=0.98),
        # Rolled: the chord is spread quickly and left to ring.
        draw("-4! _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ | -3 _ _ _ _ _ _ _ -2 _ _ _ _ _ _ _",
             ". 0 _ _ _ _ _ _ _ _ _ _ 0, _ _ _ | . 0 _ _ _ _ _ _ . 0, _ _ _ _ _ _",
             ". . 1 _ _ _ _ _ 1, _ _ _ _ _ _ _ | . . 1 _ _ _ _ _ . . 1, _ _ _ _ _",
             ". . . 2 _ _ _ _ _ _ 3, _ _ _ _ _ | . . . 2 _ _ _ _ . . . 3 _ _ _ _",
             columns=32, time=TWO_BARS, dynamics=(68,), gate=0.98),
        draw("-4! _ _ _ -2 _ _ _ -3 _ _ _ -2 _ _ _ | -4! _ _ _ -2 _ _ _ -3 _ -2 _ -1 _ _ _",
             ". . 2 . . 3 . 1 . . 3 . . 2 . 1 | . . 2 . . 3 . 4 . 3 . 2 . 1 2, 1,",
             columns=32, time=TWO_BARS, dynamics=(70, 58), gate=0.9),
    ), tempo=98, swing=12, swing_note="1/8", sound=sound("Cut Strings", decay=0.6, release=0.3, width=0.5))

MELODIC = (BROKEN, HILLS, ANSWERS, CANON, WALTZES, PICKING)
