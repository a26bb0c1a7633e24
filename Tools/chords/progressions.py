"""The chord files of the MIDI player: one line of chord symbols each, in the notation of symbols.py.

All are written around C, so that the plug-in's Key moves them from there to any other: C major and minor, their
relatives, and the modes on the white keys.
"""

from dataclasses import dataclass


@dataclass(frozen=True)
class Progression:
    style: str
    key: str
    bars: str  # between lines, see symbols.py
    why: str
    beats: int = 4  # quarter notes in a bar


PROGRESSIONS = (
    Progression("Pop", "C major", "C | G | Am | F", "Four bright triads that never end."),
    Progression("House", "C minor", "Cm7 | Abmaj7 | Fm7 | Gm7", "Warm sevenths, one a bar."),
    Progression("Ballad", "C major", "C | G/B | Am | Em/G | F | C/E | Dm7 | Gsus4 G",
                "Eight bars down a stair of bass notes."),
    Progression("Trance", "A minor", "Am | F | C | G | Am | F | Dm | Em", "Plain triads that climb and fall back."),
    Progression("Jazz", "C major", "Dm9 | G13 | Cmaj9 | Em7 A7", "Two, five, one, and round again."),
    Progression("Lo-Fi", "C major", "Fmaj7 | Em7 | Dm7 | Cmaj7", "Sevenths down the scale."),
    Progression("Neo Soul", "A minor", "Am7 | Dm9 G13 | Cmaj7 | F6 E7", "Rich chords, some in half a bar."),
    Progression("Cinematic", "C minor", "Cm | Ab | Fm | G | Cm | Eb | Ab | Gsus4 G",
                "Eight wide bars that end in suspense."),
    Progression("Deep House", "C minor", "Cm9 | Fm9", "Two dark ninths."),
    Progression("Synthwave", "A minor", "Am | F | G | Em | Am | F | G | C", "Night drive in eight bars."),
    Progression("Blues", "C major", "C7 | G7 | F7 | F7 | C7 | G7 | C7 | G7", "Eight bars, all of them sevenths."),
    Progression("Gospel", "C major", "C | C7/E | F | F#dim7 | C/G | A7 | Dm7 | G7", "The bass walks up, then home."),
    Progression("Bossa", "C major", "Cmaj7 | Ebdim7 | Dm9 | G7b9", "Half steps between soft chords."),
    Progression("Funk", "D Dorian", "Dm9 . . . . . . G13 | G13", "Two chords, the second pushed ahead of its bar."),
    Progression("Soul", "C major", "Fmaj7 | Em7 A7 | Dm9 | G9sus4", "Never quite comes home."),
    Progression("Dorian Groove", "D Dorian", "Dm7 | Em7 | Fmaj7 | Em7", "Up and down three steps of the mode."),
    Progression("Phrygian Dusk", "E Phrygian", "Em | F | G | F", "The half step above home."),
    Progression("Lydian Sky", "F Lydian", "Fmaj7 | G/F | Em7 | Am7", "A raised fourth over a resting bass."),
    Progression("Mixolydian Rock", "G Mixolydian", "G | F | C | G", "The flat seventh, loud."),
    Progression("Flamenco", "A minor", "Am | G | F | E", "Down to the major chord on the fifth."),
    Progression("Ambient", "C major", "Cadd9 | . | Fmaj9 | . | Am7 | . | Em7 | .", "Four chords of two bars each."),
    Progression("Drum and Bass", "A minor", "Am9 | Fmaj9 | Cmaj7 | Em7", "Ninths for fast patterns."),
    Progression("Techno", "C Phrygian", "Cm7 | Dbmaj7", "Two bars of tension."),
    Progression("RnB", "C major", "Fmaj9 | E7#9 | Am9 | Gm9 C13", "Smooth, with a sharp corner."),
    Progression("Trap", "C minor", "Cm | Ab | G7 | .", "Harmonic minor, slow."),
    Progression("Future Bass", "C major", "Fmaj7 . . G | Am7 | Em7 . . Am7 | C/G . . Gadd9",
                "Chords that come in off the bar."),
    Progression("Waltz", "C major", "C | Am | Dm | G7 | Em | Am | Dm7 G7 . | C", "Eight bars of three.", beats=3),
    Progression("Circle of Fifths", "A minor", "Am7 | Dm7 | G7 | Cmaj7 | Fmaj7 | Bm7b5 | E7 | Am7",
                "Eight falling fifths through the whole key."),
    Progression("Minor Jazz", "C minor", "Dm7b5 | G7b9 | Cm6 | .", "Two, five, one in minor."),
    Progression("Garage", "C minor", "Cm9 . . Bbadd9 | Abmaj7 . . Gm7", "Two bars, the changes late in each."),
    Progression("Reggae", "A minor", "Am | Dm | Am | Em", "Three minor triads for the off-beat."),
    Progression("Anthem", "C major", "F | G | Am | C/E", "Arms in the air."),
)
