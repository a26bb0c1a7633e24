"""The words that the recipes are written in.

A Spectrum holds the harmonics of one cycle: entry h is the complex amplitude c of c * sin(h * phase), so a real
number is a plain sine. Entry 0 stays nought, hence no table has DC. Everything that makes or changes a spectrum here
gives a new one. Places in a cycle run from 0 to 1, and "at harmonic 5" means at five times the key's frequency: a
formant of a table moves with the key, so recipes place formants for a key near A3 (220 Hz).
"""

import cmath
import math

from .fourier import harmonics_of, wave_of

HARMONICS = 192  # more would fold back already below C3
SHAPING_FRAMES = 4096  # of cycles bent in time; what folds back in them lies above harmonic 3900
LOWEST_NYQUIST_HZ = 24000.0

KEYS_HZ = {f"C{octave}": 440.0 * 2.0 ** (octave - 4 - 9 / 12) for octave in range(1, 8)}


def gain(decibels):
    return 10.0 ** (decibels / 20.0)


class Dice:
    """Numbers from -1 to 1 that are the same on every machine and in every year."""

    def __init__(self, seed):
        self.state = (seed * 0x9E3779B9 + 0x7F4A7C15) & 0xFFFFFFFF

        for _ in range(4):
            self.roll()

    def roll(self):
        self.state ^= self.state << 13 & 0xFFFFFFFF
        self.state ^= self.state >> 17
        self.state ^= self.state << 5 & 0xFFFFFFFF
        return self.state / 0x80000000 - 1.0


