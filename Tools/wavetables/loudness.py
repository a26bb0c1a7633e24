"""How loud a cycle sounds, so that changing an oscillator's table does not change the balance of a sound.

Each channel's harmonics are weighted by the K curve of broadcast metering at four keys and gathered into octave
bands. The loudest band counts in full and the others by a small part each, on the compressed scale on which loudness
adds up: a tone that is spread over many bands sounds louder than its power tells. That part is half of what is usual
for octaves, since a filter usually takes some of those bands away.
"""

import cmath
import math
from functools import lru_cache

from .spectrum import KEYS_HZ

KEYS = ("C2", "C3", "C4", "C5")
LOWEST_BAND_HZ, HIGHEST_HZ = 22.1, 20000.0
COMPRESSION = 0.3  # loudness of a band goes with its power to this exponent
OTHER_BANDS = 0.15

# The two filters of ITU-R BS.1770 at 48 kHz: numerator, denominator
K_SHELF = (1.53512485958697, -2.69169618940638, 1.19839281085285), (1.0, -1.69065929318241, 0.73248077421585)
K_HIGH_PASS = (1.0, -2.0, 1.0), (1.0, -1.99004745483398, 0.99007225036621)
K_RATE_HZ = 48000.0


@lru_cache(maxsize=None)
def k_power(hertz):
    delay = cmath.exp(-2j * cmath.pi * hertz / K_RATE_HZ)
    power = 1.0

    for numerator, denominator in (K_SHELF, K_HIGH_PASS):
        value, below = (c[0] + delay * (c[1] + delay * c[2]) for c in (numerator, denominator))
        power *= abs(value / below) ** 2

    return power


def loudness_at(powers, key_hz):
    bands = {}

    for h, power in enumerate(powers):
        if power > 0.0 and h * key_hz < HIGHEST_HZ:
            band = int(math.log2(h * key_hz / LOWEST_BAND_HZ))
            bands[band] = bands.get(band, 0.0) + power * k_power(h * key_hz)

    parts = [power ** COMPRESSION for power in bands.values()]
    return (max(parts) + OTHER_BANDS * (sum(parts) - max(parts))) ** (0.5 / COMPRESSION)


def loudness(powers):
    """On an amplitude's scale: doubling all amplitudes doubles it. powers[h] is the mean square of harmonic h."""
    return math.prod(loudness_at(powers, KEYS_HZ[key]) for key in KEYS) ** (1.0 / len(KEYS))
