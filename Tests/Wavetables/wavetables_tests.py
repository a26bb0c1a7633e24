"""What every wavetable has to keep to, judged by the files alone, and that no two of them sound alike."""

import functools
import math
import sys
import unittest
from itertools import combinations
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "Tools"))

from wavetables.loudness import loudness
from wavetables.measure import (
    BANDS, decibels, distance, folded_back, powers, profile, read_wav, rms, summed_powers)

# The names that presets store: a missing one would silently change a sound.
NAMES = {
    "Basics": "ARP Detuned_ARP Saw SQR First Retro Sine SAW_2 Square HollinA HollinB HollinE Fair_Square TRI",
    "Buzzy": "Buzz Fattie_Pattie Triaj Flat Checks_Out Spiky",
    "Classics": "Octaves Another_Saw Its_a_Prophet Bass_Boy Super_Mooj Res_His Sined_Harm OP_Vibes Sined_up Rich",
    "Hammond": " ".join(f"Hammond_{number}" for number in range(5, 18)),
    "Middy": "Nasal Intimate Ducky Slingy Cuts_Through Knife Knit_and_Grit Vibration Oboe Mellow",
    "Organ": "Church Harmonium Oregano Orchestral Healthy Cheap_Organ Basics_Organ_2 Basics_Organ",
    "Smooth": "Thin_and_Clean Soothing Medow Floot",
    "Special": "Noisy Sharp Neat Skinny Malfunction",
}

FRAMES = 2048  # 20480 samples after resampling from 192 to 1920 kHz
CLOSEST = 5.0  # dB between any two tables; most pairs are more than 20 apart
C4_HZ, C5_HZ, C6_HZ = 261.63, 523.25, 1046.5


def read_all():
    return {path.stem: read_wav(path.read_bytes()) for path in (ROOT / "Resources/Wavetables").iterdir()}


def steps_of(wave):
    """From the last frame to the first, and on from there."""
    return [abs(value - wave[i - 1]) for i, value in enumerate(wave)]


def after_loading(waves):
    """As the synth plays a table: multiplied by 1 - RMS of the louder side."""
    factor = 1.0 - max(map(rms, waves))
    return [[value * factor for value in wave] for wave in waves]


def for_each_table(test):
    """Makes a test of one table a test of all."""
    @functools.wraps(test)
    def test_of_all(self):
        for name, wav in self.tables.items():
            with self.subTest(name):
                test(self, name, wav)
    return test_of_all


class Wavetables(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tables = read_all()

    def test_have_the_names_that_presets_store(self):
        expected = [f"{category} - {name}" for category, names in NAMES.items() for name in names.split()]
        self.assertEqual(70, len(expected))
        self.assertEqual(sorted(expected), sorted(self.tables))

    @for_each_table
    def test_are_stereo_cycles_of_24_bit_pcm(self, _, wav):
        self.assertEqual((1, 2, 192000, 24), wav[:4])
        self.assertEqual([FRAMES, FRAMES], list(map(len, wav.waves)))

    @for_each_table
    def test_have_no_dc_and_do_not_clip(self, _, wav):
        for wave in wav.waves:
            self.assertLess(decibels((math.fsum(wave) / FRAMES) ** 2), -120.0)
            self.assertLess(decibels(max(map(abs, wave)) ** 2), -1.0)

    @for_each_table
    def test_close_and_start_without_a_click(self, _, wav):
        for wave in wav.waves:
            steps = steps_of(wave)
            beside = max(steps[1:9] + steps[-8:])
            self.assertLessEqual(steps[0], 1.25 * beside, "step from the end to the start")
            self.assertLess(max(abs(wave[0]), beside), 0.15, "first frame, steps around it")

    @for_each_table
    def test_rise_together_so_that_layers_add_up(self, _, wav):
        left, right = wav.waves
        middle = [a + b for a, b in zip(left, right)]
        rising = math.fsum(value * math.sin(2.0 * math.pi * i / FRAMES) for i, value in enumerate(middle))
        falling = math.fsum(value * math.cos(2.0 * math.pi * i / FRAMES) for i, value in enumerate(middle))
        self.assertLess(abs(math.atan2(falling, rising)), math.pi / 4 + 0.01)

    def test_sound_equally_loud_once_loaded(self):
        levels = {}

        for name, wav in self.tables.items():
            waves = after_loading(wav.waves)
            levels[name] = decibels(loudness([power / 2.0 for power in summed_powers(waves)[:BANDS[-1]]]) ** 2)
            self.assertGreater(decibels(max(map(rms, waves)) ** 2), -20.0, f"{name} is faint")
            self.assertLess(decibels(max(map(rms, waves)) ** 2), -12.0, f"{name} is loud")

        self.assertLess(max(levels.values()) - min(levels.values()), 0.1)

    @for_each_table
    def test_are_balanced_and_survive_mono(self, _, wav):
        left, right = wav.waves
        self.assertLess(abs(decibels((rms(left) / rms(right)) ** 2)), 0.1, "dB between the sides")
        mono = rms([(a + b) / 2.0 for a, b in zip(left, right)])
        self.assertGreater(decibels((mono / rms(left)) ** 2), -3.01, "dB of the sides' sum")

    def test_are_wide_but_for_the_plain_ones(self):
        same = {name for name, wav in self.tables.items() if wav.waves[0] == wav.waves[1]}
        self.assertLess(len(same), 25)
        self.assertFalse({name for name in same if name.startswith(("Hammond", "Smooth", "Buzzy"))})

    @for_each_table
    def test_fold_little_back_where_they_are_played(self, name, wav):
        bright = {"Basics - Saw", "Basics - SQR", "Basics - Retro", "Basics - SAW_2", "Middy - Slingy", "Middy - Knife",
                  "Middy - Cuts_Through", "Middy - Knit_and_Grit", "Special - Skinny"}
        deep = {"Buzzy - Fattie_Pattie", "Special - Noisy", "Special - Malfunction"}

        category = name.split(" - ")[0]
        highest = (C4_HZ / 2.0 if name in deep else C4_HZ if name in bright or category in ("Buzzy", "Classics")
                   else C6_HZ if category == "Smooth" else C5_HZ)
        self.assertLess(folded_back(summed_powers(wav.waves), highest, 48000.0), -60.0)

    @for_each_table
    def test_leave_nothing_for_the_resampler_to_lose(self, _, wav):
        for wave in wav.waves:
            harmonics = powers(wave, FRAMES // 2 - 1)
            self.assertLess(decibels(math.fsum(harmonics[BANDS[-1]:]) / math.fsum(harmonics)), -100.0)

    def test_are_no_copies_of_each_other(self):
        profiles = {name: [profile(wave) for wave in wav.waves] for name, wav in self.tables.items()}

        for one, other in combinations(profiles, 2):
            self.assertGreater(distance(profiles[one], profiles[other]), CLOSEST, f"{one} and {other}")


if __name__ == "__main__":
    unittest.main()
