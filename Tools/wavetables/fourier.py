"""Ways between a cycle and its harmonics."""

import cmath
from functools import lru_cache


@lru_cache(maxsize=None)
def twiddles(size):
    return [cmath.exp(-2j * cmath.pi * i / size) for i in range(size // 2)]


def transform(values):
    """The discrete Fourier transform, not scaled; the number of values is a power of two."""
    size = len(values)

    if size == 1:
        return list(values)

    even, odd = transform(values[0::2]), transform(values[1::2])
    turned = [factor * value for factor, value in zip(twiddles(size), odd)]
    return [a + b for a, b in zip(even, turned)] + [a - b for a, b in zip(even, turned)]


def harmonics_of(wave, count):
    """Complex amplitudes c of c * sin(h * phase) for the harmonics h = 0 (nought) to count of one cycle."""
    return [0j] + [2j * value / len(wave) for value in transform(wave)[1:count + 1]]


def wave_of(amplitudes, size):
    """One cycle of these harmonics, the reverse of harmonics_of."""
    padded = [value.conjugate() for value in amplitudes] + [0j] * (size - len(amplitudes))
    return [-value.imag for value in transform(padded)]
