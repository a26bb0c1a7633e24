"""Patterns that groove: where the accents lie matters more than which rows they are on."""

from ..notation import draw
from ..preset import Pattern
from ..sounds import sound

TWO_BARS = ((4, 4), (4, 4))

SIXTEEN = Pattern(
    "Sixteen Engine", "21 Nov 2026 11:20:01",
    "Running sixteenths with a beat inside: eight places for the accents, from straight to broken.",
    (
        draw("0! 0, 3 0, | 0! 0, 2 0, | 0! 0, 3 0, | 0! 0, 2 1", dynamics=(90, 45, 70, 45), gate=0.55),
        draw("0! 0, 0 2! | 0, 0 3! 0, | 0! 0, 0 2! | 0, 1 2! 1,", dynamics=(60,), gate=0.55),
        draw("-3! 0, 2 0, | 3 0, 2, 0 | -3 0, 2! 0, | 3, 0 4! 2,", dynamics=(85, 45, 70, 50), gate=0.6),
        draw("0! 2, 1, 0 | 2, 1, 0! 2, | 1, 0 2, 1, | 0! 2 1, 3", dynamics=(65,), gate=0.6),
        draw("-3! . 0 0, | . 2! . 0, | -3 . 0! 0, | . 2 3! 2,", dynamics=(70,), gate=0.5),
        draw("0! 0, 0, 0 | 1! 1, 1, 1 | 2! 2, 2, 2 | 1! 1, 3! 2", dynamics=(80, 45, 50, 60), gate=0.5),
        draw("3! 0, 0, 4! | 0, 0, 5! 0, | 3! 0, 4! 0, | 0, 2! 0, 1", dynamics=(60,), gate=0.55),
        draw("-3! 0 2 0, 3 0, 2 0, | -3! 0 2 0, 4 0, 3! 2 | -2! 1 3 1, 4 1, 3 1, | -1! 2 4 2, 5! 4 3! 2",
             columns=32, time=TWO_BARS, dynamics=(72, 52, 64, 48), gate=0.6),
    ), tempo=122)

OFFBEAT = Pattern(
    "Behind the Beat", "21 Nov 2026 11:20:02",
    "Everything a little late: off-beat stabs, skanks and pushed bass notes.",
    (
        draw(". 0+1+2' . 0+1+2' | . 0+1+2' . 0+1+2'", columns=8, dynamics=(70, 80)),
        draw("-3! _ . . | -3, _ . . | -3! _ . . | -1 _ . .",
             ". . 0+1+2' . | . . 0+1+2' . | . . 0+1+2' . | . . 0+1+2' 2'",
             dynamics=(75,), gate=0.8),
        # The bass leaves out the one.
        draw(". . . -3 | _ . -3! _ | . . . -3 | _ . -2 -1",
             ". . 1+2+3' . . . 1+2+3' . | . . 1+2+3' . . . 1+2+3' 3'",
             dynamics=(76,), gate=0.85),
        draw(". 0 . 1 | . 2 . 3 | . 2 . 1 | . 3 . 4", dynamics=(60, 78), gate=0.6),
        draw(". . 0! . | . 1 . 2 | . . 0! . | 3 . 2 .", "-3! . . . | . . -3, . | -3 . . . | . . . -1,",
             dynamics=(74,), gate=0.7),
        draw(". 1+2 0 | . 1+2 0 | . 1+2 0 | . 2+3 1", columns=12, dynamics=(60, 80, 55), gate=0.6),
        draw(". . . 2 | _ _ . 1 | _ _ . 3 | _ 2 _ 1", "-3 _ . . | -3 _ . . | -3 _ . . | -3 _ . .",
             dynamics=(78,), gate=0.9),
        draw("-3! _ . . . . 0+1+2' . | . . . -3 _ . 0+1+2' . | -2! _ . . . . 1+2+3' . | . -2 _ -1 . 1+2+3' . 2'",
             columns=32, time=TWO_BARS, dynamics=(76,), gate=0.8),
    ), tempo=92)