class Spectrum:
    def __init__(self, amplitudes):
        self.amplitudes = tuple(amplitudes)

    def __add__(self, other):
        return Spectrum(a + b for a, b in zip(self.amplitudes, other.amplitudes))

    def __mul__(self, factor):
        return Spectrum(value * factor for value in self.amplitudes)

    __rmul__ = __mul__

    def times(self, response):
        """Every harmonic through response (h), a gain that may turn phases."""
        return Spectrum([0j] + [value * response(h) for h, value in enumerate(self.amplitudes) if h > 0])

    def level(self):
        return math.sqrt(math.fsum(abs(value) ** 2 for value in self.amplitudes))

    def even_out(self):
        """At level 1, so that parts of a mix are told by their factors alone."""
        return self * (1.0 / self.level())

    # Filters

    def tilted(self, decibels_per_octave, start=1.0):
        return self.times(lambda h: gain(decibels_per_octave * max(0.0, math.log2(h / start))))

    def lowpassed(self, corner, resonance=0.7071):
        return self.times(lambda h: 1.0 / (1.0 - (h / corner) ** 2 + 1j * h / (corner * resonance)))

    def laddered(self, corner, feedback):
        """Four equal poles in a ring; it would sing by itself at a feedback of 4."""
        return self.times(lambda h: (1.0 + feedback) / ((1.0 + 1j * h / corner) ** 4 + feedback))

    def highpassed(self, corner):
        return self.times(lambda h: 1j * h / (corner + 1j * h))

    def with_formants(self, *formants):
        """Lifts (or cuts) by decibels in a bell around each (harmonic, half width in octaves, decibels)."""
        def response(h):
            return gain(sum(decibels * math.exp(-0.5 * (math.log2(h / at) / width) ** 2)
                            for at, width, decibels in formants))
        return self.times(response)

    def reaching(self, key):
        """Ends where nothing folds back up to this key at 48 kHz; the band fades from a third up, to ring less
        and to fold back little an octave higher still."""
        end = LOWEST_NYQUIST_HZ / KEYS_HZ[key]
        fade = 0.3 * end

        def response(h):
            return 1.0 if h < fade else math.cos(0.5 * math.pi * (h - fade) / (end - fade)) ** 4 if h < end else 0.0
        return self.times(response)

    # Choice of harmonics

    def only(self, wanted):
        return self.times(lambda h: 1.0 if wanted(h) else 0.0)

    def up(self, times):
        """The same wave so many times in a cycle."""
        raised = [0j] * (HARMONICS + 1)
        raised[0::times] = self.amplitudes[:HARMONICS // times + 1]
        return Spectrum(raised)

    # Phases and copies

    def delayed(self, cycles):
        return self.times(lambda h: cmath.exp(-2j * math.pi * h * cycles))

    def doubled(self, cycles, factor=1.0):
        """With a copy of itself behind: one frozen moment of two detuned oscillators."""
        return self + self.delayed(cycles) * factor

    def scattered(self, cycles, seed):
        """Phases moved by up to so many cycles, the fundamental's excepted."""
        dice = Dice(seed)
        return self.times(lambda h: cmath.exp(2j * math.pi * cycles * dice.roll()) if h > 1 else 1.0)

    def uneven(self, decibels, seed):
        dice = Dice(seed)
        return self.times(lambda h: gain(decibels * dice.roll()))

    # Bending in time

    def bent(self, curve):
        """The wave, scaled to a peak of 1, through a curve."""
        wave = wave_of(self.amplitudes, SHAPING_FRAMES)
        peak = max(map(abs, wave))
        return Spectrum(harmonics_of([curve(value / peak) for value in wave], HARMONICS))


# Sources

def partials(*amplitudes):
    """Sines of harmonic 1, 2, 3 and so on."""
    return Spectrum([0j, *amplitudes] + [0j] * (HARMONICS - len(amplitudes)))


def sines(amplitudes):
    """Sines by their harmonic."""
    return Spectrum(complex(amplitudes.get(h, 0.0)) for h in range(HARMONICS + 1))


def from_phase(curve):
    """The cycle that curve (0..1) draws; for curves without jumps."""
    return Spectrum(harmonics_of([curve(i / SHAPING_FRAMES) for i in range(SHAPING_FRAMES)], HARMONICS))


def jumps(*places):
    """A wave of level steps: (place, height) each. What is left of their sum becomes a steady slope."""
    return Spectrum([0j] + [sum(height * cmath.exp(-2j * math.pi * h * place) for place, height in places)
                            / (math.pi * h) for h in range(1, HARMONICS + 1)])


def corners(*points):
    """A wave of straight lines between points (place, height), the places rising."""
    following = [*points[1:], (points[0][0] + 1.0, points[0][1])]
    slopes = [(high - low) / (end - start) for (start, low), (end, high) in zip(points, following)]
    turns = [(place, slope - before) for (place, _), slope, before in zip(points, slopes, slopes[-1:] + slopes[:-1])]
    return Spectrum([0j] + [sum(turn * cmath.exp(-2j * math.pi * h * place) for place, turn in turns)
                            / (2j * (math.pi * h) ** 2) for h in range(1, HARMONICS + 1)])


def held(levels):
    """A wave of steps of equal length, each at its level."""
    return jumps(*((i / len(levels), level - levels[i - 1]) for i, level in enumerate(levels)))


def saw():
    return jumps((0.5, -1.0))


def pulse(width):
    return jumps((0.0, 1.0), (width, -1.0))


def synced(ratio):
    """A saw that runs so many times as fast as the cycle and is set back at each start."""
    restarts = [(i / ratio, -1.0) for i in range(1, math.ceil(ratio))]
    return jumps((0.0, len(restarts) - ratio), *restarts)


def modulated(carrier, ratio, index, feedback=0.0):
    """A sine whose phase another one swings, by index radians."""
    def curve(place):
        phase = 2.0 * math.pi * place
        return math.sin(carrier * phase + index * math.sin(ratio * phase + feedback * math.sin(ratio * phase)))
    return from_phase(curve)


def plucked(place):
    """A string drawn aside at this part of its length."""
    return partials(*(math.sin(math.pi * h * place) / h for h in range(1, HARMONICS + 1)))


def ranks(pipe, levels):
    """An organ chorus: the same pipe at several pitches, {times the key's frequency: level}."""
    return sum((pipe.up(times) * level for times, level in levels.items()), sines({}))


DRAWBARS = (1, 3, 2, 4, 6, 8, 10, 12, 16)  # harmonics of the 16' pitch, in the order of the console


def drawbars(registration):
    """A registration as players write it, "88 8000 000": nine digits, three decibels a step."""
    digits = [int(digit) for digit in registration if digit != " "]
    return sines({h: gain(3.0 * (digit - 8)) for h, digit in zip(DRAWBARS, digits) if digit > 0})


# Both channels

def centred(spectrum):
    return spectrum, spectrum


def sides(left, right):
    return left.even_out(), right.even_out()


def widened(spectrum, degrees, decibels, seed):
    """Turns and tips harmonics apart, at random, by up to so much on each side: wide, and whole again in mono.

    The fundamental stays in the middle; the width is full from harmonic 6 upwards.
    """
    dice = Dice(seed)
    moves = [(dice.roll(), dice.roll()) for _ in range(HARMONICS + 1)]

    def side(sign):
        def response(h):
            turn, tip = moves[h]
            reach = sign * min(1.0, (h - 1) / 5.0)
            return gain(reach * tip * decibels) * cmath.exp(1j * math.radians(reach * turn * degrees))
        return spectrum.times(response)

    return sides(side(1.0), side(-1.0))
