"""The list of all tables for readers, Docs/wavetables.md."""

from .cycle import FULL_SCALE
from .measure import decibels, folded_back, rms, summed_powers
from .spectrum import KEYS_HZ

CLEAN_DECIBELS = -60.0
SAMPLE_RATE = 48000.0
HIGHEST_KEY = 103  # G8, in semitones from C1

HEAD = """\
# Wavetables

The seventy tables of the synth, one cycle each, in `Resources/Wavetables`: stereo, 24 bits, 2048 frames that say
192 kHz, so that the loader's resampling to 1920 kHz gives 20480 samples. `Tools/make_wavetables.py` writes them and
this list from the recipes in `Tools/wavetables/recipes.py`, with nothing but Python's standard library; the test
`wavetables` holds the files to their recipes byte for byte.

## What holds for all of them

- **Made of harmonics.** A table is a list of harmonics for each side, at most 192, so it has no DC and closes without
  a step. Formants and the like move with the key; where a text gives hertz it means the key A3.
- **Start.** The fundamental rises from nought near the start in every table, so oscillators that are layered add up.
  Within an eighth of a cycle of there the start is where height and slope are least: a note begins without a click.
- **Loudness.** The synth multiplies each table by 1 - RMS. The level of a file is chosen so that after that all
  seventy sound equally loud, by a measure that weighs bands as the ear does (`Tools/wavetables/loudness.py`). RMS
  ends up between {rms_range} dBFS, peaks at {highest_peak} dBFS and below.
- **Top.** There is one table for all keys, so harmonics above half the sample rate fold back. Recipes therefore end at
  a key's limit, fading from a third of the band up so that edges do not ring: basses are complete up to C3, what has
  to be bright up to C4, leads and organs up to C5, soft ones up to C6 and beyond. An octave above its limit the plain
  saw still keeps what folds back at -31 dB. "Clean to" is the highest key at which less than -60 dB folds back at
  48 kHz; "top" is the highest harmonic above -60 dB.
- **Width.** Sides differ in the phases and levels of harmonics above the fundamental, and a few tables have sides made
  apart; the sum of both sides loses at most 3 dB against them.
- **Apart.** Between any two tables lie at least 5 dB, taken over bands from single harmonics to quarters of an octave
  and weighted by how loud a band is; half of all pairs are more than 20 dB apart.

"""

NOTES = ("C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B")


def key_name(semitones_from_c1):
    return f"{NOTES[semitones_from_c1 % 12]}{1 + semitones_from_c1 // 12}"


def highest_clean_key(harmonics):
    clean = [semitone for semitone in range(HIGHEST_KEY + 1)
             if folded_back(harmonics, KEYS_HZ["C1"] * 2.0 ** (semitone / 12), SAMPLE_RATE) < CLEAN_DECIBELS]
    return key_name(clean[-1])


def top_harmonic(harmonics):
    floor = max(harmonics) * 10.0 ** (CLEAN_DECIBELS / 10.0)
    return max(h for h, power in enumerate(harmonics) if power > floor)


def level_text(amplitude):
    return f"{decibels(amplitude ** 2):.1f}"


def row(table, waves):
    harmonics = summed_powers(waves)
    cells = (table.name.replace("_", " "), top_harmonic(harmonics), highest_clean_key(harmonics),
             level_text(max(map(rms, waves))), table.why)
    return f"| {' | '.join(map(str, cells))} |"


def section(category, tables, channels):
    rows = [row(table, channels[f"{category} - {table.name}"]) for table in tables]
    return "\n".join([f"## {category}", "", "| Table | Top | Clean to | RMS dBFS | What and why |",
                      "|---|---:|---:|---:|---|", *rows, ""])


def listing(categories, channels):
    scaled = {name: [[value / FULL_SCALE for value in wave] for wave in waves] for name, waves in channels.items()}
    levels = [max(map(rms, waves)) for waves in scaled.values()]
    peak = max(abs(value) for waves in scaled.values() for wave in waves for value in wave)
    head = HEAD.format(rms_range=f"{level_text(min(levels))} and {level_text(max(levels))}",
                       highest_peak=level_text(peak))
    return head + "\n".join(section(category, tables, scaled) for category, tables in categories.items())