TRESILLO = Pattern(
    "Three Three Two", "21 Nov 2026 11:20:03",
    "The bar counted as three, three and two: as bass, as melody, as chords, doubled and turned round.",
    (
        draw("0! _ _ 0 _ _ 0 _", columns=8, dynamics=(80,), gate=0.7),
        draw("0! 1 2 0! 1 2 0! 2 | 0! 1 2 0! 1 2 3! 2", dynamics=(60, 52, 62), gate=0.75),
        draw("-3! _ _ -3 _ _ -1 _ | -3! _ _ -3 _ _ -2 _", "2, . 3 . 2, . 3 2, | 2, . 3 . 2, . 4 3",
             dynamics=(74,), gate=0.75),
        draw("0+1+2! _ . 0+1+2 _ . 0+1+2 . | 0+1+2! _ . 0+1+2 _ . 1+2+3 .", dynamics=(74,), gate=0.8),
        draw("5! 4 3 4! 3 2 3! 2 | 5! 4 3 4! 3 2 1! 0", dynamics=(60, 54, 58), gate=0.75),
        # Two, three, three: the same turned round.
        draw("0! 2 0! 1 2 0! 1 2 | 0! 3 0! 1 3 0! 2 4", dynamics=(60, 55, 62), gate=0.75),
        draw("-3! . 0 2' . 0 -3! . 0 2' . 0 -1! 2' . 3'", dynamics=(68,), gate=0.7),
        draw("-3! 0 2 -3! 0 2 -3! 2 | -2! 1 3 -2! 1 3 -2! 3 | -1! 2 4 -1! 2 4 -1! 4 | 0! 3 5 0! 3 5 4! 3",
             columns=32, time=TWO_BARS, dynamics=(58, 52, 62), gate=0.8),
    ), tempo=112)

SHUFFLE = Pattern(
    "Shuffle Street", "21 Nov 2026 11:20:04",
    "Swung eighths: a walking bass, boogie figures, late stabs. Turn the swing down and they march.",
    (
        draw("0! 1 2 1 | 3 2 1 2", columns=8, dynamics=(85, 58), gate=0.7),
        draw("-3! _ -2 _ | -1 _ -2 0,", columns=8, dynamics=(85, 0, 78, 0), gate=0.9),
        draw("-3! -2 -1 0 | 1 0 -1 -2", columns=8, dynamics=(85, 62), gate=0.75),
        # Left hand on the beat, right hand behind it.
        draw("-3! _ -1 _ | -2! _ -1 0,", ". 1+2' . 1+2' | . 1+2' . 2+3'", columns=8, dynamics=(80, 66), gate=0.85),
        draw("0! 2 . 1 | . 2 3! .", columns=8, dynamics=(80, 62), gate=0.6),
        draw("0+2! 0+2 0+3 0+2 | 0+4! 0+3 0+3 0+2", columns=8, dynamics=(85, 62), gate=0.6),
        draw("3! 2 1 0 | . 0 1, 2 | 4! 3 2 1 | . -1 0, 1", time=TWO_BARS, dynamics=(82, 60), gate=0.75),
        draw("-3! _ -2 _ -1 _ 0 _ | 1 _ 0 _ -1 _ -2 -1,", ". . . 2+3' . . . 2+3' | . 2+3' . . . 3+4' . 2+3'",
             time=TWO_BARS, dynamics=(80, 64), gate=0.85),
    ), tempo=116, swing=56, swing_note="1/4")

