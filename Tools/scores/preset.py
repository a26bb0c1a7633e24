"""What a preset consists of, with the values that most of them share."""

from dataclasses import dataclass

SLOTS = 8


@dataclass(frozen=True)
class Oscillator:
    """A wavetable at a level in decibels, shifted by octaves and semitones."""

    table: str
    level: float
    octave: int = 0
    tune: int = 0
    is_on: bool = True


SILENT = Oscillator("Sine", -15.0, is_on=False)


@dataclass(frozen=True)
class Delay:
    """An echo in time with the tempo, or of its own time where `seconds` is given."""

    note_value: str = "1/8"
    mix: float = 0.0
    feedback: float = 0.1
    dark: float = 0.5  # 0 keeps the echo's treble, 0.5 cuts it at 1 kHz
    seconds: float = 0.1
    mode: str = "Sync"


@dataclass(frozen=True)
class Sound:
    """A sound preset. Levels in decibels, times in seconds, the cutoff in hertz above `tracking` times the key."""

    name: str
    stamp: str  # when it was made: what tells presets apart, never changed
    why: str
    oscillators: tuple
    master: float = 0.0
    unison: int = 1
    width: float = 0.5  # of the unison: detuning and panorama
    cutoff: float = 8000.0
    resonance: float = 0.7
    tracking: float = 1.0
    filter_is_on: bool = True
    attack: float = 0.0
    decay: float = 1.0
    sustain: float = 1.0
    release: float = 0.1
    sub: float = -100.0
    sub_octave: int = -1
    delay: Delay = Delay()


@dataclass(frozen=True)
class Pattern:
    """A pattern preset of eight slots. With a sound it also sets that and how slots change."""

    name: str
    stamp: str  # when it was made: what tells presets apart, never changed
    why: str
    slots: tuple
    tempo: int = 100  # while no host gives one
    swing: int = 0
    swing_note: str = "1/4"
    sound: Sound = None
    quantise: str = "1/4"
    retrigger: bool = False


def oscillators(*used):
    """The four oscillators: those that are used, and silence for the rest."""
    return (*used, *[SILENT] * (4 - len(used)))
