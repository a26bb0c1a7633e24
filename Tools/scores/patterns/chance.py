"""Patterns that throw dice: the same each time in outline, never the same in detail."""

from ..notation import cycle, draw
from ..preset import Pattern
from ..sounds import sound

TWO_BARS = ((4, 4),) * 2

DICE = Pattern(
    "Dice Walk", "21 Nov 2026 12:00:01",
    "A walk that skips steps: from one note in ten left out to one in two, with forks in the road.",
    (
        draw("0 1?90 2?90 3?90 ...", dynamics=(82, 54, 64, 56), gate=0.8),
        draw("0 1?75 2?75 3?75 | 2 1?75 0?75 -1?75 | 0 1?75 2?75 4?75 | 3 2?75 1?75 0?75",
             dynamics=(82, 54, 64, 56), gate=0.8),
        draw("0?95 1?50 2?50 3?50 4?60 3?50 2?50 1?50 ...", dynamics=(82, 56, 64, 58), gate=0.8),
        # Forks: above or below, or both, or neither.
        draw("0! . 1?50 . 2?50 . 1?50 . ...", ". 3?50 . 4?50 . 5?50 . 4?50 ...", dynamics=(74, 60), gate=0.75),
        draw("-3! _ . . -3?50 _ . . | -2?80 _ . . -1?50 _ . .", "0?70~15 2?60~15 1?70~15 3?60~15 ...",
             dynamics=(66, 56), gate=0.8),
        draw("0~10 2?60 1?70 | 3?60 2?70 4?50 | 0~10 2?60 1?70 | 5?50 3?60 1?70", columns=12, dynamics=(80, 58, 62),
             gate=0.85),
        # Pushed now and then: the beat may come a sixteenth early.
        draw("0! . . 1?40 | 1?80 . . 2?40 | 2?80 . . 3?40 | 3?80 . 2?50 0?40", dynamics=(76,), gate=0.8),
        draw("0 1?70 2?60 3?50 4?40 5?30 6?20 5?20 | 4?30 3?40 2?50 1?60 0?70 -1?60 -2?50 -1?60",
             dynamics=(80, 54, 64, 56), gate=0.85),
    ), tempo=110)

GHOSTS = Pattern(
    "Ghost Notes", "21 Nov 2026 12:00:02",
    "A firm figure and soft notes that haunt the gaps, louder and softer as they please.",
    (
        draw("0! . . . | 2! . . . | 0! . . 1 | 2! . . .", ". 1?40@28~12 . -1?50@32~12 ...", dynamics=(76,),
             gate=0.55),
        draw("-3! . . 0 | . . -3 . | . 0 . . | -1! . . .",
             ". 2?50@30~12 2?60@34~12 . 3?40@28~12 2?50@32~12 . 3?50@30~12 ...",
             dynamics=(78,), gate=0.55),
        draw("0+1+2! . . . . . 0+1+2 . | . . 0+1+2! . . . . .", ". 3?40@30 3?50@32 4?30@28 ...", dynamics=(74,),
             gate=0.55),
        draw("0! 0?45@28~10 0?45@28~10 0?60@34~10 | 1! 1?45@28~10 1?45@28~10 1?60@34~10 "
             "| 2! 2?45@28~10 2?45@28~10 2?60@34~10 | 1! 1?45@28~10 3?60@60 2?70@40", gate=0.5),
        draw("-3! . -3?50@35 . | -1 . -3?50@35 . | -3! . -3?50@35 . | -2 . -1?70@50 .",
             ". 3?35@30~10 . 4?45@32~10 ...", dynamics=(80,), gate=0.6),
        draw("0! 3?50@30 3?40@28 | 1 3?50@30 4?40@28 | 0! 3?50@30 3?40@28 | 2 4?50@30 5?60@34", columns=12,
             dynamics=(80,), gate=0.6),
        draw("2! . 0 . 2 . 1! . | 2 . 0 . 3! . 1 .", ". -3?40@34~10 . -3?60@38~10 ...", dynamics=(68,), gate=0.6),
        # Drum roll into the next bar, if it likes.
        draw("0! _ . . . . . . 1 _ . . . . . . | 2! _ . . . . . . 1 _ . . 3?30@34 3?40@42 3?50@50 3?60@58",
             columns=32, dynamics=(78,), gate=0.6),
    ), tempo=98, swing=16, swing_note="1/8")

