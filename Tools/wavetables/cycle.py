"""From a pair of spectra to the samples of a file.

All sums are of whole numbers, and what a machine's own sine or square root might round differently is first put onto
a coarse grid. So the files come out the same, byte for byte, wherever they are made.
"""

import cmath
import math
import operator
import struct
from functools import lru_cache

from .loudness import loudness
from .spectrum import HARMONICS

FRAMES = 2048
SAMPLE_RATE = 192000
BYTES_A_SAMPLE = 3
FULL_SCALE = 1 << 23

LOUDNESS = 0.2  # of every table once it is multiplied by 1 - RMS; a sine could reach 0.23
HIGHEST_PEAK = 10.0 ** (-1.0 / 20.0)

AMPLITUDE_GRID = 1 << 24
SINE_GRID = 1 << 26
LEVEL_GRID = 1 << 12
START_WINDOW = FRAMES // 8
STEP_WEIGHT = 8  # a step from frame to frame is worse than an equal height at the start


def powers_of(channels):
    """Mean square of each harmonic over both channels."""
    return [math.fsum(abs(channel[h]) ** 2 for channel in channels) / (2 * len(channels))
            for h in range(len(channels[0]))]


def channel_rms(channel):
    return math.sqrt(0.5 * math.fsum(abs(value) ** 2 for value in channel))


def level_of(channels):
    """The factor g that brings g * (1 - g * rms) times the loudness to what all tables share."""
    unscaled, rms = loudness(powers_of(channels)), max(map(channel_rms, channels))
    return (1.0 - math.sqrt(1.0 - 4.0 * rms * LOUDNESS / unscaled)) / (2.0 * rms)


def unit_channels(pair):
    """Both channels at a common level of 1, the fundamental of their sum a rising sine at the cycle's start."""
    factor = 1.0 / max(spectrum.level() for spectrum in pair)
    lead = cmath.phase(sum(spectrum.amplitudes[1] for spectrum in pair))
    return [[value * factor * cmath.exp(-1j * h * lead) for h, value in enumerate(spectrum.amplitudes)]
            for spectrum in pair]


@lru_cache(maxsize=None)
def sine_rows():
    """For each frame of the first half, the cosine and the sine of every harmonic."""
    sine = [round(math.sin(2.0 * math.pi * i / FRAMES) * SINE_GRID) for i in range(FRAMES)]
    quarter = FRAMES // 4
    return [([sine[(h * n + quarter) % FRAMES] for h in range(HARMONICS + 1)],
             [sine[h * n % FRAMES] for h in range(HARMONICS + 1)]) for n in range(FRAMES // 2 + 1)]


def wave_on_grid(amplitudes):
    """One cycle in units of 1 / (AMPLITUDE_GRID * SINE_GRID). Its second half mirrors the first."""
    real = [round(value.real * AMPLITUDE_GRID) for value in amplitudes]
    imaginary = [round(value.imag * AMPLITUDE_GRID) for value in amplitudes]
    wave = [0] * FRAMES

    for n, (cosines, sines) in enumerate(sine_rows()):
        odd, even = sum(map(operator.mul, real, sines)), sum(map(operator.mul, imaginary, cosines))
        wave[n], wave[-n] = even + odd, even - odd

    return wave


def quietest_start(channels):
    """The frame near the start at which a note can begin, and the cycle close, with least of a step."""
    def disturbance(n):
        height = max(abs(wave[n]) for wave in channels)
        step = max(abs(wave[n + i] - wave[n + i - 1]) for wave in channels for i in (-1, 0, 1, 2))
        return height + STEP_WEIGHT * step

    return min(range(-START_WINDOW, START_WINDOW + 1), key=lambda n: (disturbance(n), abs(n)))


def samples_of(pair):
    """Left and right as whole numbers of 24 bits."""
    channels = unit_channels(pair)
    level = round(level_of(channels) * LEVEL_GRID)
    divisor = AMPLITUDE_GRID * SINE_GRID * LEVEL_GRID // FULL_SCALE
    waves = [[(2 * value * level + divisor) // (2 * divisor) for value in wave_on_grid(channel)] for channel in channels]

    start = quietest_start(waves)
    waves = [wave[start:] + wave[:start] for wave in waves]
    peak = max(max(map(abs, wave)) for wave in waves) / FULL_SCALE
    assert peak <= HIGHEST_PEAK, f"peaks at {peak:.3f}: spread its phases"
    return waves


def wav_file(channels):
    frame_bytes = len(channels) * BYTES_A_SAMPLE
    data = b"".join(sample.to_bytes(BYTES_A_SAMPLE, "little", signed=True)
                    for frame in zip(*channels) for sample in frame)
    kind = struct.pack("<HHIIHH", 1, len(channels), SAMPLE_RATE, SAMPLE_RATE * frame_bytes, frame_bytes,
                       8 * BYTES_A_SAMPLE)
    chunks = b"WAVE" + b"".join(name + struct.pack("<I", len(body)) + body
                                for name, body in ((b"fmt ", kind), (b"data", data)))
    return b"RIFF" + struct.pack("<I", len(chunks)) + chunks