CLAVE = Pattern(
    "Clave Talk", "21 Nov 2026 11:20:05",
    "Two-bar keys of Latin music, three strokes and two: plain, turned round, as montuno and with a bass.",
    (
        draw("0+1+2! . . 0+1+2 . . 0+1+2 . | . . 0+1+2 . 0+1+2! . . .", dynamics=(76,), gate=0.7, time=TWO_BARS),
        draw(". . 0+1+2 . 0+1+2! . . . | 0+1+2! . . 0+1+2 . . 0+1+2 .", dynamics=(76,), gate=0.7, time=TWO_BARS),
        # The last of the three strokes comes half a beat later.
        draw("0+1+2! . . 0+1+2 . . . 0+1+2 | . . 0+1+2 . 0+1+2! . . .", dynamics=(76,), gate=0.7, time=TWO_BARS),
        # A montuno: octaves at the corners, thirds between.
        draw("0+3! . 1+2 0 | . 1+2 . 0+3! | . 1+2 . 0+3 | . 1+2 0+3! 1+2", dynamics=(72,), gate=0.6, time=TWO_BARS),
        # The bass comes before the bar it belongs to.
        draw(". . . -1 _ _ -3! _ | _ _ . -1 _ _ -2! _", ". 1+2' . . 1+2' . 1+2' . | 1+2' . 1+2' . . 1+2' . 3'",
             dynamics=(74,), gate=0.85, time=TWO_BARS),
        draw("3! . 2 3 . 2 3! . | 2 . 3! . 2 3 . 1", "-3 . . -3 . . -1 . | . . -3 . -1 . . .",
             dynamics=(70,), gate=0.6, time=TWO_BARS),
        # Bell: seven strokes over twelve.
        draw("2! . 2 . 2 2 . | 2 . 2 . 3", "-3 . . . . . -3 . . . -1 .", columns=12, dynamics=(78,), gate=0.6),
        draw("0+3! . 1+2' 0 . 1+2' 0+3! . | 2' 0 1+2' . 0+3! . 1+2' 2'", "-3 _ _ . . . -1 _ | _ . . . -3 _ . .",
             dynamics=(72,), gate=0.7, time=TWO_BARS),
    ), tempo=104)

CHOPPED = Pattern(
    "Chopped Light", "21 Nov 2026 11:20:06",
    "A held chord cut by a gate: eight ways to open and shut it, the last ones in thirty-seconds.",
    (
        draw("0+1+2 ...", dynamics=(92, 60, 74, 60), gate=0.5),
        draw("0+1+2! . 0+1+2 0+1+2 | . 0+1+2 . 0+1+2 | 0+1+2! . 0+1+2 0+1+2 | . 0+1+2 0+1+2 .", dynamics=(74,),
             gate=0.6),
        draw("0+1+2! _ . 0+1+2 | . . 0+1+2 . | 0+1+2! _ . 0+1+2 | . 0+1+2 . 0+1+2,", dynamics=(74,), gate=0.7),
        # The chord opens by one row a beat.
        draw("0! 0 0 0 | 0+1! 0+1 0+1 0+1 | 0+1+2! 0+1+2 0+1+2 0+1+2 | 0+1+2+3! 0+1+2+3 0+1+2+3 0+1+2+3",
             dynamics=(85, 58, 70, 58), gate=0.5),
        draw("0+1+2@30 0+1+2@36 0+1+2@42 0+1+2@48 | 0+1+2@54 0+1+2@60 0+1+2@66 0+1+2@72 "
             "| 0+1+2@78 0+1+2@84 0+1+2@90 0+1+2@95 | . . 1+2+3! .", gate=0.5),
        draw("0+2! . 1+3 . | 0+2 1+3 . 0+2 | . 1+3! . 0+2 | 1+3 . 0+2 1+3", dynamics=(76,), gate=0.55),
        draw("0+1+2! _ _ _ . . 0+1+2 _ | 0+1+2! 0+1+2 0+1+2 0+1+2 . . . . "
             "| 0+1+2! _ _ _ . . 0+1+2 _ | 0+1+2! 0+1+2, 0+1+2 0+1+2, 0+1+2! 0+1+2, 0+1+2 0+1+2,",
             columns=32, dynamics=(72,), gate=0.55),
        draw("0+1+2! _ 0+1+2 _ 0+1+2, _ . . | 0+1+2! _ 0+1+2 _ 0+1+2, _ 0+1+2, _ "
             "| 1+2+3! _ 1+2+3 _ 1+2+3, _ . . | 1+2+3! 1+2+3, 1+2+3, 1+2+3, 1+2+3! 1+2+3, 2+3+4! 2+3+4,",
             columns=32, dynamics=(74,), gate=0.6),
    ), tempo=126, sound=sound("Slow Dawn", master=-8.0, attack=0.01, release=0.18, sustain=0.7), quantise="4/4")

RHYTHMIC = (SIXTEEN, OFFBEAT, TRESILLO, SHUFFLE, CLAVE, CHOPPED)