FIREFLIES = Pattern(
    "Fireflies", "21 Nov 2026 12:00:03",
    "Sparks all over the rows, rarely the same ones; some slots glow steadily below.",
    (
        draw("0?25~25 2?25~25 4?25~25 1?25~25 3?25~25 5?25~25 ...", dynamics=(66,), gate=0.9),
        draw("6?30~25 . 4?30~25 . 5?30~25 . 3?30~25 . ...", ". 0?30~25 . 2?30~25 . 1?30~25 . -1?30~25 ...",
             dynamics=(64,), gate=0.9),
        draw("-3@58 _ _ _ _ _ _ _ | -2@54 _ _ _ _ _ _ _", "3?35~25 5?35~25 4?35~25 6?35~25 2?35~25 ...",
             dynamics=(60,), gate=0.9),
        # Swarms: either a whole handful or none.
        draw("0?35~15 . . . | . . 2?35~15 . | . . . . | 4?35~15 . . .",
             "1?35~15 . . . | . . 3?35~15 . | . . . . | 5?35~15 . . .",
             "2?35~15 . . . | . . 4?35~15 . | . . . . | 6?35~15 . . .", dynamics=(62,), gate=0.95),
        draw("3?40~25 4?30~25 5?20~25 6?10~25 5?20~25 4?30~25 ...", columns=24, time=TWO_BARS, dynamics=(66,),
             gate=0.9),
        draw("0?20 1?20 2?20 3?20 4?20 5?20 6?20 5?20 4?20 3?20 2?20 1?20 ...", columns=48, time=TWO_BARS,
             dynamics=(72, 50, 58), gate=0.9),
        cycle("5?45~25 . 3?35~25 6?25~25 . 4?45~25 2?35~25", dynamics=(64,), gate=0.9),
        draw("0+2+4?50~15 _ . . . . 3?40~25 . | 1+3+5?40~15 _ . . 6?30~25 . 4?40~25 .", dynamics=(60,),
             time=TWO_BARS, gate=0.95),
    ), tempo=92, sound=sound("Paper Harp"))

CLOCKWORK = Pattern(
    "Loose Clockwork", "21 Nov 2026 12:00:04",
    "A machine with worn teeth: strict figures that stumble, skip and now and then strike twice.",
    (
        draw("0! 2 1 2 | 0 2 1 3?70 | 0! 2 1 2 | 0?60 2 1?80 2", dynamics=(80, 56, 62, 56), gate=0.5),
        # Strikes twice.
        draw("0! . 0?30@50 . 1 . 1?30@50 . | 2 . 2?30@50 . 1 . 1?30@50 . "
             "| 0! . 0?30@50 . 1 . 1?30@50 . | 3 . 3?40@55 . 2 . 2?40@55 .",
             columns=32, dynamics=(78,), gate=0.5),
        draw("-3! . 0 . -3 . 0 . | -3?80 . 0 . -2 . 1 .", ". 3?80 . 3?60 . 4?80 . 2?60 ...", dynamics=(76, 54),
             gate=0.5),
        cycle("0! 1 2?80 3 2?80 1 0?70 3 2", dynamics=(60, 56), gate=0.5),
        draw("0! 0 0?50 0 | 0 0?50 0 0?30 | 1! 1 1?50 1 | 1 1?50 2 2?30", dynamics=(74, 54, 60, 50), gate=0.45),
        draw("3! 2 1 | 0 1?60 2 | 3! 2 1?60 | 4?70 2 1", columns=12, dynamics=(78, 56, 60), gate=0.5),
        draw("0+2! . 1 . | 0+2?80 . 1 3?50 | 0+2! . 1 . | 0+2?60 1?60 1 4?50", dynamics=(74, 56), gate=0.5),
        draw("0 1 2 3 | 4?80 3?80 2?80 1?80 | 0 2?70 4?60 6?50 | 5?50 3?60 1?70 -1?80", dynamics=(84, 56, 64, 58),
             gate=0.5),
    ), tempo=120, sound=sound("Toy Console"))

CHANCE = (DICE, GHOSTS, FIREFLIES, CLOCKWORK)
