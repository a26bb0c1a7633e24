"""What can be told of a table from its file alone: format, harmonics, and how far two of them are apart."""

import math
import struct
from collections import namedtuple

from .fourier import harmonics_of

Wav = namedtuple("Wav", "encoding channels sample_rate bits waves")  # waves: one list per channel, full scale is 1

# First harmonics of the bands in which tables are compared: singly at first, then a quarter of an octave each.
BANDS = (1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 17, 20, 24, 28, 34, 40, 48, 57, 67, 80, 95, 113, 135, 160, 193)
FLOOR_DECIBELS = -60.0


def chunks_of(data):
    place = 12

    while place < len(data):
        name, size = struct.unpack_from("<4sI", data, place)
        yield name, data[place + 8:place + 8 + size]
        place += 8 + size + size % 2


def read_wav(data):
    chunks = dict(chunks_of(data))
    encoding, channels, sample_rate, _, frame_bytes, bits = struct.unpack("<HHIIHH", chunks[b"fmt "])
    width, body = bits // 8, chunks[b"data"]
    waves = [[int.from_bytes(body[at:at + width], "little", signed=True) / (1 << (bits - 1))
              for at in range(channel * width, len(body), frame_bytes)] for channel in range(channels)]
    return Wav(encoding, channels, sample_rate, bits, waves)


def rms(wave):
    return math.sqrt(math.fsum(value * value for value in wave) / len(wave))


def powers(wave, count):
    """Mean square of each harmonic, up to this one."""
    return [abs(value) ** 2 / 2.0 for value in harmonics_of(wave, count)]


def decibels(power):
    return 10.0 * math.log10(power) if power > 0.0 else -math.inf


def profile(wave):
    """The level of each band against the whole, in decibels, down to the floor below which nobody hears it."""
    harmonics = powers(wave, BANDS[-1])
    total = math.fsum(harmonics)
    return [max(FLOOR_DECIBELS, decibels(math.fsum(harmonics[start:end]) / total))
            for start, end in zip(BANDS, BANDS[1:])]


def distance(profiles, others):
    """Decibels between two tables (each a profile per channel): the louder a band in either, the more it counts."""
    weighted, weights = 0.0, 0.0

    for level, other in zip(sum(profiles, []), sum(others, [])):
        weight = max(level, other) - FLOOR_DECIBELS
        weighted += weight * (level - other) ** 2
        weights += weight

    return math.sqrt(weighted / weights)


def summed_powers(waves):
    return [sum(pair) for pair in zip(*(powers(wave, len(wave) // 2 - 1) for wave in waves))]


def folded_back(harmonics, key_hz, sample_rate):
    """The power that a key sends past half the sample rate, against the whole, in decibels."""
    first_above = math.floor(sample_rate / 2.0 / key_hz) + 1
    return decibels(math.fsum(harmonics[first_above:]) / math.fsum(harmonics))
