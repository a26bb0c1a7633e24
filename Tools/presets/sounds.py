"""The factory sounds, folder by folder."""

from .preset import Delay, Oscillator, Sound, oscillators

BASICS = (
    Sound("Spacey Piano", "21 Nov 2026 10:00:01",
          "Soft struck keys with air above them and an echo that answers on the dotted eighth.",
          oscillators(Oscillator("OP Vibes", -12.0), Oscillator("Intimate", -19.0),
                      Oscillator("Medow", -27.0, octave=1), Oscillator("Soothing", -17.0, octave=-1)),
          master=-4.0, unison=2, width=0.45, cutoff=1900.0, resonance=0.6, tracking=0.8,
          attack=0.01, decay=0.9, sustain=0.18, release=0.55,
          delay=Delay("1/8D", mix=0.34, feedback=0.36, dark=0.42)),
)

SOUNDS = {"Basics": BASICS}
