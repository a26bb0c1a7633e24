"""Slow patterns: few notes, long ones, and room between them. All bring a sound."""

from ..notation import cycle, draw
from ..preset import Pattern
from ..sounds import sound

TWO_BARS = ((4, 4),) * 2

TIDE = Pattern(
    "Slow Tide", "21 Nov 2026 11:40:01",
    "Chords that come in one key at a time over two slow bars and go out the same way.",
    (
        draw("0 _ _ _ _ _ _ _ _ _ _ _ _ _ _ .", ". . . . 1 _ _ _ _ _ _ _ _ _ . .",
             ". . . . . . . . 2 _ _ _ _ . . .",
             time=TWO_BARS, dynamics=(62,)),
        draw("-3 _ _ _ _ _ _ _ -2 _ _ _ _ _ _ _", ". . 0 _ _ _ _ . . . 1 _ _ _ _ .",
             ". . . . 2 _ _ _ . . . . 3 _ _ _",
             time=TWO_BARS, dynamics=(60,)),
        draw("0+2 _ _ _ | 1+3 _ _ _ | 0+2 _ _ _ | 1+4 _ _ _", time=TWO_BARS, dynamics=(64,)),
        draw("-3 _ _ _ _ _ _ _ _ _ _ _ _ _ _ _", ". . . 4, _ _ . . . . . 3, _ _ _ .",
             ". 1 _ _ _ . 2 _ _ _ . . 1 _ _ .",
             time=TWO_BARS, dynamics=(62,)),
        # Waves: two lines of different length lap over each other.
        draw("0 _ _ 2 _ _ ...", "3, _ _ _ 4, _ _ _ 5, _ _ _ 4, _ _ _", time=TWO_BARS, dynamics=(64,)),
        draw("0+1+2 _ _ _ _ _ _ _ | 1+2+3 _ _ _ _ _ _ _", time=TWO_BARS, dynamics=(66,)),
        draw("6@34 _ _ 5@38 _ _ 4@42 _ _ 3@46 _ _ 2@50 _ _ _", "-3@60 _ _ _ _ _ _ _ -1@54 _ _ _ _ _ _ _",
             time=TWO_BARS),
        draw("-3+0 _ _ _ _ _ -2+1 _ _ _ _ _ -1+2 _ _ _", ". . 3, _ _ . . . 4, _ _ . . . 5, _", time=TWO_BARS,
             dynamics=(62,)),
    ), tempo=66, sound=sound("Slow Dawn"), quantise="4/4")

LEAVES = Pattern(
    "Falling Leaves", "21 Nov 2026 11:40:02",
    "Single drops from above, some of which never come; the echo fills what they leave open.",
    (
        draw("5?80~15 . . 4?70~15 . . 3?80~15 . . . 2?70~15 . . 1?60~15 . .",
             "0~10 _ . . . . . . -1~10 _ . . . . . .",
             dynamics=(70,)),
        draw("6~20 . . . . 4?70~20 . . | . . 3~20 . . . . 1?60~20", ". . 0?60~15 . . . . . ...", dynamics=(68,)),
        draw("5?80 4?80 3?80 . | . . . 0?60 | 6?70 5?70 4?70 . | . . 2?80 1?60", dynamics=(76, 66, 56, 50)),
        draw("3 . . 2?80 . 1?80 . . | . . 5?60 . 4?70 . 2?70 .", "-3@66 _ _ _ _ _ _ _ | -2@62 _ _ _ _ _ _ _",
             dynamics=(68,), time=TWO_BARS),
        # A gust, then nearly nothing.
        draw("6 5 4 3 2 1 0 -1 | . . . 3?50 . . 1?50 .", dynamics=(78, 72, 66, 60, 54, 48, 44, 40)),
        draw("4?65~20 . 3?55~20 . 5?45~20 . ...", "0?90~10 . . . -1?60~10 . . . ...", dynamics=(70,)),
        cycle("5?85~15 . . 3?75~15 . . . 4?70~15 . . 2?80~15", dynamics=(70,)),
        draw("5?60~15 3?60~15 4?60~15 2?60~15 3?60~15 1?60~15 2?60~15 0~10 ...",
             "-3@66 _ _ _ _ _ _ _ _ _ _ _ _ _ _ _",
             dynamics=(66,), time=TWO_BARS),
    ), tempo=84, sound=sound("Dew Drops", master=2.0, decay=0.3), quantise="2/4")

