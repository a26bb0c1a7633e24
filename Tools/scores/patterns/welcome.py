"""The preset that opens with the plug-in: eight ways through a chord, from the plainest to the least predictable."""

from ..notation import cycle, draw
from ..preset import Pattern

WELCOME = Pattern(
    "WELCOME", "21 Nov 2026 09:00:00",
    "Eight first steps: a walk, up, up and down, octaves, chords, dotted notes, a seven against four, and chance.",
    (
        # A walk up the chord and back, with the accents of a straight beat.
        draw("0@95 1@55 2@70 3@60 4@85 3@55 2@70 1@50 | 2@90 3@55 4@75 5@60 6@85 4@60 3@70 2@55"),
        # Up, again and again.
        draw("0! 1 2 3 | 0 1 2 3 | 0! 1 2 3 | 0 1 2 3", dynamics=(80, 50, 60, 55), gate=0.8),
        # Up and down across the keys that are held, and below them.
        draw("0! 1 2 3 4 5 4 3 | 2! 1 0 -1 -2 -3 -2 -1", dynamics=(85, 55, 68, 55), gate=0.95),
        # The outer keys leap octaves, the inner ones fill in.
        draw("-3! . 0 3, | -3 . 3 0, | -3! . 0 3, | -3 0, 3 1,", dynamics=(85, 60, 65, 60), gate=0.7),
        # Whole chords, short, on three and three and two.
        draw("0+1+2!' . . 0+1+2' . . 0+1+2!' . | . 0+1+2,' . 0+1+2' . . 0+1+2' 3,'",
             "-3! _ _ _ _ _ . . | -3 _ _ _ _ _ . .", dynamics=(75,)),
        # Dotted eighths come down while the bass keeps the beat.
        draw("5! _ _ 4 _ _ 3! _ _ 2 _ _ 1 _ 2 _", "-3@80 _ _ . 0@50 _ _ . -3@70 _ _ . 0@50 _ _ .",
             dynamics=(72,), gate=0.9),
        # Seven sixteenths: the figure starts somewhere else in each bar and is home after seven.
        cycle("0! 2 1 3 2 4 1", dynamics=(85, 55, 65, 55, 75, 60, 50), gate=0.85),
        # A dice for each note: the bass is sure, the rest comes and goes.
        draw("-3! _ . . . . -3?60 . -3@80 _ . . . . 0?40 .",
             "0~15 2?60~20 1?75~20 3?60~20 0?85~15 4?40~20 2?75~20 1?60~20 ...", dynamics=(70, 55, 62, 55),
             gate=0.9),
    ))