MUSIC_BOX = Pattern(
    "Music Box", "21 Nov 2026 11:40:03",
    "A steel comb, wound up anew by each key: tunes in three, slowing gaps and a tooth that is missing.",
    (
        draw("3! 4 5 | 4 3 2", columns=6, time=(3, 4), dynamics=(70, 54, 60)),
        draw("3! 2 5 3 | 4 2 3 1 | 3 2 5 4", columns=12, time=(3, 4), dynamics=(70, 50, 58, 54)),
        draw("6! . 5 4 . 3 | 5! . 4 3 . 2", "0, _ _ _ _ _ | -1, _ _ _ _ _", columns=12, time=((3, 4),) * 2,
             dynamics=(68, 54)),
        # One tooth is broken off.
        draw("3 4 5 . 4 3 | 3 4 5 . 6 5", columns=12, time=((3, 4),) * 2, dynamics=(70, 54, 62)),
        draw("3! 5 4 | 3 5 4 | 2! 4 3 | 1 3 2", columns=12, time=(6, 8), dynamics=(68, 50, 54)),
        draw("3! _ 4, 5, _ 4, | 6 _ 5, 4, _ 3,", "0 . . 2, . . | 1 . . 2, . .", columns=12, time=((3, 4),) * 2,
             dynamics=(62,)),
        # Running down.
        draw("3@70 4@66 5@62 4@58 . 3@54 . 2@50 . . 3@44 . . . 1@38 . . .", columns=18, time=((3, 4),) * 3),
        draw("3+6! 4 5 3+5 4 3 | 2+5! 3 4 1+4 3 2", columns=12, time=((3, 4),) * 2, dynamics=(66, 50, 56)),
    ), tempo=96, sound=sound("Glass Beads", decay=0.5, release=0.4), retrigger=True)

NIGHT_TRAIN = Pattern(
    "Night Train", "21 Nov 2026 11:40:04",
    "A quiet ostinato that rolls on while lights pass the window.",
    (
        draw("0, 2, 1, 2, ...", "-3@62 _ _ _ _ _ _ _ | _ _ _ _ _ _ _ _", dynamics=(45,), gate=0.8),
        draw("0 2 1 2 ...", "-3@62 _ _ _ _ _ _ _ | -3@50 _ _ _ _ _ _ _", ". . . . . . 5@56 _ | _ . . . . . 4@50 _",
             dynamics=(58, 42, 50, 44), gate=0.75),
        draw("0 1 0 2 0 1 0 3 | 0 1 0 2 0 1 0 2", "-3@60 _ _ _ _ _ _ _ _ _ _ _ _ _ _ _", dynamics=(58, 42, 48, 44),
             gate=0.75),
        draw("-3! 0, . 0, | -3 0, 2, 0, | -3 0, . 0, | -3 0, 3, 1,", dynamics=(66,), gate=0.6),
        # Points: the rhythm of the rails.
        draw("0! 0, . . | 1 1, . . | 0! 0, . . | 2 2, . .", "-3@58 _ _ _ _ _ _ _ | -2@58 _ _ _ _ _ _ _",
             dynamics=(64,), gate=0.5),
        draw("0, 2, 1, 2, ...", ". . 6?40@60 _ . . 5?30@52 _ . . . 4?40@56 _ _ . .",
             "-3@60 _ _ _ _ _ _ _ | -1@54 _ _ _ _ _ _ _",
             dynamics=(45,), gate=0.75),
        draw("0 1 2 ...", "-3@60 _ _ _ _ _ _ _ | -3@52 _ _ _ _ _ _ _", dynamics=(60, 44, 50, 44), gate=0.75),
        draw("0 2 1 2 0 3 1 3 0 4 1 4 0 3 1 2 | 0 2 1 2 0 3 1 3 0 4 1 5 0 4 1 3",
             "-3@60 _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ | -2@60 _ _ _ _ _ _ _ -1@54 _ _ _ _ _ _ _",
             columns=32, time=TWO_BARS, dynamics=(60, 42, 50, 44), gate=0.8),
    ), tempo=108, sound=sound("Tine Dreams"))

AMBIENT = (TIDE, LEAVES, MUSIC_BOX, NIGHT_TRAIN)
